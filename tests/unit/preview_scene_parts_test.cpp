// The preview's scene, part by part: the top bar's buttons in the order and visibility the bar
// uses, the clock's text, the start menu, the sample window, the Today menu bar, and which keys
// the scene says it used.
#include <gtest/gtest.h>

#include "preview_scene_support.h"
#include "themes/preview/preview_theme.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Texts = std::vector<std::wstring>;

class PreviewSceneParts : public ::testing::Test, public PreviewSceneFixture {
  protected:
    Texts Buttons() { return Names(Build(), SceneKind::TopBarButton); }
    // A copy of the first element of that kind (an empty one when there is none).
    SceneElement Only(const Scene& scene, SceneKind kind) {
        const SceneElement* e = scene.Find(kind);
        EXPECT_TRUE(e) << static_cast<int>(kind);
        return e ? *e : SceneElement();
    }
};

} // namespace

TEST_F(PreviewSceneParts, DefaultOrderOnADeviceWithoutAPhone) {
    EXPECT_EQ(Buttons(), (Texts{L"Notification", L"Connection", L"Volume", L"Menu",
                                L"Battery/Memory", L"Close"}));
    EXPECT_TRUE(Build().Find(SceneKind::Clock));
}

TEST_F(PreviewSceneParts, DefaultOrderOnADeviceWithAPhoneStartsWithSignalStrength) {
    PreviewDevice device = fakes.Device();
    device.hasPhone = true;
    const Scene scene = BuildScene(request, device);
    EXPECT_EQ(Names(scene, SceneKind::TopBarButton).front(), L"Signal Strength");
}

TEST_F(PreviewSceneParts, ButtonsStandInTheOrderValuesOrderLeftToRight) {
    Config("[Topbar Settings]\nOrder=close,home,clock,volume\n"
           "[General Settings]\nShow Notifications=FALSE\n");
    const Scene scene = Build();
    EXPECT_EQ(Names(scene, SceneKind::TopBarButton), (Texts{L"Close", L"Home", L"Volume"}));
    const SceneElement* home = scene.Find(SceneKind::TopBarButton, L"Home");
    const SceneElement* clock = scene.Find(SceneKind::Clock);
    const SceneElement* volume = scene.Find(SceneKind::TopBarButton, L"Volume");
    EXPECT_LT(home->rect.right, clock->rect.right);
    EXPECT_LE(clock->rect.right, volume->rect.left);
    EXPECT_EQ(volume->rect.right, 240) << "the group ends at the screen's right edge";
}

TEST_F(PreviewSceneParts, UnknownWordsOfTheOrderAreDroppedAndASpacedWordsButtonComesLast) {
    // " home" names no item, but its button is shown (the word is in the value), so the Button
    // Order rules put it after the ordered ones.
    Config("[Topbar Settings]\nOrder=close, home,banana,volume\n"
           "[General Settings]\nShow Notifications=FALSE\n");
    EXPECT_EQ(Buttons(), (Texts{L"Close", L"Volume", L"Home"}));
}

TEST_F(PreviewSceneParts, HiddenNotificationsLeaveTheirButtonOut) {
    Config("[General Settings]\nShow Notifications=FALSE\n");
    EXPECT_EQ(Buttons(), (Texts{L"Connection", L"Volume", L"Menu", L"Battery/Memory", L"Close"}));
}

TEST_F(PreviewSceneParts, SignalStrengthNeedsAPhone) {
    Config("[Topbar Settings]\nOrder=signal,close\n[General Settings]\nShow Notifications=no\n");
    EXPECT_EQ(Buttons(), (Texts{L"Close"}));
}

TEST_F(PreviewSceneParts, PluginButtonsAreNamedPlaceholders) {
    Config("[Topbar Settings]\nOrder=close,weather\n");
    PreviewDevice device = fakes.Device();
    device.pluginButtons.push_back({L"Weather", L"weather", 12, true});
    const Scene scene = BuildScene(request, device);
    const SceneElement* weather = scene.Find(SceneKind::TopBarButton, L"Weather");
    ASSERT_TRUE(weather);
    EXPECT_EQ(weather->fill.kind, FillKind::Placeholder);
}

TEST_F(PreviewSceneParts, ButtonsShowTheirNormalPicture) {
    Theme("[Button Images]\nVolume Normal=vol.bmp\nVolume Pressed=vol_p.bmp\n");
    Picture(L"vol.bmp", 20, 18);
    const Scene scene = Build();
    const SceneElement* volume = scene.Find(SceneKind::TopBarButton, L"Volume");
    EXPECT_EQ(volume->fill.picture, ThemeFile(L"vol.bmp"));
    EXPECT_EQ(volume->rect.Width(), 20);
    EXPECT_EQ(volume->rect.Height(), 18);
    EXPECT_EQ(volume->rect.top, 4) << "centred in the 26-pixel bar";
}

TEST_F(PreviewSceneParts, ButtonWithoutAPictureIsAPlaceholderAsWideAsTheBarIsHigh) {
    const Scene scene = Build();
    const SceneElement* close = scene.Find(SceneKind::TopBarButton, L"Close");
    EXPECT_EQ(close->fill.kind, FillKind::Placeholder);
    EXPECT_EQ(close->fill.picture, L"");
    EXPECT_EQ(close->rect.Width(), 26);
}

TEST_F(PreviewSceneParts, ButtonsThatDoNotFitAreLeftOutFromTheLeft) {
    Theme("[Button Images]\nClose Normal=wide.bmp\nHome Normal=wide.bmp\nMenu Normal=wide.bmp\n");
    Picture(L"wide.bmp", 100, 26);
    Config("[Topbar Settings]\nOrder=home,menu,close\n"
           "[General Settings]\nUse Start Menu=FALSE\nShow Notifications=FALSE\n");
    EXPECT_EQ(Buttons(), (Texts{L"Menu", L"Close"}));
}

TEST_F(PreviewSceneParts, StartButtonAndTitleFollowTheirSwitches) {
    Scene scene = Build();
    EXPECT_TRUE(scene.Find(SceneKind::StartButton));
    EXPECT_TRUE(scene.Find(SceneKind::Title));
    Config("[General Settings]\nUse Start Menu=FALSE\n[Topbar Settings]\nShow Title=no\n");
    scene = Build();
    EXPECT_FALSE(scene.Find(SceneKind::StartButton));
    EXPECT_FALSE(scene.Find(SceneKind::Title));
}

TEST_F(PreviewSceneParts, TitleLiesBetweenTheStartButtonAndTheButtons) {
    const Scene scene = Build();
    const SceneRect title = Only(scene, SceneKind::Title).rect;
    EXPECT_GE(title.left, Only(scene, SceneKind::StartButton).rect.right);
    EXPECT_LE(title.right, scene.All(SceneKind::TopBarButton).front()->rect.left);
    EXPECT_EQ(Only(scene, SceneKind::Title).text.font.color, 0xFFFFFFu);
}

TEST_F(PreviewSceneParts, ClockShowsTheCurrentTimeInTheClocksFormat) {
    Config("[General Settings]\nTime Format=\"HH:mm\"\n");
    Theme("[Clock Font]\nName=Verdana\nSize=9\n");
    const SceneElement clock = Only(Build(), SceneKind::Clock);
    EXPECT_EQ(clock.text.text, L"14:07");
    EXPECT_EQ(clock.text.font.face, L"Verdana");
}

TEST_F(PreviewSceneParts, ClockShowsTheDateWhenAsked) {
    Config("[General Settings]\nTime Format=\"h:mm\"\nShow Date=TRUE\nDate Format=\"d/M\"\n");
    EXPECT_EQ(Only(Build(), SceneKind::Clock).text.text, L"2:07 5/3");
}

TEST_F(PreviewSceneParts, SmallClockUsesTheSmallClockFont) {
    Config("[General Settings]\nNormal Clock=FALSE\nTime Format=\"H:mm\"\n");
    Theme("[Small Clock Font]\nName=Arial\n");
    const SceneElement clock = Only(Build(), SceneKind::Clock);
    EXPECT_EQ(clock.text.font.face, L"Arial");
    EXPECT_EQ(clock.text.font.size, 6);
}

TEST_F(PreviewSceneParts, ClockShowingNothingIsLeftOut) {
    Config("[General Settings]\nShow Time=FALSE\nShow Date=FALSE\n");
    EXPECT_FALSE(Build().Find(SceneKind::Clock));
}

TEST_F(PreviewSceneParts, StartMenuOpensUnderTheStartButtonOnlyWhenAsked) {
    EXPECT_FALSE(Build().Find(SceneKind::StartMenu));
    request.startMenuOpen = true;
    const Scene scene = Build();
    const SceneRect menu = Only(scene, SceneKind::StartMenu).rect;
    const SceneRect start = Only(scene, SceneKind::StartButton).rect;
    EXPECT_EQ(menu.left, start.left);
    EXPECT_EQ(menu.top, Only(scene, SceneKind::TopBar).rect.bottom);
    EXPECT_FALSE(scene.Find(SceneKind::VolumeBubble)) << "one pop-up at a time";
}

TEST_F(PreviewSceneParts, StartMenuHasFourEntriesWithTheFirstHighlighted) {
    Theme("[Start Menu Skin]\nUse Colors=TRUE\nBKColor=1193046\nHighColor=255\n");
    request.startMenuOpen = true;
    const Scene scene = Build();
    EXPECT_EQ(Only(scene, SceneKind::StartMenu).fill.color, 1193046u);
    const auto entries = scene.All(SceneKind::MenuEntry);
    ASSERT_EQ(entries.size(), 6u) << "four entries and the sub-menu's two";
    EXPECT_EQ(entries[0]->name, L"Programs");
    EXPECT_EQ(entries[0]->fill.color, 255u);
    EXPECT_EQ(entries[1]->fill.kind, FillKind::None);
    EXPECT_EQ(entries[3]->name, L"Help");
}

TEST_F(PreviewSceneParts, StartMenuWithoutColorsShowsItsPicturesAndMargins) {
    Theme("[Start Menu Skin]\nStart Menu Picture=sm.bmp\nStart Menu Picture 2=sub.bmp\n"
          "Left Margin=20\nRight Margin=4\nProgram Group=prog.ico\nSubmenu Arrow=arrow.bmp\n");
    Picture(L"sm.bmp", 100, 100);
    Picture(L"sub.bmp", 100, 100);
    Picture(L"prog.ico", 16, 16);
    Picture(L"arrow.bmp", 8, 8);
    request.startMenuOpen = true;
    const Scene scene = Build();
    const SceneElement menu = Only(scene, SceneKind::StartMenu);
    EXPECT_EQ(menu.fill.picture, ThemeFile(L"sm.bmp"));
    EXPECT_EQ(Only(scene, SceneKind::SubMenu).fill.picture, ThemeFile(L"sub.bmp"));
    const SceneElement first = Only(scene, SceneKind::MenuEntry);
    EXPECT_EQ(first.rect.left - menu.rect.left, 20);
    EXPECT_EQ(menu.rect.right - first.rect.right, 4);
    EXPECT_EQ(Only(scene, SceneKind::MenuIcon).fill.picture, ThemeFile(L"prog.ico"));
    EXPECT_EQ(scene.All(SceneKind::MenuArrow).size(), 2u) << "the two groups open sub-menus";
}

TEST_F(PreviewSceneParts, SampleWindowShowsTheThemesSystemColors) {
    Theme("[Colors]\nActive Caption=255\nWindow=65280\nHighlight=16711680\n");
    const Scene scene = Build();
    EXPECT_EQ(Only(scene, SceneKind::Caption).fill.color, 255u);
    EXPECT_EQ(Only(scene, SceneKind::Window).fill.color, 65280u);
    bool highlighted = false;
    for (const SceneElement* row : scene.All(SceneKind::WindowRow))
        highlighted =
            highlighted || (row->fill.kind == FillKind::Solid && row->fill.color == 16711680u);
    EXPECT_TRUE(highlighted);
}

TEST_F(PreviewSceneParts, AppButtonPictureIsStretchedByItsMargins) {
    Theme("[Buttons]\nnormal=b.bmp\nleft=4\nright=5\ntop=1\nbottom=2\nName=Courier\n");
    Picture(L"b.bmp", 30, 20);
    const SceneElement button = Only(Build(), SceneKind::AppButton);
    EXPECT_EQ(button.fill.fit, PictureFit::Margins);
    EXPECT_EQ(button.fill.margins.left, 4);
    EXPECT_EQ(button.fill.margins.right, 5);
    EXPECT_EQ(button.fill.margins.top, 1);
    EXPECT_EQ(button.fill.margins.bottom, 2);
    EXPECT_EQ(button.text.font.face, L"Courier");
}

TEST_F(PreviewSceneParts, AppButtonWithoutAPictureIsASystemButtonInTheButtonColors) {
    Theme("[Colors]\nButton Face=1234\nButton Text=99\n");
    const SceneElement button = Only(Build(), SceneKind::AppButton);
    EXPECT_EQ(button.fill.kind, FillKind::Raised);
    EXPECT_EQ(button.fill.color, 1234u);
    EXPECT_EQ(button.text.font.color, 99u);
}

TEST_F(PreviewSceneParts, CheckBoxAndRadioButtonShowTheirPictures) {
    Theme("[Buttons]\nCheckbox=c.bmp\nRadiobutton=gone.bmp\n");
    Picture(L"c.bmp", 13, 13);
    const Scene scene = Build();
    EXPECT_EQ(Only(scene, SceneKind::CheckBox).fill.picture, ThemeFile(L"c.bmp"));
    EXPECT_EQ(Only(scene, SceneKind::RadioButton).fill.kind, FillKind::Placeholder);
}

TEST_F(PreviewSceneParts, VolumeBubbleStandsUnderTheVolumeButton) {
    Theme("[Volume Bubble]\nImage=bubble.bmp\n");
    Picture(L"bubble.bmp", 60, 30);
    const Scene scene = Build();
    const SceneRect bubble = Only(scene, SceneKind::VolumeBubble).rect;
    const SceneRect volume = scene.Find(SceneKind::TopBarButton, L"Volume")->rect;
    EXPECT_EQ(bubble.Width(), 60);
    EXPECT_NEAR((bubble.left + bubble.right) / 2, (volume.left + volume.right) / 2, 1);
}

TEST_F(PreviewSceneParts, SoftKeysShowTheirPicturesAndTheNewText) {
    Theme("[SoftKey]\nLeft Button=l.bmp\n[Today Menubar]\nName=Georgia\n");
    Picture(L"l.bmp", 10, 10);
    Scene scene = Build();
    const auto keys = scene.All(SceneKind::SoftKey);
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[0]->fill.picture, ThemeFile(L"l.bmp"));
    EXPECT_EQ(keys[1]->fill.kind, FillKind::None);
    EXPECT_EQ(keys[0]->text.text, L"New");
    EXPECT_EQ(keys[0]->text.font.face, L"Georgia");
    Theme("[Today Menubar]\nDisplay New Text=FALSE\n");
    scene = Build();
    EXPECT_EQ(scene.All(SceneKind::SoftKey)[0]->text.text, L"");
}

TEST_F(PreviewSceneParts, SceneSaysWhichKeysItUsed) {
    request.startMenuOpen = true;
    const Scene scene = Build();
    EXPECT_TRUE(scene.Used(L"Topbar", L"Mode"));
    EXPECT_TRUE(scene.Used(L"Button Images", L"Close Normal"));
    EXPECT_TRUE(scene.Used(L"Start Menu Skin", L"Start Menu Picture"));
    EXPECT_TRUE(scene.Used(L"Colors", L"Active Caption"));
    EXPECT_TRUE(scene.Used(L"Topbar Settings", L"Order"));
    EXPECT_FALSE(scene.Used(L"Button Images", L"Close Pressed"));
    EXPECT_FALSE(scene.Used(L"Sounds", L"Startup"));
    EXPECT_FALSE(scene.Used(L"Menubar", L"Portrait"));
}

TEST_F(PreviewSceneParts, FirstFormatThemeIsConvertedInMemory) {
    const IniDocument older =
        ThemeText("Taskbar=bar.bmp\nBGMode=solid\nSolidColor=255\n", L"C:\\Themes\\Old\\old.skin");
    const PreviewTheme converted = PreviewThemeOf(older, {1, 2, 3});
    EXPECT_EQ(converted.doc.GetString(L"Topbar", L"Portrait", L""), L"C:\\Themes\\Old\\bar.bmp");
    EXPECT_EQ(converted.doc.GetString(L"Topbar", L"Mode", L""), L"color");
    EXPECT_FALSE(older.HasSection(L"Topbar")) << "the file's own document is left alone";
}

TEST_F(PreviewSceneParts, CurrentThemeAndConfigIniAreTakenAsTheyStand) {
    const IniDocument current = ThemeText("[Skin Info]\n[Topbar]\nMode=none\n", L"C:\\T\\a.skin");
    EXPECT_EQ(PreviewThemeOf(current, {}).doc.GetString(L"Topbar", L"Mode", L""), L"none");
    EXPECT_EQ(PreviewThemeOf(current, {}).folder, L"C:\\T\\");
    const IniDocument custom = ThemeText("[Topbar]\nMode=none\n", L"C:\\Dev\\config.ini");
    EXPECT_EQ(PreviewThemeOf(custom, {}).doc.GetString(L"Topbar", L"Mode", L""), L"none");
}
