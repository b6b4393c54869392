#include "pages/behaviour/delays_page.h"

#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const int kValueChars = 256;

enum Column { Caption, Box, Unit, kColumns };

// One row per setting, 39 units apart: the caption, the box 16 below it and the unit label 19
// below it, beside the box.
ControlPlace PlaceOf(int row, int column) {
    const int top = 9 + 39 * row;
    switch (column) {
    case Caption:
        return {0, From::Left, 3, From::Left, 237, top, 13};
    case Box:
        return {0, From::Left, 3, From::Left, 43, top + 16, 20};
    default:
        return {0, From::Left, 46, From::Left, 196, top + 19, 13};
    }
}

HWND MakeChild(HWND host, const wchar_t* cls, const wchar_t* text, DWORD style, HFONT font) {
    HWND child = CreateWindowExW(0, cls, text, WS_CHILD | style, 0, 0, 0, 0, host, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    SetControlFont(child, font);
    return child;
}

} // namespace

DelaysPage::DelaysPage() : SettingsPage(IDS_DELAYS_PAGE) {}

DelaysPage::~DelaysPage() {
    for (auto& row : m_controls) {
        for (HWND child : row) {
            if (IsWindow(child))
                DestroyWindow(child);
        }
    }
}

void DelaysPage::Create(HWND host) {
    for (int i = 0; i < kDelaySettingCount; ++i) {
        m_controls[i][Caption] =
            MakeChild(host, L"STATIC", Localized(kDelaySettings[i].caption), 0, CaptionFont());
        m_controls[i][Box] = MakeChild(
            host, L"EDIT", L"", WS_BORDER | WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL, TextFont());
        m_controls[i][Unit] = MakeChild(host, L"STATIC", Localized(IDS_SECONDS), 0, TextFont());
    }
    OnSize(Area());
}

void DelaysPage::OnSize(const RECT&) {
    for (int i = 0; i < kDelaySettingCount; ++i)
        for (int column = 0; column < kColumns; ++column)
            PlaceWindow(m_controls[i][column], PlaceOf(i, column), Area());
}

void DelaysPage::Show(bool visible) {
    ShowWindows(&m_controls[0][0], kDelaySettingCount * 3, visible);
}

void DelaysPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    for (int i = 0; i < kDelaySettingCount; ++i) {
        const DelaySetting& s = kDelaySettings[i];
        SetWindowTextW(Edit(i),
                       doc->GetString(kDelaySection, s.key, s.defaultValue, kValueChars).c_str());
    }
}

void DelaysPage::Save(IniDocument* target) {
    IniDocument& doc = SaveTarget(target);
    for (int i = 0; i < kDelaySettingCount; ++i) {
        wchar_t typed[kValueChars] = {};
        GetWindowTextW(Edit(i), typed, kValueChars);
        const DelaySetting& s = kDelaySettings[i];
        doc.SetString(kDelaySection, s.key, DelayValueToStore(s, typed).c_str());
    }
}

} // namespace cv2
