#include "app/save_failure.h"

#include "store/format_text.h"
#include "store/strings.h"

namespace cv2 {
namespace {

// The system's text for an error number, without its trailing line break.
std::wstring SystemErrorText(unsigned long error) {
    wchar_t text[512] = {};
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error,
                       0, text, static_cast<DWORD>(sizeof text / sizeof text[0]), nullptr);
    std::wstring s(text, length);
    while (!s.empty() && (s.back() == L'\n' || s.back() == L'\r' || s.back() == L' '))
        s.pop_back();
    return s.empty() ? FormatText(Localized(IDS_SAVE_FAILED_UNKNOWN), {std::to_wstring(error)}) : s;
}

} // namespace

std::wstring SaveFailureText(const std::wstring& path, const WriteFailure& failure) {
    return FormatText(Localized(IDS_SAVE_FAILED), {path, SystemErrorText(failure.error)});
}

void ReportSaveFailure(HWND owner, const std::wstring& path, const WriteFailure& failure) {
    const std::wstring text = SaveFailureText(path, failure);
    // The caption is copied first: the next look-up may reuse the same buffer.
    const std::wstring caption = Localized(IDS_SAVE_FAILED_CAPTION);
    MessageBoxW(owner, text.c_str(), caption.c_str(), MB_OK | MB_ICONERROR);
}

} // namespace cv2
