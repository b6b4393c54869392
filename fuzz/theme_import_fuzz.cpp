// Fuzz target: importing any theme file into any config.ini. The input is split at its first
// NUL byte: the theme before it, the config.ini after it (all of it is the theme when there is
// none). Current themes are merged, older ones converted; nothing may crash, and a current
// theme's "Skin Info" keys must arrive.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "themes/theme_transfer.h"

namespace {

size_t Count(const cv2::IniDocument& doc, const wchar_t* name) {
    size_t count = 0;
    for (const cv2::IniDocument::Section& s : doc.Sections())
        count += cv2::EqualsNoCase(s.name.c_str(), name) ? 1 : 0;
    return count;
}

// Whether any section of that name holds a key: a merge takes the keys of every one of them.
bool AnyKeys(const cv2::IniDocument& doc, const wchar_t* name) {
    for (const cv2::IniDocument::Section& s : doc.Sections())
        if (cv2::EqualsNoCase(s.name.c_str(), name) && !s.entries.empty())
            return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const uint8_t* split = std::find(data, data + size, 0);
    cv2::IniDocument chosen;
    chosen.Parse(data, static_cast<size_t>(split - data));
    cv2::IniDocument edited;
    if (split != data + size)
        edited.Parse(split + 1, static_cast<size_t>(data + size - split - 1));
    const bool current = cv2::IsCurrentFormat(chosen);
    // Like every deletion by name, the import takes the first section of a name: a second
    // "Custom Notifications" in the edited file survives it.
    const size_t listsBefore = Count(edited, L"Custom Notifications");
    const cv2::ImportedAs as = cv2::ImportTheme(edited, chosen, {1, 2, 3});
    if ((as == cv2::ImportedAs::CurrentFormat) != current)
        std::abort();
    // The merge writes keys: a "Skin Info" without any arrives as no section at all.
    if (current && !chosen.GetSectionEntries(L"Skin Info").empty() &&
        !edited.HasSection(L"Skin Info"))
        std::abort();
    // The chosen theme's lists (all sections of the name, an empty first one included) then
    // merge into the survivor, or make the section anew.
    const size_t chosenLists = AnyKeys(chosen, L"Custom Notifications") ? 1 : 0;
    if (current && listsBefore > 0 &&
        Count(edited, L"Custom Notifications") != std::max(listsBefore - 1, chosenLists))
        std::abort();
    cv2::IniDocument exported;
    cv2::FinishExport(exported, edited);
    const std::string text = edited.Serialize();
    cv2::IniDocument again;
    again.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return 0;
}
