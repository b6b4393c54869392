# The theme editor's appearance pages: those that borrow the shared image panel, and those with
# controls of their own; and the path keys of all of them together (portable).
include(${CMAKE_CURRENT_LIST_DIR}/panel_pages.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/control_pages.cmake)
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/theme_path_keys.cpp)
