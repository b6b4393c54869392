// Screenshots of the My Theme page on the device screen the run is made for, with a theme
// selected so the details and its top bar show, after a check that nothing is cut off or
// overlapping.
#include <gtest/gtest.h>

#include "ids_themes.h"
#include "rule_page_support.h"
#include "screen_capture.h"
#include "temp_folder.h"
#include "themes/theme_catalogue_page.h"

using namespace cv2;
using namespace cv2test;

TEST(ThemeCatalogueScreens, ThemeSelected) {
    TempFolder dir;
    const struct {
        const wchar_t* folder;
        const char* text;
    } themes[] = {
        {L"Themes\\Blue", "[Skin Info]\nName=Blue Glass\nAuthor=A. Maker\nAuthorEmail="
                          "maker@example.org\nHiRes=TRUE\nNotes=Glass buttons on a blue bar, "
                          "with a matching start menu and sounds.\n[Topbar]\nMode=gradient\n"
                          "Use Theme Colors=FALSE\nLeft Color=8404992\nRight Color=16744448\n"},
        {L"Themes\\Plain", "[Skin Info]\nName=\nAuthor=B. Maker\n"},
        {L"Themes\\Old", "Logo=logo.bmp\n"},
    };
    for (const auto& theme : themes) {
        dir.MakeFolder(theme.folder);
        dir.Write(std::wstring(theme.folder) + L"\\theme.skin", theme.text);
    }
    dir.Write(
        L"config.ini", "[Settings]\nTheme File=" + [&] {
            const std::wstring path = dir.File(L"Themes\\Blue\\theme.skin");
            return std::string(path.begin(), path.end());
        }() + "\n");
    IniDocument doc;
    doc.Load(dir.File(L"config.ini"));
    PageHost host;
    ThemeCataloguePage page(dir.Path());
    host.Add(page);
    page.Load(&doc);
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
    ExpectLaidOutApart(host.Window());
    EXPECT_FALSE(SaveScreenshot(L"theme_catalogue_page").empty());
    EXPECT_TRUE(ScreenHasContent());
    page.OnDestroy();
}
