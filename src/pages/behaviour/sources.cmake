list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/check_list_rows.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_text.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/delay_settings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_startup.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rule_format.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rule_list.cpp
  ${CMAKE_CURRENT_LIST_DIR}/task_choices.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/check_list_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_locale_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/custom_task_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/delays_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_outside_stores.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rule_list_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rule_pages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/task_picker_dialog.cpp)
# Program Directories: its stored values, and the page.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/program_directories_values.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/program_directories_page.cpp)
# Button Assignments and Button Order: their stored values, and the pages.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/button_assignments_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_order_values.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/button_assignments_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/button_order_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/top_bar_state.cpp)
