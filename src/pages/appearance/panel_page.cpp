#include "pages/appearance/panel_page.h"

#include "pages/platform_colors.h"
#include "platform/image_decoder.h"

namespace cv2 {
namespace {

const wchar_t* TitleText(const PageTitle& title) {
    return title.fixed ? title.fixed : Localized(title.id);
}

} // namespace

PanelPage::PanelPage(const PageTitle& title, const SettingSection& section, const PanelView& view,
                     const PanelRows& rows)
    : SettingsPage(TitleText(title)), m_values(section), m_view(view), m_rows(rows) {}

void PanelPage::Show(bool visible) {
    ImagePanel* panel = Panel();
    if (!visible || !panel)
        return;
    if (m_view.firstLabel) {
        // Localized may hand back a shared buffer: the first text is copied before the second.
        const std::wstring first = Localized(m_view.firstLabel);
        panel->SetRowLabels(first.c_str(), Localized(m_view.secondLabel));
    }
    panel->ShowParts(m_view.shown, true);
    panel->ShowParts(m_view.hidden, false);
    panel->RefreshPreviews();
}

void PanelPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (doc)
        m_values.Load(*doc, PlatformColors());
    // A reload while the page is current (after an import) shows the new paths at once.
    if (IsActive())
        OnActivate();
}

void PanelPage::Save(IniDocument* target) {
    if (IsActive())
        OnDeactivate();
    Write(SaveTarget(target));
}

void PanelPage::OnActivate() {
    ImagePanel* panel = Panel();
    if (!panel)
        return;
    for (int row = 0; row < 2; ++row) {
        if (PathRow(row) != kNoPathRow)
            panel->SetPath(row, RowPath(row));
    }
}

void PanelPage::OnHostShown() {
    PrepareImageDecoder();
}

void PanelPage::OnDeactivate() {
    ImagePanel* panel = Panel();
    if (!panel)
        return;
    for (int row = 0; row < 2; ++row) {
        if (PathRow(row) != kNoPathRow)
            SetRowPath(row, panel->Path(row));
    }
}

HWND PanelPage::Owner() const {
    ImagePanel* panel = Panel();
    return panel ? panel->Owner() : m_host;
}

std::wstring PanelPage::RowPath(int row) const {
    return m_values.Text(PathRow(row));
}

void PanelPage::SetRowPath(int row, const std::wstring& path) {
    m_values.SetText(PathRow(row), path);
}

bool PanelPage::IsSettingsClick(WPARAM wParam) const {
    const ImagePanel* panel = Panel();
    return IsActive() && panel && panel->IsSettingsClick(wParam);
}

} // namespace cv2
