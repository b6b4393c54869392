#include "pages/behaviour/delays_page.h"

#include "store/scale.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const int kValueChars = 256;

// Rows of the page in 96-dpi units: the caption's top; the box sits 16 below it and the unit
// label 19 below it, every row 39 apart.
int CaptionTop(int row) { return 29 + 39 * row; }

HWND MakeChild(HWND host, const wchar_t* cls, const wchar_t* text, DWORD style, int x, int y, int w,
               int h, HFONT font) {
    HWND child = CreateWindowExW(0, cls, text, WS_CHILD | style, ScaleX(x), Scale(y), ScaleX(w),
                                 Scale(h), host, nullptr, GetModuleHandleW(nullptr), nullptr);
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
        const int top = CaptionTop(i);
        m_controls[i][0] = MakeChild(host, L"STATIC", Localized(kDelaySettings[i].caption), 0, 3,
                                     top, 234, 13, CaptionFont());
        m_controls[i][1] = MakeChild(host, L"EDIT", L"",
                                     WS_BORDER | WS_TABSTOP | ES_NUMBER | ES_AUTOHSCROLL, 3,
                                     top + 16, 40, 20, TextFont());
        m_controls[i][2] = MakeChild(host, L"STATIC", Localized(IDS_SECONDS), 0, 46, top + 19,
                                     150, 13, TextFont());
    }
}

void DelaysPage::Show(bool visible) {
    ShowWindows(&m_controls[0][0], kDelaySettingCount * 3, visible);
}

void DelaysPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    for (int i = 0; i < kDelaySettingCount; ++i) {
        const DelaySetting& s = kDelaySettings[i];
        SetWindowTextW(Edit(i), doc->GetString(kDelaySection, s.key, s.defaultValue, kValueChars).c_str());
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
