# The file browser's pieces: its text rules are portable, the rest works on its windows.
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/browse_paths.cpp
  ${CMAKE_CURRENT_LIST_DIR}/browse_templates.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/browser_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/browser_layout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/folder_listing.cpp
  ${CMAKE_CURRENT_LIST_DIR}/folder_tree.cpp
  ${CMAKE_CURRENT_LIST_DIR}/thumbnails.cpp)
