# Pages with controls of their own: values (portable) and pages (Win32).
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/control_page_keys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/control_path_keys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/notification_list.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound_event_file.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/control_dialogs.cpp
  ${CMAKE_CURRENT_LIST_DIR}/editor_buttons_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/fields_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/notifications_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/own_controls_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound_events_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_colors_page.cpp)
