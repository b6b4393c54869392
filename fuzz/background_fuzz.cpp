// Fuzz target: reading the background of every bar section of any theme file, writing it and
// reading it back, which must give the same record.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ui/backgrounds/background_record.h"

namespace {

// A file never keeps a value's trailing blanks (the reader trims them), and a path cut to its
// buffer can end in some: paths are compared without them.
std::wstring Kept(const std::wstring& value) {
    return value.substr(0, value.find_last_not_of(L" \t") + 1);
}

bool Same(const cv2::BackgroundRecord& a, const cv2::BackgroundRecord& b) {
    return Kept(a.portraitImage) == Kept(b.portraitImage) &&
           Kept(a.landscapeImage) == Kept(b.landscapeImage) && a.mode == b.mode &&
           a.solidColor == b.solidColor && a.leftColor == b.leftColor &&
           a.rightColor == b.rightColor && a.useThemeColors == b.useThemeColors;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cv2::IniDocument doc;
    doc.Parse(data, size);
    const cv2::BackgroundDefaults defaults = {0x00C0C0C0, cv2::kThemeColor0Fallback, 0x00FFFFFF};
    const wchar_t* sections[] = {L"Topbar", L"Today Menubar", L"Menubar", L"SoftKey"};
    for (const wchar_t* section : sections) {
        const cv2::BackgroundRecord record = cv2::ReadBackground(doc, section, defaults);
        if (record.mode < 0 || record.mode >= cv2::kBackgroundModeCount)
            std::abort();
        cv2::IniDocument written;
        cv2::WriteBackground(written, section, record);
        const std::string text = written.Serialize();
        cv2::IniDocument again;
        again.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        if (!Same(cv2::ReadBackground(again, section, defaults), record))
            std::abort();
    }
    return 0;
}
