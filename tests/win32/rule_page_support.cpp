#include "rule_page_support.h"

#include <gtest/gtest.h>

namespace cv2test {

cv2::IniDocument DocOf(const std::string& text) {
    cv2::IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

std::wstring ItemText(HWND dialog, int id) {
    return WindowText(GetDlgItem(dialog, id));
}

bool ItemVisible(HWND dialog, int id) {
    return IsWindowVisible(GetDlgItem(dialog, id)) != FALSE;
}

void SetItemText(HWND dialog, int id, const std::wstring& text) {
    SetDlgItemTextW(dialog, id, text.c_str());
}

void ClickItem(HWND dialog, int id) {
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void PressItem(HWND dialog, int id) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

} // namespace cv2test
