list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/delay_settings.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/delays_page.cpp)
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/check_list_rows.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_startup.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/check_list_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_locale_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/clock_settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_outside_stores.cpp
  ${CMAKE_CURRENT_LIST_DIR}/general_settings_page.cpp)
