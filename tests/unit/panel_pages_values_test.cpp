// The sections of the pages that borrow the image panel: bar backgrounds, start menu skin,
// taskbar buttons, check boxes and the volume bubble: their keys in the order written, their
// defaults, mode words and the path keys gathered from them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "font_ini_text.h"
#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/image_pair_values.h"
#include "pages/appearance/panel_path_keys.h"
#include "pages/appearance/start_menu_skin_values.h"
#include "pages/appearance/taskbar_buttons_values.h"

using namespace cv2;
using cv2test::ParsedIni;

namespace {

class FixedColors : public DeviceColors {
  public:
    ColorRef SystemColor(int index) const override { return 0x00010000u + index; }
    ColorRef ThemeColor(int index) const override { return 0x00020000u + index; }
};

std::vector<std::wstring> KeysOf(const IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> keys;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        keys.push_back(e.first);
    return keys;
}

std::vector<std::wstring> LinesOf(const IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> lines;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        lines.push_back(std::wstring(e.first) + L"=" + e.second);
    return lines;
}

// What a section saves after loading `text`.
IniDocument Resaved(const SettingSection& section, const std::string& text) {
    SettingValues values(section);
    values.Load(ParsedIni(text), FixedColors());
    IniDocument out;
    values.Save(out);
    return out;
}

const std::vector<std::wstring> kBackgroundKeys = {
    L"Portrait",    L"Landscape",        L"Mode", L"Solid Color", L"Left Color",
    L"Right Color", L"Use Theme Colors",
};
const std::vector<std::wstring> kFontKeys = {L"Name", L"Size", L"Color", L"Shadow", L"Style"};

std::vector<std::wstring> Joined(std::vector<std::wstring> a, const std::vector<std::wstring>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

} // namespace

TEST(BarBackgroundValues, TaskbarBackgroundWritesTheSevenBackgroundKeysInOrder) {
    EXPECT_EQ(KeysOf(Resaved(kTopbarSection, ""), L"Topbar"), kBackgroundKeys);
}

TEST(BarBackgroundValues, TodayMenubarWritesDisplayNewTextThenItsFont) {
    const auto expected = Joined(Joined(kBackgroundKeys, {L"Display New Text"}), kFontKeys);
    EXPECT_EQ(KeysOf(Resaved(kTodayMenubarSection, ""), L"Today Menubar"), expected);
}

TEST(BarBackgroundValues, ApplicationMenubarWritesButtonKeysThenItsFont) {
    const auto expected = Joined(Joined(kBackgroundKeys, {L"Pressed Color", L"Normal", L"Pressed",
                                                          L"Disabled", L"Left", L"Right"}),
                                 kFontKeys);
    EXPECT_EQ(KeysOf(Resaved(kMenubarSection, ""), L"Menubar"), expected);
}

TEST(BarBackgroundValues, SoftKeysWritesItsSixImagesAfterTheBackground) {
    const auto expected =
        Joined(kBackgroundKeys, {L"Left Button", L"Right Button", L"Left Pressed", L"Right Pressed",
                                 L"Left Disabled", L"Right Disabled"});
    EXPECT_EQ(KeysOf(Resaved(kSoftKeySection, ""), L"SoftKey"), expected);
}

TEST(BarBackgroundValues, MissingSectionTakesDeviceColoursAndColorMode) {
    const std::vector<std::wstring> expected = {
        L"Portrait=",
        L"Landscape=",
        L"Mode=color",
        L"Solid Color=" + std::to_wstring(0x00010002),
        L"Left Color=" + std::to_wstring(0x00020000),
        L"Right Color=" + std::to_wstring(0x00020001),
        L"Use Theme Colors=TRUE",
    };
    EXPECT_EQ(LinesOf(Resaved(kTopbarSection, ""), L"Topbar"), expected);
}

TEST(BarBackgroundValues, ModeTiledWithCapitalTLoadsAsTiledAndSavesLowerCase) {
    SettingValues values(kTopbarSection);
    values.Load(ParsedIni("[Topbar]\nMode=Tiled\n"), FixedColors());
    EXPECT_EQ(FillOf(values).mode, kModeTiled);
    IniDocument out;
    values.Save(out);
    EXPECT_EQ(out.GetString(L"Topbar", L"Mode", L"?"), L"tiled");
}

TEST(BarBackgroundValues, ModeOutsideTheFiveWordsLoadsAsColourFillAndSavesColor) {
    SettingValues values(kMenubarSection);
    values.Load(ParsedIni("[Menubar]\nMode=stretched\n"), FixedColors());
    EXPECT_EQ(FillOf(values).mode, kModeColor);
    IniDocument out;
    values.Save(out);
    EXPECT_EQ(out.GetString(L"Menubar", L"Mode", L"?"), L"color");
}

TEST(BarBackgroundValues, EveryModeNumberIsStoredAsItsWord) {
    const wchar_t* const words[] = {L"scaled", L"tiled", L"color", L"gradient", L"none"};
    SettingValues values(kTopbarSection);
    for (int mode = 0; mode < 5; ++mode) {
        BackgroundFill fill;
        fill.mode = mode;
        SetFill(values, fill);
        EXPECT_EQ(values.Text(kRowMode), words[mode]);
        EXPECT_EQ(FillOf(values).mode, mode);
    }
}

TEST(BarBackgroundValues, FillRoundTripsItsColoursAndFlag) {
    SettingValues values(kTodayMenubarSection);
    values.Reset(FixedColors());
    BackgroundFill fill;
    fill.mode = kModeGradient;
    fill.solidColor = 0x123456;
    fill.leftColor = 0x010203;
    fill.rightColor = 0x0A0B0C;
    fill.useThemeColors = 0;
    SetFill(values, fill);
    const BackgroundFill back = FillOf(values);
    EXPECT_EQ(back.mode, kModeGradient);
    EXPECT_EQ(back.solidColor, 0x123456u);
    EXPECT_EQ(back.leftColor, 0x010203u);
    EXPECT_EQ(back.rightColor, 0x0A0B0Cu);
    EXPECT_EQ(back.useThemeColors, 0u);
    EXPECT_EQ(values.Text(kRowThemeColors), L"FALSE");
}

TEST(BarBackgroundValues, ApplicationMenubarWithoutMarginsSavesBothAsThree) {
    const IniDocument out = Resaved(kMenubarSection, "[Menubar]\nNormal=n.png\n");
    EXPECT_EQ(out.GetString(L"Menubar", L"Left", L"?"), L"3");
    EXPECT_EQ(out.GetString(L"Menubar", L"Right", L"?"), L"3");
    EXPECT_EQ(out.GetString(L"Menubar", L"Normal", L"?"), L"n.png");
}

TEST(BarBackgroundValues, BarFontsDefaultToBoldBlackTahomaOfEightPoints) {
    const IniDocument out = Resaved(kTodayMenubarSection, "");
    EXPECT_EQ(out.GetString(L"Today Menubar", L"Name", L"?"), L"Tahoma");
    EXPECT_EQ(out.GetString(L"Today Menubar", L"Size", L"?"), L"8");
    EXPECT_EQ(out.GetString(L"Today Menubar", L"Color", L"?"), L"0");
    EXPECT_EQ(out.GetString(L"Today Menubar", L"Style", L"?"), L"bold");
}

TEST(BarBackgroundValues, PathLongerThan259CharactersIsCut) {
    const std::string longPath(400, 'p');
    const IniDocument out = Resaved(kTopbarSection, "[Topbar]\nPortrait=" + longPath + "\n");
    EXPECT_EQ(out.GetString(L"Topbar", L"Portrait", L"").size(), 259u);
}

TEST(BarBackgroundValues, SoftKeyRowsFollowTheStoredOrder) {
    EXPECT_STREQ(kSoftKeySection.keys[SoftKeyRow(0, 0)].key, L"Left Button");
    EXPECT_STREQ(kSoftKeySection.keys[SoftKeyRow(1, 0)].key, L"Right Button");
    EXPECT_STREQ(kSoftKeySection.keys[SoftKeyRow(0, 1)].key, L"Left Pressed");
    EXPECT_STREQ(kSoftKeySection.keys[SoftKeyRow(1, 2)].key, L"Right Disabled");
}

TEST(StartMenuSkinValues, WritesEveryKeyInTheDocumentedOrder) {
    const std::vector<std::wstring> expected =
        Joined({L"Start Menu Picture", L"Start Menu Picture 2", L"Program Group", L"Settings Group",
                L"Find Icon", L"Help Icon", L"Submenu Arrow", L"Left Margin", L"Right Margin",
                L"Sublevel Left Margin", L"Sublevel Right Margin", L"Use Colors", L"BKColor",
                L"HighColor"},
               kFontKeys);
    EXPECT_EQ(KeysOf(Resaved(kStartMenuSkinSection, ""), L"Start Menu Skin"), expected);
}

TEST(StartMenuSkinValues, ThemeWithoutTheSectionSavesUseColorsFalseAndZeroMargins) {
    const IniDocument out = Resaved(kStartMenuSkinSection, "");
    EXPECT_EQ(out.GetString(L"Start Menu Skin", L"Use Colors", L"?"), L"FALSE");
    for (const wchar_t* key :
         {L"Left Margin", L"Right Margin", L"Sublevel Left Margin", L"Sublevel Right Margin"})
        EXPECT_EQ(out.GetString(L"Start Menu Skin", key, L"?"), L"0") << key;
    EXPECT_EQ(out.GetString(L"Start Menu Skin", L"BKColor", L"?"), std::to_wstring(0x00010004));
    EXPECT_EQ(out.GetString(L"Start Menu Skin", L"HighColor", L"?"), std::to_wstring(0x0001000D));
}

TEST(StartMenuSkinValues, MarginsThatAreNotNumbersReadAsZero) {
    const IniDocument out =
        Resaved(kStartMenuSkinSection, "[Start Menu Skin]\nLeft Margin=abc\nRight Margin=7\n");
    EXPECT_EQ(out.GetString(L"Start Menu Skin", L"Left Margin", L"?"), L"0");
    EXPECT_EQ(out.GetString(L"Start Menu Skin", L"Right Margin", L"?"), L"7");
}

TEST(StartMenuSkinValues, TheDialogsCopyLeavesThePicturesAlone) {
    SettingValues values(kStartMenuSkinSection);
    values.Load(ParsedIni("[Start Menu Skin]\nStart Menu Picture=a.png\nFind Icon=f.png\n"),
                FixedColors());
    StartMenuLook look = LookOf(values);
    EXPECT_EQ(look.icons[2], L"f.png");
    look.icons[4] = L"arrow.png";
    look.margins[3] = 9;
    look.useColors = true;
    SetLook(values, look);
    EXPECT_EQ(values.Text(kRowFirstLevelPicture), L"a.png");
    EXPECT_EQ(values.Text(kRowSubmenuArrow), L"arrow.png");
    EXPECT_EQ(values.Int(kRowFirstMargin + 3), 9);
    EXPECT_TRUE(values.Bool(kRowUseColors));
}

TEST(StartMenuLayout, PortraitScreensOpenThePortraitLayout) {
    EXPECT_EQ(StartMenuLayout(240, 320), DialogLayout::Portrait);
    EXPECT_EQ(StartMenuLayout(480, 640), DialogLayout::Portrait);
}

TEST(StartMenuLayout, LandscapeScreensOpenTheLandscapeLayout) {
    EXPECT_EQ(StartMenuLayout(320, 240), DialogLayout::Landscape);
    EXPECT_EQ(StartMenuLayout(640, 480), DialogLayout::Landscape);
}

TEST(StartMenuLayout, SquareScreensOpenTheSquareLayout) {
    EXPECT_EQ(StartMenuLayout(240, 240), DialogLayout::Square);
    EXPECT_EQ(StartMenuLayout(480, 480), DialogLayout::Square);
}

TEST(TaskbarButtonsValues, KeyStemsAreKeptAsGivenNotAsShown) {
    const std::vector<std::wstring> stems = {
        L"Start Menu",
        L"Close",
        L"OK",
        L"Notify",
        L"Volume",
        L"Mute",
        L"Vibrate",
        L"Battery/Memory",
        L"Home",
        L"Menu",
        L"Custom1",
        L"Custom2",
        L"Connection",
        L"Disconnect",
        L"Signal Strength",
        L"Signal Connected",
        L"SIP",
    };
    ASSERT_EQ(stems.size(), kBuiltInButtonCount);
    const SettingSection& s = ButtonImagesSection();
    for (size_t row = 0; row < kBuiltInButtonCount; ++row) {
        EXPECT_EQ(s.keys[NormalKeyRow(row)].key, stems[row] + L" Normal");
        EXPECT_EQ(s.keys[PressedKeyRow(row)].key, stems[row] + L" Pressed");
    }
}

TEST(TaskbarButtonsValues, ThemeWithoutButtonImagesSaves34EmptyImagesAndBothFlagsFalse) {
    const IniDocument out = Resaved(ButtonImagesSection(), "");
    const auto entries = out.GetSectionEntries(L"Button Images");
    ASSERT_EQ(entries.size(), 36u);
    for (size_t i = 0; i < 34; ++i)
        EXPECT_STREQ(entries[i].second, L"") << entries[i].first;
    EXPECT_STREQ(entries[34].first, L"Battery/Memory Custom");
    EXPECT_STREQ(entries[34].second, L"FALSE");
    EXPECT_STREQ(entries[35].first, L"Signal Strength Custom");
    EXPECT_STREQ(entries[35].second, L"FALSE");
}

TEST(TaskbarButtonsValues, BatteryHasItsFlagAndSignalRowsShareOne) {
    EXPECT_EQ(CustomFlagRow(7), kBatteryCustomRow);
    EXPECT_EQ(CustomFlagRow(14), kSignalCustomRow);
    EXPECT_EQ(CustomFlagRow(15), kSignalCustomRow);
    for (int row : {0, 6, 8, 13, 16, 17, -1})
        EXPECT_EQ(CustomFlagRow(row), ButtonImagesSection().count) << row;
}

TEST(ImagePairValues, CheckRadioKeepsTheApplicationButtonKeysOfItsSection) {
    IniDocument doc = ParsedIni("[Buttons]\nNormal=b.png\nCheckbox=old.png\n");
    SettingValues values(kCheckRadioSection);
    values.Load(doc, FixedColors());
    values.SetText(1, L"radio.png");
    values.Save(doc);
    const std::vector<std::wstring> expected = {L"Normal=b.png", L"Checkbox=old.png",
                                                L"Radiobutton=radio.png"};
    EXPECT_EQ(LinesOf(doc, L"Buttons"), expected);
}

TEST(ImagePairValues, ThemeWithoutVolumeBubbleSavesAnEmptyImage) {
    const std::vector<std::wstring> expected = {L"Image="};
    EXPECT_EQ(LinesOf(Resaved(kVolumeBubbleSection, ""), L"Volume Bubble"), expected);
}

TEST(PanelPathKeys, ListsEveryPictureKeyOfThePanelPages) {
    const std::vector<PathKey> keys = PanelPathKeys();
    // 2 + 2 + 5 + 8 background and bar pictures, 34 button pictures, 1 bubble, 2 check
    // pictures, 7 start menu pictures.
    EXPECT_EQ(keys.size(), 61u);
    auto has = [&](const wchar_t* section, const wchar_t* key) {
        for (const PathKey& k : keys)
            if (std::wstring(k.section) == section && std::wstring(k.key) == key)
                return true;
        return false;
    };
    EXPECT_TRUE(has(L"Topbar", L"Landscape"));
    EXPECT_TRUE(has(L"Menubar", L"Disabled"));
    EXPECT_TRUE(has(L"SoftKey", L"Right Disabled"));
    EXPECT_TRUE(has(L"Button Images", L"Signal Connected Pressed"));
    EXPECT_TRUE(has(L"Volume Bubble", L"Image"));
    EXPECT_TRUE(has(L"Buttons", L"Radiobutton"));
    EXPECT_TRUE(has(L"Start Menu Skin", L"Submenu Arrow"));
    EXPECT_FALSE(has(L"Menubar", L"Mode"));
}
