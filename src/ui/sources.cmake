list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/child_controls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/control_layout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dialog_layout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/full_screen_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/off_screen_paint.cpp
  ${CMAKE_CURRENT_LIST_DIR}/page_host.cpp
  ${CMAKE_CURRENT_LIST_DIR}/settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shared_fonts.cpp)
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/icon_grid_layout.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/icon_grid.cpp
  ${CMAKE_CURRENT_LIST_DIR}/icon_grid_images.cpp
  ${CMAKE_CURRENT_LIST_DIR}/icon_grid_input.cpp
  ${CMAKE_CURRENT_LIST_DIR}/icon_grid_paint.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/text_extent.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/file_browser.cpp)
