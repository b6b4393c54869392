list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/older_theme.cpp
  ${CMAKE_CURRENT_LIST_DIR}/overrides_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_catalogue.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_files.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_package.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_package_export.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_transfer.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/editor_pages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/import_theme_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/older_theme_device.cpp
  ${CMAKE_CURRENT_LIST_DIR}/overrides_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_catalogue_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_editor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_info_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/theme_messages.cpp)
