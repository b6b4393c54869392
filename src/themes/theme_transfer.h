// The document work of theme import and export. The Import Theme page and the export dialog
// handle the file browser, the wait cursor and the editor's messages; everything they do to the
// documents themselves is here, so it can be tested without windows.
//
// Import (after loading the chosen file into a document of its own):
//     IniDocument chosen;
//     chosen.Load(path);                  // a missing or unreadable file stays empty
//     ImportTheme(edited, chosen, DeviceOlderThemeColors()); // then send "UpdateCV2xTheme"
// (DeviceOlderThemeColors is in themes/older_theme_device.h, Win32 only.)
//
// Export (after the pages have saved themselves into `exported` through "ExportCV2xTheme"):
//     FinishExport(exported, edited);
//     exported.Save();
#pragma once

#include <string>

#include "store/ini_document.h"
#include "themes/older_theme.h"

namespace cv2 {

// A current theme carries a "Skin Info" section; a file without one (also one that could not be
// read) is of the first format.
bool IsCurrentFormat(const IniDocument& theme);

// What ImportTheme did with the chosen file.
enum class ImportedAs { CurrentFormat, OlderFormat };

// Replaces the appearance of `edited` by that of `chosen`: a current theme through
// ImportCurrentFormat, an older one through ConvertOlderTheme with the device's `colors`.
ImportedAs ImportTheme(IniDocument& edited, const IniDocument& chosen,
                       const OlderThemeColors& colors);

// Deletes the appearance sections of `edited` (kAppearanceSections in order, then the
// "Notify.<name>" section of every name listed in its own "Custom Notifications", then that list
// itself) and merges `chosen` in, relative image names resolved against `chosen`'s folder.
// Sections that `chosen` lacks are thereby gone from `edited`; other sections stay.
void ImportCurrentFormat(IniDocument& edited, const IniDocument& chosen);

// Completes an exported theme: copies section "Task Panel" of `edited` into `exported` (no page
// writes it; it travels as it stands, in stored order), then rewrites every absolute path of an
// existing file inside the export folder (ExportFolder of `exported`'s path) as the name
// relative to that folder. `edited` is not changed.
void FinishExport(IniDocument& exported, const IniDocument& edited);

// The folder image paths are made relative to: everything of `themePath` up to and including its
// last backslash, with a backslash appended when that does not end in one. A path without any
// backslash therefore gives "\" alone.
std::wstring ExportFolder(const std::wstring& themePath);

} // namespace cv2
