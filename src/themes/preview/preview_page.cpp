#include "themes/preview/preview_page.h"

#include "ids_editor.h"
#include "store/paths.h"
#include "store/scale.h"
#include "store/screen.h"
#include "pages/appearance/image_panel.h"
#include "themes/preview/preview_device.h"
#include "themes/preview/scene_builder.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const ChildControl kNote = {L"STATIC", SS_CENTER | SS_NOPREFIX, 0, IDS_PREVIEW_NOTE,
                            IDC_PREVIEW_NOTE};

// The picture above, the note under it at the page's foot.
const ControlPlace kPlaces[] = {
    {IDC_PREVIEW_VIEW, From::Left, 0, From::Right, 0, 2, -16, FromY::Top, true},
    {IDC_PREVIEW_NOTE, From::Left, 2, From::Right, -2, -15, 14, FromY::Bottom},
};

} // namespace

PreviewPage::PreviewPage(std::function<IniDocument()> scratch)
    : SettingsPage(IDS_PREVIEW), m_makeScratch(std::move(scratch)) {}

void PreviewPage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, &kNote, 1, &m_note);
    m_view.Create(host, IDC_PREVIEW_VIEW);
    m_view.SetBuilder([this](bool startMenuOpen) { return BuildFor(startMenuOpen); });
    OnSize(Area());
}

void PreviewPage::Show(bool visible) {
    if (visible) {
        if (ImagePanel* panel = PanelOf(m_host))
            panel->HideAll();
    }
    ShowWindows(&m_note, 1, visible);
    if (m_view.Window())
        ShowWindow(m_view.Window(), visible ? SW_SHOW : SW_HIDE);
}

// Every time the page is shown, the scene is made anew from what the other pages now hold,
// with the start menu closed.
void PreviewPage::OnActivate() {
    if (m_makeScratch)
        m_scratch = m_makeScratch();
    m_view.Reset();
}

void PreviewPage::OnSize(const RECT&) {
    if (!m_note)
        return;
    PlaceControls(m_host, Area(), kPlaces);
    if (IsActive())
        m_view.Refresh();
}

// The device's screen at its own size and density; the view shrinks the picture to the page.
Scene PreviewPage::BuildFor(bool startMenuOpen) {
    PreviewRequest request;
    request.theme = &m_scratch;
    request.config = &m_scratch;
    request.themeFolder = FolderOf(m_scratch.Path());
    request.width = ScreenWidth();
    request.height = ScreenHeight();
    request.dpi = g_dpiY;
    request.startMenuOpen = startMenuOpen;
    return BuildScene(request, ThisDevicePreview(m_view.Painter()));
}

void PreviewPage::OnDestroy() {
    m_view.Destroy();
    DestroyWindows(&m_note, 1);
}

} // namespace cv2
