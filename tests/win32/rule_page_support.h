// Test support for the rule list pages and their dialogs: the host window, and steps that work
// the modal dialogs the pages open.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "check_pages_host.h"
#include "dialog_driver.h"
#include "layout_check.h"
#include "store/ini_document.h"
#include "ui/settings_page.h"

namespace cv2test {

// A document parsed from file text.
cv2::IniDocument DocOf(const std::string& text);

// Dialog steps.
std::wstring ItemText(HWND dialog, int id);
bool ItemVisible(HWND dialog, int id);
void SetItemText(HWND dialog, int id, const std::wstring& text);
void ClickItem(HWND dialog, int id);
// Posts the button's command, for buttons that open or close a dialog.
void PressItem(HWND dialog, int id);

} // namespace cv2test
