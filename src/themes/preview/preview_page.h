// The theme editor's last page, "Preview": the bar drawn from the editor's current values, what
// OK would save, with a line at its foot saying that it is an approximation. The values come
// from a scratch copy of the document that every page has saved into; the real document is
// never touched. A tap on the start button opens and closes the start menu.
#pragma once

#include <functional>

#include "store/ini_document.h"
#include "ui/preview/preview_view.h"
#include "ui/settings_page.h"

namespace cv2 {

class PreviewPage : public SettingsPage {
  public:
    // `scratch` gives a copy of the document with every page saved into it.
    explicit PreviewPage(std::function<IniDocument()> scratch);

    void Create(HWND host) override;
    void Show(bool visible) override;
    void OnDestroy() override;
    void OnActivate() override;
    void OnSize(const RECT& client) override;

    PreviewView& View() { return m_view; }
    const IniDocument& Scratch() const { return m_scratch; }

  private:
    Scene BuildFor(bool startMenuOpen);

    std::function<IniDocument()> m_makeScratch;
    IniDocument m_scratch;
    HWND m_host = nullptr;
    HWND m_note = nullptr;
    PreviewView m_view;
};

} // namespace cv2
