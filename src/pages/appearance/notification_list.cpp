#include "pages/appearance/notification_list.h"

#include <unordered_map>

#include "pages/appearance/control_page_keys.h"
#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {

// A section header ends at its first "]": a title holding one is written whole but reads back
// as the part before it. The pictures are looked for under both names and both are removed
// before a save, so such an entry keeps its pictures and leaves one section, however often the
// theme is saved and read again.
std::wstring ReadBackName(const std::wstring& section) {
    return section.substr(0, section.find(L']'));
}

} // namespace

std::vector<std::wstring> CustomNotificationNames(const IniDocument& doc) {
    // One pass over the section instead of one search per key: the first entry of a key wins,
    // as it does for a look-up by key.
    std::unordered_map<std::wstring, std::wstring> byKey;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(config::kCustomNotifications))
        byKey.emplace(e.first, e.second);
    std::vector<std::wstring> names;
    for (size_t i = 0;; ++i) {
        const auto it = byKey.find(std::to_wstring(i));
        if (it == byKey.end() || it->second.empty())
            return names;
        names.push_back(it->second);
    }
}

std::wstring NotifySectionOf(const std::wstring& title) {
    return config::kNotifyPrefix + title;
}

CustomNotification CutToBuffers(const CustomNotification& entry) {
    return {CutToBuffer(entry.title, kNotificationTitleChars + 1),
            CutToBuffer(entry.normalImage, kSettingPathChars + 1),
            CutToBuffer(entry.pressedImage, kSettingPathChars + 1)};
}

std::vector<CustomNotification> ReadCustomNotifications(const IniDocument& doc) {
    std::vector<CustomNotification> entries;
    const SettingKey* keys = kNotifyImagesSection.keys;
    for (const std::wstring& title : CustomNotificationNames(doc)) {
        std::wstring section = NotifySectionOf(title);
        if (!doc.HasSection(section.c_str()))
            section = ReadBackName(section);
        CustomNotification entry;
        entry.title = title;
        entry.normalImage = doc.GetString(section.c_str(), keys[kNotifyNormal].key, L"");
        entry.pressedImage = doc.GetString(section.c_str(), keys[kNotifyPressed].key, L"");
        entries.push_back(CutToBuffers(entry));
    }
    return entries;
}

void WriteCustomNotifications(IniDocument& doc, const std::vector<CustomNotification>& entries) {
    std::vector<std::wstring> doomed;
    for (const std::wstring& title : CustomNotificationNames(doc)) {
        doomed.push_back(NotifySectionOf(title));
        if (title.find(L']') != std::wstring::npos)
            doomed.push_back(ReadBackName(doomed.back()));
    }
    doomed.push_back(config::kCustomNotifications);
    doc.DeleteSections(doomed);
    const SettingKey* keys = kNotifyImagesSection.keys;
    for (size_t i = 0; i < entries.size(); ++i) {
        const CustomNotification entry = CutToBuffers(entries[i]);
        const std::wstring section = NotifySectionOf(entry.title);
        doc.SetString(section.c_str(), keys[kNotifyNormal].key, entry.normalImage.c_str());
        doc.SetString(section.c_str(), keys[kNotifyPressed].key, entry.pressedImage.c_str());
        doc.SetString(config::kCustomNotifications, std::to_wstring(i).c_str(),
                      entry.title.c_str());
    }
}

} // namespace cv2
