// Entry point: the silent theme switch, or the interactive settings editor.
#include <windows.h>

#include "app/bar_notify.h"
#include "app/preview_arguments.h"
#include "app/preview_command.h"
#include "app/theme_switch.h"
#include "platform/exe_folder.h"
#include "store/language_strings.h"

namespace cv2 {
int RunEditor(HINSTANCE instance, const std::wstring& commandLine);
}

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
    // The localisation module is loaded before anything else, as the editor's first act.
    cv2::Strings();
    const std::wstring args = commandLine ? commandLine : L"";
    if (cv2::IsThemeSwitch(args)) {
        cv2::RunThemeSwitch(cv2::ExeFolder(), args, cv2::NotifyBarFromTaskbar);
        return 0;
    }
    // The theme switch comes first: a command line naming both switches the theme.
    if (cv2::IsPreviewCommand(args))
        return cv2::RunPreviewCommand(cv2::ExeFolder(), args);
    return cv2::RunEditor(instance, args);
}
