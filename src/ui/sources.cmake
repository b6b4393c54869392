list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/dialog_layout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/page_host.cpp
  ${CMAKE_CURRENT_LIST_DIR}/settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shared_fonts.cpp)
# Picture readers and scaling.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/image/pixel_image.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/targa_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/icon_reader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_scale.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_files.cpp)
# The loaded-image type, the loader and the drawing of images.
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/image/loaded_image.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_loader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image/image_draw.cpp)
