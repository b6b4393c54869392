# Picture readers and scaling.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/pixel_image.cpp
  ${CMAKE_CURRENT_LIST_DIR}/targa_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/icon_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_scale.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_margins.cpp
  ${CMAKE_CURRENT_LIST_DIR}/bmp_bytes.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_files.cpp)
# The loaded-image type, the loader and the drawing of images.
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/loaded_image.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_loader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_draw.cpp)
