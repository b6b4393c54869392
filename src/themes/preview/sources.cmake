# The preview of the bar: the scene made from a theme (portable).
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/preview_theme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scene_builder.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scene_context.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scene_start_menu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scene_window.cpp)
# Its Win32 side: what this device tells the builder.
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/preview_device_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/preview_page.cpp)
