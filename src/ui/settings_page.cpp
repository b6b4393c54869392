#include "ui/settings_page.h"

namespace cv2 {

SettingsPage::SettingsPage(StringId nameId) : m_name(Localized(nameId)) {}

SettingsPage::SettingsPage(const wchar_t* fixedName) : m_name(fixedName) {}

SettingsPage::~SettingsPage() = default;

const wchar_t* SettingsPage::GetName() const {
    return m_name.c_str();
}

void SettingsPage::Save(IniDocument*) {}

void SettingsPage::Paint(HDC) {}

void SettingsPage::OnDestroy() {}

bool SettingsPage::OnCommand(WPARAM, LPARAM) {
    return false;
}

LRESULT SettingsPage::OnNotify(WPARAM, LPARAM) {
    return 0;
}

void SettingsPage::Load(IniDocument* doc) {
    m_doc = doc;
}

void SettingsPage::OnActivate() {}

void SettingsPage::OnDeactivate() {}

void SettingsPage::OnSize(const RECT&) {}

void SettingsPage::OnHostShown() {}

void ShowWindows(HWND const* windows, size_t count, bool visible) {
    for (size_t i = 0; i < count; ++i) {
        if (windows[i])
            ShowWindow(windows[i], visible ? SW_SHOW : SW_HIDE);
    }
}

void DestroyWindows(HWND* windows, size_t count) {
    for (size_t i = 0; i < count; ++i) {
        if (windows[i] && IsWindow(windows[i]))
            DestroyWindow(windows[i]);
        windows[i] = nullptr;
    }
}

} // namespace cv2
