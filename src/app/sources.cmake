list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/preview_arguments.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_switch.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/about_box.cpp
  ${CMAKE_CURRENT_LIST_DIR}/bar_notify.cpp
  ${CMAKE_CURRENT_LIST_DIR}/desktop_screen.cpp
  ${CMAKE_CURRENT_LIST_DIR}/editor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/page_list.cpp
  ${CMAKE_CURRENT_LIST_DIR}/preview_command.cpp
  ${CMAKE_CURRENT_LIST_DIR}/save_failure.cpp
  ${CMAKE_CURRENT_LIST_DIR}/screen_menu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/settings_app.cpp
  ${CMAKE_CURRENT_LIST_DIR}/version_info.cpp)
