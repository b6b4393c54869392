// The values of the theme editor's pages with controls of their own: their keys, defaults and
// save order, the custom notification list, and which part of a sound event's text is a file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/control_path_keys.h"
#include "pages/appearance/notification_list.h"
#include "pages/appearance/sound_event_file.h"
#include "temp_folder.h"
#include "theme_test_text.h"

using namespace cv2;

namespace {

// Device colours that say which index was asked for.
class IndexColors : public DeviceColors {
  public:
    ColorRef SystemColor(int index) const override {
        return 0x00100000u + static_cast<ColorRef>(index);
    }
    ColorRef ThemeColor(int index) const override {
        return 0x00200000u + static_cast<ColorRef>(index);
    }
};

// The keys of `section` in stored order.
std::vector<std::wstring> KeysOf(const IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> keys;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        keys.push_back(e.first);
    return keys;
}

// A fresh document with `section` saved from defaults.
IniDocument SavedDefaults(const SettingSection& section) {
    SettingValues values(section);
    values.Load(IniDocument(), IndexColors());
    IniDocument doc;
    values.Save(doc);
    return doc;
}

IniDocument Parsed(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

} // namespace

TEST(AppButtonsValues, FreshThemeSavesMarginsThreeAndZeroAndWhitePressedColor) {
    const IniDocument doc = SavedDefaults(kAppButtonsSection);
    EXPECT_EQ(doc.GetString(L"Buttons", L"left", L"-"), L"3");
    EXPECT_EQ(doc.GetString(L"Buttons", L"right", L"-"), L"3");
    EXPECT_EQ(doc.GetString(L"Buttons", L"top", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"bottom", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Pressed Color", L"-"), L"16777215");
}

TEST(AppButtonsValues, KeysAreWrittenImagesThenMarginsThenColoursThenFont) {
    const std::vector<std::wstring> expected = {
        L"normal", L"pressed", L"disabled", L"focused",       L"left",
        L"right",  L"top",     L"bottom",   L"Pressed Color", L"Disabled Color",
        L"Name",   L"Size",    L"Color",    L"Shadow",        L"Style"};
    EXPECT_EQ(KeysOf(SavedDefaults(kAppButtonsSection), L"Buttons"), expected);
}

TEST(AppButtonsValues, DisabledColourDefaultsToTheSystemGreyTextColour) {
    const IniDocument doc = SavedDefaults(kAppButtonsSection);
    EXPECT_EQ(doc.GetString(L"Buttons", L"Disabled Color", L"-"), std::to_wstring(0x00100000 + 17));
}

TEST(AppButtonsValues, FontDefaultsToEightPointBoldBlackTahoma) {
    const IniDocument doc = SavedDefaults(kAppButtonsSection);
    EXPECT_EQ(doc.GetString(L"Buttons", L"Name", L"-"), L"Tahoma");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Size", L"-"), L"8");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Color", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Style", L"-"), L"bold");
}

TEST(AppButtonsValues, AnEmptyMarginStoresZero) {
    SettingValues values(kAppButtonsSection);
    values.Load(IniDocument(), IndexColors());
    values.SetText(kAppTop, L"");
    values.SetText(kAppLeft, L"abc");
    IniDocument doc;
    values.Save(doc);
    EXPECT_EQ(doc.GetString(L"Buttons", L"top", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"left", L"-"), L"0");
}

TEST(AppButtonsValues, APathLongerThan259CharactersIsCut) {
    const std::string longPath(300, 'p');
    SettingValues values(kAppButtonsSection);
    values.Load(Parsed("[Buttons]\nfocused=" + longPath + "\n"), IndexColors());
    EXPECT_EQ(values.Text(kAppFocused).size(), 259u);
}

TEST(AppButtonsValues, KeysAreLowerCaseAndReadWhateverTheirCase) {
    SettingValues values(kAppButtonsSection);
    values.Load(Parsed("[Buttons]\nNORMAL=n.png\nLeft=7\n"), IndexColors());
    EXPECT_EQ(values.Text(kAppNormal), L"n.png");
    EXPECT_EQ(values.Int(kAppLeft), 7);
    EXPECT_STREQ(kAppButtonsSection.keys[kAppNormal].key, L"normal");
}

TEST(SystemColorValues, ThemeWithoutColorsSavesNineteenDefaultsActiveCaptionAs10027008) {
    const IniDocument doc = SavedDefaults(kSystemColorsSection);
    const std::vector<std::wstring> keys = KeysOf(doc, L"Colors");
    ASSERT_EQ(keys.size(), 19u);
    EXPECT_EQ(doc.GetString(L"Colors", L"Active Caption", L"-"), L"10027008");
    EXPECT_EQ(doc.GetString(L"Colors", L"Button Face", L"-"), std::to_wstring(0x00C0CCD9));
    EXPECT_EQ(doc.GetString(L"Colors", L"Tooltip Background", L"-"), std::to_wstring(0x00CCFFFF));
    EXPECT_EQ(keys.front(), L"Active Caption");
    EXPECT_EQ(keys.back(), L"Static Text");
}

TEST(SystemColorValues, WindowFrameIsWrittenWithoutASpace) {
    const std::vector<std::wstring> keys = KeysOf(SavedDefaults(kSystemColorsSection), L"Colors");
    ASSERT_EQ(keys.size(), 19u);
    EXPECT_EQ(keys[3], L"WindowFrame");
}

TEST(SystemColorValues, DisplayNamesRunFromFifteenInListOrder) {
    for (size_t row = 0; row < kSystemColorCount; ++row)
        EXPECT_EQ(static_cast<unsigned>(kSystemColorNames[row]), 15 + row);
    EXPECT_STREQ(DefaultText(kSystemColorNames[3]), L"WindowFrame");
}

TEST(TaskbarFontValues, ThemeWithoutSmallClockFontLoadsSixPointWhiteShadowedTahomaAndSavesItBack) {
    SettingValues values(kSmallClockFontSection);
    values.Load(Parsed("[Title Font]\nSize=12\n"), IndexColors());
    EXPECT_EQ(values.Font().face, L"Tahoma");
    EXPECT_EQ(values.Font().size, 6);
    EXPECT_EQ(values.Font().color, 0x00FFFFFFu);
    EXPECT_EQ(values.Font().style, static_cast<uint32_t>(kFontShadow));
    IniDocument doc;
    values.Save(doc);
    EXPECT_EQ(doc.GetString(L"Small Clock Font", L"Size", L"-"), L"6");
    EXPECT_EQ(doc.GetString(L"Small Clock Font", L"Color", L"-"), L"16777215");
    EXPECT_EQ(doc.GetString(L"Small Clock Font", L"Style", L"-"), L"shadow");
}

TEST(TaskbarFontValues, TitleAndClockFontsAreEightPointWhiteShadowed) {
    for (const SettingSection* section : {&kTitleFontSection, &kClockFontSection}) {
        const IniDocument doc = SavedDefaults(*section);
        EXPECT_EQ(doc.GetString(section->name, L"Name", L"-"), L"Tahoma");
        EXPECT_EQ(doc.GetString(section->name, L"Size", L"-"), L"8");
        EXPECT_EQ(doc.GetString(section->name, L"Color", L"-"), L"16777215");
        EXPECT_EQ(doc.GetString(section->name, L"Shadow", L"-"), L"0");
        EXPECT_EQ(doc.GetString(section->name, L"Style", L"-"), L"shadow");
    }
}

TEST(SoundEventValues, ThemeWithoutSoundsSavesAllThirteenKeysEmpty) {
    const IniDocument doc = SavedDefaults(kSoundsSection);
    const std::vector<std::wstring> expected = {L"Close",
                                                L"Maximize",
                                                L"MenuCommand",
                                                L"MenuPopup",
                                                L"Minimize",
                                                L"Open",
                                                L"Startup",
                                                L"SystemAsterisk",
                                                L"SystemDefault",
                                                L"SystemExclamation",
                                                L"SystemHand",
                                                L"SystemQuestion",
                                                L"NotificationReminder"};
    EXPECT_EQ(KeysOf(doc, L"Sounds"), expected);
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(L"Sounds"))
        EXPECT_EQ(std::wstring(e.second), L"");
}

TEST(SoundEventValues, NamesAreNumberedFrom169AndTheReminderIs298) {
    for (size_t row = 0; row < 12; ++row)
        EXPECT_EQ(static_cast<unsigned>(kSoundEventNames[row]), 169 + row);
    EXPECT_EQ(static_cast<unsigned>(kSoundEventNames[12]), 298u);
    EXPECT_STREQ(DefaultText(kSoundEventNames[12]), L"Notification Reminder");
}

TEST(SoundEventFile, ForAPathWithACommaOnlyThePartBeforeTheCommaIsTheFile) {
    EXPECT_EQ(SoundFilePart(L"\\Windows\\alarm.wav,2"), L"\\Windows\\alarm.wav");
}

TEST(SoundEventFile, ABarComesBeforeAnyComma) {
    EXPECT_EQ(SoundFilePart(L"a,b.wav|c,d"), L"a,b.wav");
    EXPECT_EQ(SoundFilePart(L"plain.wav"), L"plain.wav");
}

TEST(SoundEventFile, OnlyAnExistingFileIsPlayable) {
    cv2test::TempFolder dir;
    dir.Write(L"ding.wav", "RIFF");
    dir.MakeFolder(L"folder");
    EXPECT_TRUE(IsPlayableSound(dir.File(L"ding.wav")));
    EXPECT_TRUE(IsPlayableSound(dir.File(L"ding.wav") + L",loop"));
    EXPECT_FALSE(IsPlayableSound(dir.File(L"folder")));
    EXPECT_FALSE(IsPlayableSound(dir.File(L"missing.wav")));
    EXPECT_FALSE(IsPlayableSound(L""));
    EXPECT_FALSE(IsPlayableSound(L","));
}

TEST(CustomNotifications, AListWithAGapIsReadOnlyUpToTheGap) {
    const IniDocument doc = Parsed("[Custom Notifications]\n0=Alarm\n2=Later\n"
                                   "[Notify.Alarm]\nNormal=a.png\nPressed=b.png\n");
    const std::vector<CustomNotification> entries = ReadCustomNotifications(doc);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].title, L"Alarm");
    EXPECT_EQ(entries[0].normalImage, L"a.png");
    EXPECT_EQ(entries[0].pressedImage, L"b.png");
}

TEST(CustomNotifications, SavingOverAGapDeletesListedSectionsAndKeepsTheOneBeyondTheGap) {
    IniDocument doc = Parsed("[Custom Notifications]\n0=Alarm\n2=Later\n"
                             "[Notify.Alarm]\nNormal=a.png\n[Notify.Later]\nNormal=l.png\n");
    WriteCustomNotifications(doc, ReadCustomNotifications(doc));
    EXPECT_EQ(KeysOf(doc, L"Custom Notifications"), std::vector<std::wstring>{L"0"});
    EXPECT_EQ(doc.GetString(L"Notify.Alarm", L"Normal", L"-"), L"a.png");
    EXPECT_EQ(doc.GetString(L"Notify.Later", L"Normal", L"-"), L"l.png");
}

TEST(CustomNotifications, TwoWithTheSameTitleShareOneSectionAndTheLaterImagesWin) {
    IniDocument doc;
    WriteCustomNotifications(
        doc, {{L"Same", L"first.png", L"first-p.png"}, {L"Same", L"second.png", L"second-p.png"}});
    EXPECT_EQ(doc.GetString(L"Custom Notifications", L"0", L"-"), L"Same");
    EXPECT_EQ(doc.GetString(L"Custom Notifications", L"1", L"-"), L"Same");
    EXPECT_EQ(KeysOf(doc, L"Notify.Same"), (std::vector<std::wstring>{L"Normal", L"Pressed"}));
    EXPECT_EQ(doc.GetString(L"Notify.Same", L"Normal", L"-"), L"second.png");
    EXPECT_EQ(doc.GetString(L"Notify.Same", L"Pressed", L"-"), L"second-p.png");
}

TEST(CustomNotifications, DeletingEveryEntryAndSavingLeavesNoListAndNoOldSections) {
    IniDocument doc = Parsed("[Custom Notifications]\n0=Alarm\n1=Mail\n"
                             "[Notify.Alarm]\nNormal=a.png\n[Notify.Mail]\nNormal=m.png\n"
                             "[Other]\nKept=1\n");
    WriteCustomNotifications(doc, {});
    EXPECT_FALSE(doc.HasSection(L"Custom Notifications"));
    EXPECT_FALSE(doc.HasSection(L"Notify.Alarm"));
    EXPECT_FALSE(doc.HasSection(L"Notify.Mail"));
    EXPECT_TRUE(doc.HasSection(L"Other"));
}

TEST(CustomNotifications, EachEntryWritesItsPicturesThenItsNumber) {
    IniDocument doc;
    WriteCustomNotifications(doc, {{L"One", L"1.png", L"1p.png"}, {L"Two", L"2.png", L""}});
    EXPECT_EQ(cv2test::SectionNames(doc),
              (cv2test::Lines{L"Notify.One", L"Custom Notifications", L"Notify.Two"}));
    EXPECT_EQ(cv2test::SectionLines(doc, L"Custom Notifications"),
              (cv2test::Lines{L"0=One", L"1=Two"}));
    EXPECT_EQ(cv2test::SectionLines(doc, L"Notify.Two"),
              (cv2test::Lines{L"Normal=2.png", L"Pressed="}));
}

namespace {

// What a file written with `entries` gives when it is read again.
std::vector<CustomNotification> RoundTrip(const std::vector<CustomNotification>& entries,
                                          IniDocument& reread) {
    IniDocument doc;
    doc.SetString(L"Before", L"Key", L"1");
    WriteCustomNotifications(doc, entries);
    doc.SetString(L"After", L"Key", L"2");
    reread = Parsed(doc.Serialize());
    return ReadCustomNotifications(reread);
}

} // namespace

TEST(CustomNotifications, ATitleWithAnEqualsSignComesBackWhole) {
    IniDocument reread;
    const auto entries = RoundTrip({{L"Save=Now", L"n.png", L"p.png"}}, reread);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].title, L"Save=Now");
    EXPECT_EQ(entries[0].normalImage, L"n.png");
    EXPECT_EQ(reread.GetString(L"After", L"Key", L"-"), L"2");
}

TEST(CustomNotifications, ATitleWithAClosingBracketComesBackWithItsPictures) {
    IniDocument reread;
    const auto entries =
        RoundTrip({{L"Call [1] missed", L"n.png", L"p.png"}, {L"Mail", L"m.png", L""}}, reread);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].title, L"Call [1] missed");
    EXPECT_EQ(entries[0].normalImage, L"n.png");
    EXPECT_EQ(entries[0].pressedImage, L"p.png");
    EXPECT_EQ(entries[1].normalImage, L"m.png");
    EXPECT_EQ(reread.GetString(L"Before", L"Key", L"-"), L"1");
    EXPECT_EQ(reread.GetString(L"After", L"Key", L"-"), L"2");
}

TEST(CustomNotifications, SavingATitleWithAClosingBracketAgainAndAgainLeavesOneSection) {
    IniDocument doc;
    WriteCustomNotifications(doc, {{L"a]b", L"n.png", L"p.png"}});
    for (int round = 0; round < 3; ++round) {
        doc = Parsed(doc.Serialize());
        WriteCustomNotifications(doc, ReadCustomNotifications(doc));
    }
    const IniDocument reread = Parsed(doc.Serialize());
    EXPECT_EQ(cv2test::SectionNames(reread),
              (cv2test::Lines{L"Notify.a", L"Custom Notifications"}));
    EXPECT_EQ(ReadCustomNotifications(reread)[0].normalImage, L"n.png");
}

TEST(CustomNotifications, ATitleOf300CharactersIsCutTo259) {
    IniDocument reread;
    const auto entries = RoundTrip({{std::wstring(300, L't'), L"n.png", L"p.png"}}, reread);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].title, std::wstring(259, L't'));
    EXPECT_EQ(entries[0].normalImage, L"n.png");
    EXPECT_EQ(reread.GetString(L"After", L"Key", L"-"), L"2");
}

TEST(CustomNotifications, ImagePathsAreCutTo259Characters) {
    IniDocument reread;
    const auto entries = RoundTrip({{L"Long", std::wstring(400, L'n'), L"p.png"}}, reread);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].normalImage.size(), 259u);
}

TEST(ControlPathKeys, NameEveryPictureAndSoundKeyFromThePagesTables) {
    std::vector<std::wstring> keys;
    for (const PathKey& k : ControlPathKeys())
        keys.push_back(std::wstring(k.section) + L"/" + k.key);
    const std::vector<std::wstring> expected = {L"Buttons/normal",
                                                L"Buttons/pressed",
                                                L"Buttons/disabled",
                                                L"Buttons/focused",
                                                L"Sounds/Close",
                                                L"Sounds/Maximize",
                                                L"Sounds/MenuCommand",
                                                L"Sounds/MenuPopup",
                                                L"Sounds/Minimize",
                                                L"Sounds/Open",
                                                L"Sounds/Startup",
                                                L"Sounds/SystemAsterisk",
                                                L"Sounds/SystemDefault",
                                                L"Sounds/SystemExclamation",
                                                L"Sounds/SystemHand",
                                                L"Sounds/SystemQuestion",
                                                L"Sounds/NotificationReminder",
                                                L"Notify.*/Normal",
                                                L"Notify.*/Pressed"};
    EXPECT_EQ(keys, expected);
}
