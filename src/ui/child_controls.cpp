#include "ui/child_controls.h"

#include "ui/shared_fonts.h"

namespace cv2 {

void CreateChildControls(HWND host, const ChildControl* rows, size_t count, HWND* out) {
    HINSTANCE instance = GetModuleHandleW(nullptr);
    for (size_t i = 0; i < count; ++i) {
        const ChildControl& row = rows[i];
        out[i] = CreateWindowExW(row.exStyle, row.windowClass, row.text ? Localized(row.text) : L"",
                                 WS_CHILD | row.style, 0, 0, 0, 0, host,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id)), instance,
                                 nullptr);
        SetControlFont(out[i], TextFont());
    }
}

} // namespace cv2
