list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/format_text.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ini_document.cpp
  ${CMAKE_CURRENT_LIST_DIR}/language_strings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/paths.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scale.cpp
  ${CMAKE_CURRENT_LIST_DIR}/strings.cpp)
list(APPEND CV2_CORE_WIN32 ${CMAKE_CURRENT_LIST_DIR}/text_codec_win32.cpp)
list(APPEND CV2_CORE_POSIX ${CMAKE_CURRENT_LIST_DIR}/text_codec_posix.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/screen_win32.cpp)
