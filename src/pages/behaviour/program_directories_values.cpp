#include "pages/behaviour/program_directories_values.h"

#include "store/paths.h"

namespace cv2 {

std::wstring DefaultStartMenuPath(const std::wstring& programsFolder) {
    const std::wstring folder = FolderOf(programsFolder);
    return folder.empty() ? L"\\Windows\\Start Menu\\" : folder;
}

std::wstring LoadStartMenuPath(const IniDocument& doc, const std::wstring& defaultPath) {
    return doc.GetString(kStartMenuSection, kStartMenuPathKey, defaultPath.c_str(),
                         static_cast<int>(kStartMenuPathChars));
}

void SaveStartMenuPath(IniDocument& doc, const std::wstring& path) {
    doc.SetString(kStartMenuSection, kStartMenuPathKey,
                  CutToBuffer(path, kStartMenuPathChars).c_str());
}

std::vector<std::wstring> LoadThemeDirectories(const IniDocument& doc) {
    std::vector<std::wstring> folders;
    for (const IniDocument::EntryRef& entry : doc.GetSectionEntries(kThemeDirectoriesSection))
        folders.emplace_back(entry.second);
    return folders;
}

void SaveThemeDirectories(IniDocument& doc, const std::vector<std::wstring>& folders) {
    doc.EmptySection(kThemeDirectoriesSection);
    int number = 1;
    for (std::wstring folder : folders) {
        if (!folder.empty() && folder.back() == L'\\')
            folder.pop_back();
        doc.SetString(kThemeDirectoriesSection, std::to_wstring(number++).c_str(), folder.c_str());
    }
}

} // namespace cv2
