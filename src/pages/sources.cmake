# What every page area shares: sections described as tables of keys (portable), and the device's
# colours for their defaults (Win32).
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/setting_table.cpp)
list(APPEND CV2_WIN_SOURCES ${CMAKE_CURRENT_LIST_DIR}/platform_colors_win32.cpp)
