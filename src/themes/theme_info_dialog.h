// The theme information dialog: a theme's name, author, e-mail address, file path and
// high-resolution flag, turned into a theme document. The theme export asks through it too.
#pragma once

#include <windows.h>

#include "store/ini_document.h"

namespace cv2 {

struct ThemeInfo {
    wchar_t name[100] = {};
    wchar_t author[100] = {};
    wchar_t email[100] = {};
    wchar_t path[260] = {};
    bool hiRes = false;
    // Export: copy the pictures and sounds the theme names into its folder. Off by default.
    bool copyFiles = false;
    // Export: write the theme with all its files as one package (.zip) instead. Off by default.
    bool package = false;
};

// Shows the dialog, filled from `info`. On OK `info` holds what was entered and the result is a
// new document (the caller's) holding the file at that path, when there is one, with the
// "Skin Info" keys "Author", "AuthorEmail", "Name" and "HiRes" set; on Cancel, or when the
// dialog cannot open, null and `info` as it was. With `package` ticked the document stands for
// the .skin file of the package (PackagePathsFor), also when a .zip path was entered.
IniDocument* AskThemeInfo(ThemeInfo& info, HWND parent);

} // namespace cv2
