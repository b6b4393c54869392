# The plug-in registry: what a registry value says (portable), the loaded libraries, the
# application's list of them and the Plugins page.
list(APPEND CV2_CORE_SOURCES ${CMAKE_CURRENT_LIST_DIR}/plugin_values.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/plugin.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plugin_registry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plugins_page.cpp)
