# Pages that borrow the theme editor's image panel: values (portable), the panel and the pages
# (Win32).
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/bar_background_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_pair_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/panel_path_keys.cpp
  ${CMAKE_CURRENT_LIST_DIR}/start_menu_skin_values.cpp
  ${CMAKE_CURRENT_LIST_DIR}/taskbar_buttons_values.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/bar_background_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_pair_pages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/image_panel.cpp
  ${CMAKE_CURRENT_LIST_DIR}/panel_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/soft_key_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/start_menu_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/start_menu_skin_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/taskbar_buttons_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/today_menubar_dialog.cpp)
