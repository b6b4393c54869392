# The preview of the bar: the scene as data (portable) and its painter (Win32).
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/scene.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/preview_view.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scene_painter.cpp)
