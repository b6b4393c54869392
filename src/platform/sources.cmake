list(APPEND CV2_CORE_WIN32
  ${CMAKE_CURRENT_LIST_DIR}/file_access_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/string_module_win32.cpp)
list(APPEND CV2_CORE_POSIX
  ${CMAKE_CURRENT_LIST_DIR}/file_access_posix.cpp
  ${CMAKE_CURRENT_LIST_DIR}/string_module_posix.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/com_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/device_colors_win32.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shell_win32.cpp)
