# The platform layer: every *_win32.cpp and *_posix.cpp here. File access and the string
# module serve the portable core (a Win32 and a POSIX form each); the rest is the device shell
# layer of the Win32 program.
set(CV2_PLATFORM_CORE file_access string_module)
file(GLOB platform_win32 CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*_win32.cpp)
file(GLOB platform_posix CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*_posix.cpp)
foreach(file IN LISTS platform_win32)
  get_filename_component(name ${file} NAME)
  string(REGEX REPLACE "_win32\\.cpp$" "" name ${name})
  if(name IN_LIST CV2_PLATFORM_CORE)
    list(APPEND CV2_CORE_WIN32 ${file})
  else()
    list(APPEND CV2_WIN_SOURCES ${file})
  endif()
endforeach()
list(APPEND CV2_CORE_POSIX ${platform_posix})
# The fault tests inject into replacing writes, shared by both file-access forms.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/write_fault.cpp)
# Tests observe the files read through either form.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/read_observer.cpp)
# The device's theme colours as a table with their fall-backs: portable, so the core can test it.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/theme_color_table.cpp)
# The device screens and the choice of one on a desktop: portable, tested natively.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/device_screens.cpp)
# Replacing writes and temporary folders, on both forms' primitives.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/replacing_file.cpp)
