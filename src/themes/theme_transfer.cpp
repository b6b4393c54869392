#include "themes/theme_transfer.h"

#include "pages/appearance/notification_list.h"
#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {} // namespace

bool IsCurrentFormat(const IniDocument& theme) {
    return theme.HasSection(config::kSkinInfo);
}

ImportedAs ImportTheme(IniDocument& edited, const IniDocument& chosen,
                       const OlderThemeColors& colors) {
    if (IsCurrentFormat(chosen)) {
        ImportCurrentFormat(edited, chosen);
        return ImportedAs::CurrentFormat;
    }
    ConvertOlderTheme(chosen, edited, colors);
    return ImportedAs::OlderFormat;
}

void ImportCurrentFormat(IniDocument& edited, const IniDocument& chosen) {
    std::vector<std::wstring> doomed(kAppearanceSections,
                                     kAppearanceSections + kAppearanceSectionCount);
    for (const std::wstring& name : CustomNotificationNames(edited))
        doomed.push_back(config::kNotifyPrefix + name);
    doomed.push_back(config::kCustomNotifications);
    edited.DeleteSections(doomed);
    edited.MergeFrom(chosen, true);
}

std::wstring ExportFolder(const std::wstring& themePath) {
    const std::wstring folder = FolderOf(themePath);
    return folder.empty() || folder.back() != L'\\' ? folder + L'\\' : folder;
}

void FinishExport(IniDocument& exported, const IniDocument& edited) {
    for (const IniDocument::EntryRef& e : edited.GetSectionEntries(config::kTaskPanel))
        exported.SetString(config::kTaskPanel, e.first, e.second);
    exported.MakePathsRelative(ExportFolder(exported.Path()));
}

} // namespace cv2
