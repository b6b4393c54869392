// The document work of theme import and export, on real files in scratch folders.
#include "themes/theme_transfer.h"

#include <gtest/gtest.h>

#include "pages/appearance/notification_list.h"
#include "platform/file_access.h"
#include "temp_folder.h"
#include "theme_test_text.h"

using namespace cv2;
using namespace cv2test;

namespace {

const OlderThemeColors kColors = {1, 2, 3};

std::wstring Value(const IniDocument& doc, const wchar_t* section, const wchar_t* key) {
    return doc.GetString(section, key, L"<missing>");
}

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

// An imported theme in its own folder, loaded as the Import Theme page loads it.
struct ChosenTheme {
    explicit ChosenTheme(const std::string& text) {
        dir.Write(L"chosen.skin", text);
        doc.Load(dir.File(L"chosen.skin"));
    }
    TempFolder dir;
    IniDocument doc;
};

} // namespace

TEST(ThemeImport, ThemeWithoutSoundsLeavesNoSoundsSection) {
    IniDocument edited = ThemeText("[Sounds]\nStart=a.wav\n[Settings]\nTheme File=x\n");
    ChosenTheme chosen("[Skin Info]\nName=New\n[Topbar]\nMode=tiled\n");
    EXPECT_EQ(ImportTheme(edited, chosen.doc, kColors), ImportedAs::CurrentFormat);
    EXPECT_FALSE(edited.HasSection(L"Sounds"));
    EXPECT_EQ(Value(edited, L"Settings", L"Theme File"), L"x");
    EXPECT_EQ(Value(edited, L"Topbar", L"Mode"), L"tiled");
}

TEST(ThemeImport, EveryAppearanceSectionIsReplaced) {
    std::string text;
    for (const wchar_t* name : kAppearanceSections)
        text += "[" + Narrow(name) + "]\nOld=1\n";
    IniDocument edited = ThemeText(text + "[Colors]\nWindow=5\n");
    ChosenTheme chosen("[Skin Info]\nName=New\n");
    ImportCurrentFormat(edited, chosen.doc);
    EXPECT_EQ(SectionNames(edited), (Lines{L"Colors", L"Skin Info"}));
}

TEST(ThemeImport, ListedNotificationSectionsGoAndUnlistedStay) {
    IniDocument edited =
        ThemeText("[Custom Notifications]\n0=Mail\n1=Phone\n3=Late\n[Notify.Mail]\nNormal=m\n"
                  "[Notify.Phone]\nNormal=p\n[Notify.Late]\nNormal=l\n[Notify.Other]\nNormal=o\n");
    ChosenTheme chosen("[Skin Info]\nName=New\n");
    ImportCurrentFormat(edited, chosen.doc);
    EXPECT_EQ(SectionNames(edited), (Lines{L"Notify.Late", L"Notify.Other", L"Skin Info"}));
}

TEST(ThemeImport, ImportedNotificationsComeFromTheChosenTheme) {
    IniDocument edited = ThemeText("[Custom Notifications]\n0=Mail\n[Notify.Mail]\nNormal=m\n");
    ChosenTheme chosen(
        "[Skin Info]\nName=New\n[Custom Notifications]\n0=Fax\n[Notify.Fax]\nNormal=\\f.bmp\n");
    ImportCurrentFormat(edited, chosen.doc);
    EXPECT_FALSE(edited.HasSection(L"Notify.Mail"));
    EXPECT_EQ(SectionLines(edited, L"Custom Notifications"), (Lines{L"0=Fax"}));
    EXPECT_EQ(Value(edited, L"Notify.Fax", L"Normal"), L"\\f.bmp");
}

TEST(ThemeImport, NotificationListEndsAtTheFirstMissingOrEmptyKey) {
    EXPECT_EQ(CustomNotificationNames(ThemeText("[Custom Notifications]\n0=A\n1=B\n2=\n3=C\n")),
              (Lines{L"A", L"B"}));
    EXPECT_EQ(CustomNotificationNames(ThemeText("[Custom Notifications]\n1=B\n")), Lines{});
    EXPECT_EQ(CustomNotificationNames(ThemeText("[Custom Notifications]\n1=B\n0=A\n0=Z\n")),
              (Lines{L"A", L"B"}));
}

TEST(ThemeImport, BareFileNameBecomesTheThemeFolderPathWhenTheFileIsThere) {
    IniDocument edited;
    ChosenTheme chosen("[Skin Info]\nName=New\n[Topbar]\nPortrait=bar.bmp\nLandscape=gone.bmp\n");
    chosen.dir.Write(L"bar.bmp", "BM");
    ImportCurrentFormat(edited, chosen.doc);
    EXPECT_EQ(Value(edited, L"Topbar", L"Portrait"), chosen.dir.File(L"bar.bmp"));
    EXPECT_EQ(Value(edited, L"Topbar", L"Landscape"), L"gone.bmp");
}

TEST(ThemeImport, FileWithoutSkinInfoIsConverted) {
    IniDocument edited = ThemeText("[Sounds]\nStart=a.wav\n");
    ChosenTheme chosen("Logo=logo.bmp\nBGMode=solid\n");
    EXPECT_EQ(ImportTheme(edited, chosen.doc, kColors), ImportedAs::OlderFormat);
    EXPECT_EQ(Value(edited, L"Button Images", L"Start Menu Normal"), chosen.dir.File(L"logo.bmp"));
    EXPECT_EQ(Value(edited, L"Topbar", L"Solid Color"), L"3");
    EXPECT_FALSE(edited.HasSection(L"Sounds"));
}

TEST(ThemeImport, MissingFileIsConvertedAsAnEmptyOldTheme) {
    TempFolder dir;
    IniDocument chosen;
    EXPECT_FALSE(chosen.Load(dir.File(L"none.skin")));
    IniDocument edited = ThemeText("[Colors]\nWindow=5\n");
    EXPECT_EQ(ImportTheme(edited, chosen, kColors), ImportedAs::OlderFormat);
    EXPECT_EQ(Value(edited, L"Topbar", L"Mode"), L"Scaled");
    EXPECT_EQ(Value(edited, L"Colors", L"Window"), L"5");
}

TEST(ThemeImport, TenThousandNotificationsAreRemovedInOnePass) {
    std::string text = "[Custom Notifications]\n";
    std::string sections;
    for (int i = 0; i < 10000; ++i) {
        text += std::to_string(i) + "=N" + std::to_string(i) + "\n";
        sections += "[Notify.N" + std::to_string(i) + "]\nNormal=x\n";
    }
    IniDocument edited = ThemeText(text + sections + "[Keep]\nk=v\n");
    ChosenTheme chosen("[Skin Info]\nName=New\n");
    ImportCurrentFormat(edited, chosen.doc);
    EXPECT_EQ(SectionNames(edited), (Lines{L"Keep", L"Skin Info"}));
}

TEST(ThemeExport, FolderIsThePathUpToItsLastBackslash) {
    EXPECT_EQ(ExportFolder(L"\\Themes\\Mine\\mine.skin"), L"\\Themes\\Mine\\");
    EXPECT_EQ(ExportFolder(L"C:\\mine.skin"), L"C:\\");
    EXPECT_EQ(ExportFolder(L"mine.skin"), L"\\");
}

TEST(ThemeExport, ImagesInTheExportFolderAreWrittenAsBareNames) {
    TempFolder dir;
    TempFolder elsewhere;
    dir.Write(L"bar.bmp", "BM");
    elsewhere.Write(L"far.bmp", "BM");
    IniDocument exported;
    exported.Load(dir.File(L"mine.skin"));
    exported.SetString(L"Topbar", L"Portrait", dir.File(L"bar.bmp").c_str());
    exported.SetString(L"Topbar", L"Landscape", elsewhere.File(L"far.bmp").c_str());
    exported.SetString(L"Topbar", L"Other", dir.File(L"missing.bmp").c_str());
    FinishExport(exported, IniDocument());
    EXPECT_EQ(Value(exported, L"Topbar", L"Portrait"), L"bar.bmp");
    EXPECT_EQ(Value(exported, L"Topbar", L"Landscape"), elsewhere.File(L"far.bmp"));
    EXPECT_EQ(Value(exported, L"Topbar", L"Other"), dir.File(L"missing.bmp"));
}

TEST(ThemeExport, ExportingOverAnExistingFileKeepsKeysNoPageWrites) {
    TempFolder dir;
    dir.Write(L"mine.skin", "[Skin Info]\nName=Old\nNotes=kept notes\n[Extra]\nk=v\n");
    IniDocument exported;
    ASSERT_TRUE(exported.Load(dir.File(L"mine.skin")));
    exported.SetString(L"Skin Info", L"Name", L"New");
    FinishExport(exported, IniDocument());
    ASSERT_TRUE(exported.Save());
    IniDocument reread(dir.File(L"mine.skin").c_str());
    EXPECT_EQ(SectionLines(reread, L"Skin Info"), (Lines{L"Name=New", L"Notes=kept notes"}));
    EXPECT_EQ(SectionLines(reread, L"Extra"), (Lines{L"k=v"}));
}

TEST(ThemeExport, TaskPanelIsCopiedInStoredOrderAndTheEditedThemeStaysAsItWas) {
    const IniDocument edited = ThemeText("[Task Panel]\nz=1\na=2\nm=3\n[Topbar]\nMode=tiled\n");
    const std::string before = edited.Serialize();
    IniDocument exported = ThemeText("[Topbar]\nMode=color\n");
    FinishExport(exported, edited);
    EXPECT_EQ(SectionLines(exported, L"Task Panel"), (Lines{L"z=1", L"a=2", L"m=3"}));
    EXPECT_EQ(Value(exported, L"Topbar", L"Mode"), L"color");
    EXPECT_EQ(edited.Serialize(), before);
}
