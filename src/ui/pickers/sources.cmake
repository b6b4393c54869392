# Colour and font pickers: values and records (portable), dialogs and drawing (Win32).
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/color_value.cpp
  ${CMAKE_CURRENT_LIST_DIR}/font_metrics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/font_style.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/color_picker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/font_picker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/font_record.cpp)
