list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/dialog_layout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/page_host.cpp
  ${CMAKE_CURRENT_LIST_DIR}/settings_page.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shared_fonts.cpp)
# Colour and font pickers: values and records (portable), dialogs and drawing (Win32).
list(APPEND CV2_CORE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/pickers/color_value.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pickers/font_metrics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pickers/font_style.cpp)
list(APPEND CV2_WIN_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/pickers/color_picker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pickers/font_picker.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pickers/font_record.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pickers/picker_layout.cpp)
