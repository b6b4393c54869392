#include "ui/preview/preview_view.h"

#include <algorithm>

#include "platform/device_colors.h"
#include "ui/backgrounds/background_paint.h"
#include "ui/image/image_draw.h"
#include "ui/image/image_scale.h"
#include "ui/off_screen_paint.h"

namespace cv2 {
namespace {

const wchar_t kClassName[] = L"CV2PreviewView";
constexpr int kPageGround = 25; // the device's static-control background, as the pages have

bool RegisterViewClass(WNDPROC proc) {
    static bool registered = false;
    if (registered)
        return true;
    WNDCLASSW wc = {};
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = kClassName;
    registered = RegisterClassW(&wc) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
    return registered;
}

} // namespace

bool PreviewView::Create(HWND parent, int id) {
    if (!RegisterViewClass(Proc))
        return false;
    m_hwnd = CreateWindowExW(0, kClassName, L"", WS_CHILD, 0, 0, 0, 0, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                             GetModuleHandleW(nullptr), this);
    return m_hwnd != nullptr;
}

void PreviewView::Destroy() {
    if (m_hwnd && IsWindow(m_hwnd))
        DestroyWindow(m_hwnd);
    m_hwnd = nullptr;
}

void PreviewView::Refresh() {
    if (m_builder)
        m_scene = m_builder(m_menuOpen);
    Render();
    if (m_hwnd)
        InvalidateRect(m_hwnd, nullptr, FALSE);
}

void PreviewView::Render() {
    RECT client = {};
    if (m_hwnd)
        GetClientRect(m_hwnd, &client);
    PixelImage drawn = m_painter.Render(m_scene);
    if (!drawn.Empty() && client.right > 0 && client.bottom > 0 &&
        (drawn.width > client.right || drawn.height > client.bottom)) {
        const double factor = std::min(static_cast<double>(client.right) / drawn.width,
                                       static_cast<double>(client.bottom) / drawn.height);
        drawn = ScaleImage(drawn, std::max(1, static_cast<int>(drawn.width * factor)),
                           std::max(1, static_cast<int>(drawn.height * factor)));
    }
    m_shown = LoadedImage::FromPixels(drawn);
}

void PreviewView::Reset() {
    m_menuOpen = false;
    Refresh();
}

POINT PreviewView::SceneOrigin() const {
    RECT client = {};
    if (m_hwnd)
        GetClientRect(m_hwnd, &client);
    const int left = (client.right - m_shown.Width()) / 2;
    return {left > 0 ? left : 0, 0};
}

bool PreviewView::Tap(int x, int y) {
    const POINT origin = SceneOrigin();
    const SceneElement* start = m_scene.Find(SceneKind::StartButton);
    if (!start || m_shown.IsEmpty())
        return false;
    // Back to the scene's own pixels.
    const int sceneX = (x - origin.x) * m_scene.width / m_shown.Width();
    const int sceneY = (y - origin.y) * m_scene.height / m_shown.Height();
    if (!start->rect.Contains(sceneX, sceneY))
        return false;
    m_menuOpen = !m_menuOpen;
    Refresh();
    return true;
}

// The view's ground, then the scene.
void PreviewView::OnPaint() {
    PaintOffScreen(m_hwnd, [this](HDC dc, const RECT& client) {
        PaintSolid(dc, client, DeviceSysColor(kPageGround));
        const POINT origin = SceneOrigin();
        DrawImage(dc, m_shown, origin.x, origin.y);
    });
}

LRESULT CALLBACK PreviewView::Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* view = reinterpret_cast<PreviewView*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    switch (msg) {
    case WM_ERASEBKGND:
        return 1; // the paint covers every pixel
    case WM_PAINT:
        if (view) {
            view->OnPaint();
            return 0;
        }
        break;
    case WM_SIZE:
        if (view)
            view->Render();
        return 0;
    case WM_LBUTTONDOWN:
        if (view)
            view->Tap(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        return 0;
    case WM_NCDESTROY:
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
        if (view && view->m_hwnd == hwnd)
            view->m_hwnd = nullptr;
        break;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

} // namespace cv2
