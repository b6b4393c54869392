list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/rule_format.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rule_list.cpp)
