// Fuzz target: converting any file as a theme of the first format into a config.ini that
// already holds appearance sections. The conversion must always leave the sections it writes,
// with every font colour 0, and the result must be a document that reads back.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "themes/older_theme.h"

namespace {

const char kConfig[] = "[Settings]\nTheme File=\\config.ini\n[Sounds]\nStart=a.wav\n"
                       "[Topbar]\nMode=tiled\n[Clock Font]\nColor=255\n";

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cv2::IniDocument source;
    source.Parse(data, size);
    cv2::IniDocument target;
    target.Parse(reinterpret_cast<const unsigned char*>(kConfig), sizeof kConfig - 1);
    cv2::ConvertOlderTheme(source, target, {0x00E76D08, 0x00FF0000, 0x00990000});
    const wchar_t* fonts[] = {L"Clock Font", L"Title Font", L"Small Clock Font"};
    for (const wchar_t* font : fonts) {
        if (target.GetString(font, L"Color", L"missing") != L"0")
            std::abort();
    }
    if (target.HasSection(L"Sounds") || !target.HasSection(L"Button Images") ||
        target.GetString(L"Skin Info", L"HiRes", L"") != L"FALSE")
        std::abort();
    const std::string text = target.Serialize();
    cv2::IniDocument again;
    again.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return 0;
}
