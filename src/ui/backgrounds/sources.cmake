# Backgrounds of bars and button areas: the record and its keys (portable), the background and
# button images dialogs (Win32).
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/background_record.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/background_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/background_paint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_images_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/graphics_browse.cpp)
