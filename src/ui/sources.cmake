list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shared_fonts.cpp)
# Picture readers and scaling.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/image/pixel_image.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/targa_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/icon_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_scale.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_files.cpp)
