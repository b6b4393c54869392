// A child window that shows a scene of the preview, drawn by its own painter (which keeps the
// pictures it has read for as long as the view lives). A scene larger than the view is drawn at
// its own size and then shrunk to fit, shape kept, the way a photograph of the screen would be:
// texts and pictures keep their proportions. A tap on the start button opens the start menu, a
// second tap closes it: the view asks its owner for a scene with the menu open or closed.
//
//   PreviewView view;
//   view.Create(host, IDC_SOMETHING);
//   view.SetBuilder([&](bool menuOpen) { return BuildScene(...); });
//   view.Refresh();  // whenever what the scene shows has changed
#pragma once

#include <windows.h>

#include <functional>

#include "ui/image/loaded_image.h"
#include "ui/preview/scene.h"
#include "ui/preview/scene_painter.h"

namespace cv2 {

class PreviewView {
  public:
    using Builder = std::function<Scene(bool startMenuOpen)>;

    PreviewView() = default;
    ~PreviewView() { Destroy(); }
    PreviewView(const PreviewView&) = delete;
    PreviewView& operator=(const PreviewView&) = delete;

    // Makes the view, hidden, as a child of `parent`.
    bool Create(HWND parent, int id);
    void Destroy();
    HWND Window() const { return m_hwnd; }

    void SetBuilder(Builder builder) { m_builder = std::move(builder); }
    // Asks for the scene anew (the start menu as it is) and repaints.
    void Refresh();
    // Closes the start menu and asks for the scene anew.
    void Reset();

    // A tap at a point of the view's client area; true when it opened or closed the start menu.
    bool Tap(int x, int y);
    bool StartMenuOpen() const { return m_menuOpen; }
    const Scene& Current() const { return m_scene; }
    // Where the scene's top-left corner lies in the view (the scene is centred across it), and
    // the size it is shown at.
    POINT SceneOrigin() const;
    SIZE ShownSize() const { return {m_shown.Width(), m_shown.Height()}; }

    ScenePainter& Painter() { return m_painter; }

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    void OnPaint();
    // Draws the scene and shrinks it to the view.
    void Render();

    HWND m_hwnd = nullptr;
    Builder m_builder;
    Scene m_scene;
    LoadedImage m_shown; // the scene as the view shows it
    bool m_menuOpen = false;
    ScenePainter m_painter;
};

} // namespace cv2
