#include "app/theme_switch.h"

#include "platform/file_access.h"
#include "store/config_sections.h"
#include "store/ini_document.h"
#include "store/paths.h"

namespace cv2 {
namespace {
const wchar_t kSwitch[] = L"--theme=";
const size_t kSwitchLength = 8;
} // namespace

bool IsThemeSwitch(const std::wstring& commandLine) {
    return commandLine.find(kSwitch) != std::wstring::npos;
}

std::wstring ThemeSwitchPath(const std::wstring& exeFolder, const std::wstring& commandLine) {
    const std::wstring value =
        commandLine.size() > kSwitchLength ? commandLine.substr(kSwitchLength) : std::wstring();
    return CutToBuffer(exeFolder + value, kMaxPath);
}

bool RunThemeSwitch(const std::wstring& exeFolder, const std::wstring& commandLine,
                    void (*notifyBar)()) {
    IniDocument config;
    config.Load(CutToBuffer(exeFolder + L"config.ini", kMaxPath));
    const std::wstring theme = ThemeSwitchPath(exeFolder, commandLine);
    if (!FileExists(theme))
        return false;
    config.SetString(config::kSettings, config::kThemeFile, theme.c_str());
    const bool written = config.Save();
    // The bar is told even if the write failed: it then simply reloads what it had.
    if (notifyBar)
        notifyBar();
    return written;
}

} // namespace cv2
