# The zip container of theme packages: portable, on the bottom floor, with zlib for deflate.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/archive_io.cpp
  ${CMAKE_CURRENT_LIST_DIR}/entry_names.cpp
  ${CMAKE_CURRENT_LIST_DIR}/zip_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/zip_writer.cpp)
