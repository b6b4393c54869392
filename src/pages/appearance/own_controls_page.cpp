#include "pages/appearance/own_controls_page.h"

#include "pages/appearance/image_panel.h"
#include "pages/platform_colors.h"
#include "ui/shared_fonts.h"

namespace cv2 {

OwnControlsPage::OwnControlsPage(StringId nameId, std::vector<OwnControl> controls,
                                 std::vector<const SettingSection*> sections)
    : SettingsPage(nameId), m_table(std::move(controls)), m_controls(m_table.size()) {
    for (const SettingSection* section : sections)
        m_values.emplace_back(*section);
}

OwnControlsPage::~OwnControlsPage() {
    OnDestroy();
}

void OwnControlsPage::Create(HWND host) {
    m_host = host;
    for (size_t i = 0; i < m_table.size(); ++i) {
        CreateChildControls(host, &m_table[i].control, 1, &m_controls[i]);
        if (m_table[i].heading && CaptionFont())
            SetControlFont(m_controls[i], CaptionFont());
    }
    OnSize(Area());
    OnCreated();
}

void OwnControlsPage::Show(bool visible) {
    if (visible) {
        if (ImagePanel* panel = PanelOf(m_host))
            panel->HideAll();
    }
    ShowWindows(m_controls.data(), m_controls.size(), visible);
}

void OwnControlsPage::OnSize(const RECT&) {
    for (size_t i = 0; i < m_table.size(); ++i)
        PlaceWindow(m_controls[i], m_table[i].place, Area());
}

void OwnControlsPage::OnDestroy() {
    DestroyWindows(m_controls.data(), m_controls.size());
}

void OwnControlsPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc)
        return;
    for (SettingValues& values : m_values)
        values.Load(*doc, PlatformColors());
    OnLoaded();
}

void OwnControlsPage::Save(IniDocument* target) {
    if (!target && !Doc())
        return;
    for (const SettingValues& values : m_values)
        values.Save(SaveTarget(target));
}

HWND OwnControlsPage::Control(int id) const {
    for (size_t i = 0; i < m_table.size(); ++i)
        if (m_table[i].control.id == id)
            return m_controls[i];
    return nullptr;
}

OwnControl RowNameLabel(int id) {
    return {{L"STATIC", SS_LEFT | SS_NOPREFIX, 0, StringId(0), id},
            {id, From::Left, 3, From::Left, 203, 8, 15},
            true};
}

OwnControl RowList(int id) {
    return {{L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP, 0,
             StringId(0), id},
            {id, From::Left, 3, From::Right, -1, 48, 0, FromY::Top, true},
            false};
}

void FillNameList(HWND list, const StringId* names, size_t count) {
    for (size_t i = 0; i < count; ++i)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Localized(names[i])));
    SendMessageW(list, LB_SETCURSEL, 0, 0);
}

size_t SelectedRow(HWND list, size_t count) {
    const LRESULT row = SendMessageW(list, LB_GETCURSEL, 0, 0);
    return row < 0 || static_cast<size_t>(row) >= count ? count : static_cast<size_t>(row);
}

std::wstring TextOfWindow(HWND control, int maxChars) {
    std::wstring text(static_cast<size_t>(maxChars) + 1, L'\0');
    const int got = control ? GetWindowTextW(control, &text[0], maxChars + 1) : 0;
    text.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return text;
}

} // namespace cv2
