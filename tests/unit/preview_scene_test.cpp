// The preview's scene: where things lie on the six device screens, the bar backgrounds in every
// mode, pictures that cannot be shown, and values far outside what themes normally hold.
#include <gtest/gtest.h>

#include "preview_scene_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

// A theme naming a picture for everything the preview shows.
const char kFullTheme[] =
    "[Skin Info]\nName=Full\n"
    "[Topbar]\nPortrait=top.bmp\nLandscape=top_l.bmp\nMode=scaled\n"
    "[Today Menubar]\nPortrait=menu.bmp\nMode=scaled\n"
    "[SoftKey]\nLeft Button=left.bmp\nRight Button=right.bmp\n"
    "[Button Images]\nStart Menu Normal=start.bmp\nClose Normal=close.bmp\n"
    "Notify Normal=notify.bmp\nVolume Normal=volume.bmp\nConnection Normal=net.bmp\n"
    "Menu Normal=menu_b.bmp\nBattery/Memory Normal=battery.bmp\n"
    "[Start Menu Skin]\nStart Menu Picture=sm.bmp\nStart Menu Picture 2=sm2.bmp\n"
    "Program Group=prog.ico\nSettings Group=set.ico\nFind Icon=find.ico\nHelp Icon=help.ico\n"
    "Submenu Arrow=arrow.bmp\nLeft Margin=20\n"
    "[Buttons]\nnormal=button.bmp\nCheckbox=check.bmp\nRadiobutton=radio.bmp\n"
    "[Volume Bubble]\nImage=bubble.bmp\n";

class PreviewScene : public ::testing::Test, public PreviewSceneFixture {
  protected:
    void FullTheme() {
        Theme(kFullTheme);
        for (const wchar_t* name :
             {L"top.bmp", L"top_l.bmp", L"menu.bmp", L"left.bmp", L"right.bmp", L"close.bmp",
              L"notify.bmp", L"volume.bmp", L"net.bmp", L"menu_b.bmp", L"battery.bmp", L"sm.bmp",
              L"sm2.bmp", L"arrow.bmp", L"bubble.bmp"})
            Picture(name, 40, 20);
        Picture(L"start.bmp", 26, 26);
        for (const wchar_t* name : {L"prog.ico", L"set.ico", L"find.ico", L"help.ico"})
            Picture(name, 16, 16);
        Picture(L"button.bmp", 30, 20);
        Picture(L"check.bmp", 13, 13);
        Picture(L"radio.bmp", 13, 13);
    }
};

// Every element of the scene, on every screen, with the start menu open and closed.
template <class F> void ForEveryScene(PreviewSceneFixture& f, F check) {
    for (const DeviceScreen& screen : SixScreens()) {
        for (bool open : {false, true}) {
            f.Screen(screen);
            f.request.startMenuOpen = open;
            check(f.Build(), std::string(screen.name) + (open ? " menu open" : ""));
        }
    }
}

void ExpectInsideScreen(const Scene& scene, const std::string& where) {
    const SceneRect screen = {0, 0, scene.width, scene.height};
    for (const SceneElement& e : scene.elements) {
        EXPECT_TRUE(screen.Contains(e.rect)) << where << ": " << static_cast<int>(e.kind);
        EXPECT_FALSE(e.rect.IsEmpty()) << where << ": " << static_cast<int>(e.kind);
    }
}

void ExpectInsideParents(const Scene& scene, const std::string& where) {
    for (const SceneElement& e : scene.elements) {
        if (e.parent < 0)
            continue;
        const SceneElement& parent = scene.elements[static_cast<size_t>(e.parent)];
        EXPECT_TRUE(parent.rect.Contains(e.rect)) << where << ": " << static_cast<int>(e.kind);
    }
}

// Elements that share a parent lie side by side; pop-ups lie over the screen's other
// elements but never over the bars.
void ExpectNoOverlaps(const Scene& scene, const std::string& where) {
    const auto& all = scene.elements;
    for (size_t i = 0; i < all.size(); ++i) {
        for (size_t j = i + 1; j < all.size(); ++j) {
            const SceneElement& a = all[i];
            const SceneElement& b = all[j];
            const bool bar = a.kind == SceneKind::TopBar || a.kind == SceneKind::TodayMenubar;
            if (a.parent == b.parent && !a.popup && !b.popup) {
                EXPECT_FALSE(a.rect.Overlaps(b.rect)) << where << ": " << static_cast<int>(a.kind)
                                                      << " and " << static_cast<int>(b.kind);
            }
            if (bar && b.popup) {
                EXPECT_FALSE(a.rect.Overlaps(b.rect)) << where << ": a pop-up over a bar";
            }
        }
    }
}

} // namespace

TEST_F(PreviewScene, EveryElementLiesInsideTheScreenOnAllSixScreens) {
    FullTheme();
    ForEveryScene(*this, ExpectInsideScreen);
}

TEST_F(PreviewScene, EveryElementLiesInsideItsParentOnAllSixScreens) {
    FullTheme();
    ForEveryScene(*this, ExpectInsideParents);
}

TEST_F(PreviewScene, NothingOverlapsButPopupsOnAllSixScreens) {
    FullTheme();
    ForEveryScene(*this, ExpectNoOverlaps);
}

TEST_F(PreviewScene, AnEmptyThemeStillLaysOutOnAllSixScreens) {
    ForEveryScene(*this, [](const Scene& scene, const std::string& where) {
        ExpectInsideScreen(scene, where);
        ExpectInsideParents(scene, where);
        ExpectNoOverlaps(scene, where);
    });
}

TEST_F(PreviewScene, BarsSpanTheScreenAtTheTopAndTheBottom) {
    Screen(480, 640, 192);
    const Scene scene = Build();
    const SceneElement* top = scene.Find(SceneKind::TopBar);
    const SceneElement* bottom = scene.Find(SceneKind::TodayMenubar);
    ASSERT_TRUE(top && bottom);
    EXPECT_EQ(top->rect.top, 0);
    EXPECT_EQ(top->rect.Width(), 480);
    EXPECT_EQ(top->rect.Height(), 52);
    EXPECT_EQ(bottom->rect.bottom, 640);
    EXPECT_EQ(bottom->rect.Height(), 52);
}

TEST_F(PreviewScene, PortraitScreenShowsThePortraitPicture) {
    FullTheme();
    Screen(240, 320, 96);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.picture, ThemeFile(L"top.bmp"));
}

TEST_F(PreviewScene, LandscapeScreenShowsTheLandscapePicture) {
    FullTheme();
    Screen(640, 480, 192);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.picture, ThemeFile(L"top_l.bmp"));
}

TEST_F(PreviewScene, SquareScreenShowsThePortraitPicture) {
    FullTheme();
    Screen(240, 240, 96);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.picture, ThemeFile(L"top.bmp"));
}

TEST_F(PreviewScene, LandscapeScreenWithoutALandscapePictureShowsThePortraitOne) {
    Theme("[Topbar]\nPortrait=top.bmp\nMode=scaled\n");
    Picture(L"top.bmp", 240, 26);
    Screen(320, 240, 96);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.picture, ThemeFile(L"top.bmp"));
}

TEST_F(PreviewScene, ScaledModeStretchesThePictureOverTheBar) {
    Theme("[Topbar]\nPortrait=top.bmp\nMode=scaled\n");
    Picture(L"top.bmp", 10, 10);
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.kind, FillKind::Picture);
    EXPECT_EQ(fill.fit, PictureFit::Stretch);
}

TEST_F(PreviewScene, TiledModeRepeatsThePictureAtItsSizeOnTheScreen) {
    Theme("[Topbar]\nPortrait=top.bmp\nMode=Tiled\n");
    Picture(L"top.bmp", 10, 13);
    Screen(480, 640, 192);
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.fit, PictureFit::Tile);
    EXPECT_EQ(fill.tileWidth, 20);
    EXPECT_EQ(fill.tileHeight, 26);
}

TEST_F(PreviewScene, HiResThemePicturesKeepTheirSizeOnAHighResolutionScreen) {
    Theme("[Skin Info]\nHiRes=TRUE\n[Topbar]\nPortrait=top.bmp\nMode=tiled\n");
    Picture(L"top.bmp", 10, 13);
    Screen(480, 640, 192);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.tileWidth, 10);
}

TEST_F(PreviewScene, ColorModeFillsWithTheSolidColor) {
    Theme("[Topbar]\nMode=color\nSolid Color=255\n");
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.kind, FillKind::Solid);
    EXPECT_EQ(fill.color, 255u);
}

TEST_F(PreviewScene, GradientModeRunsFromTheLeftToTheRightColor) {
    Theme("[Topbar]\nMode=gradient\nLeft Color=255\nRight Color=65280\nUse Theme Colors=FALSE\n");
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.kind, FillKind::Gradient);
    EXPECT_EQ(fill.color, 255u);
    EXPECT_EQ(fill.color2, 65280u);
}

TEST_F(PreviewScene, GradientWithThemeColorsTakesTheDevicesTodayColors) {
    Theme("[Topbar]\nMode=gradient\nLeft Color=255\nRight Color=65280\nUse Theme Colors=TRUE\n");
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.color, fakes.colors.ThemeColor(0));
    EXPECT_EQ(fill.color2, fakes.colors.ThemeColor(1));
}

TEST_F(PreviewScene, NoneModeLeavesTheBarUnfilled) {
    Theme("[Topbar]\nPortrait=top.bmp\nMode=none\n");
    Picture(L"top.bmp", 10, 10);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.kind, FillKind::None);
}

TEST_F(PreviewScene, WithoutATopbarSectionTheBarIsTheActiveCaptionColor) {
    const SceneFill fill = Build().Find(SceneKind::TopBar)->fill;
    EXPECT_EQ(fill.kind, FillKind::Solid);
    EXPECT_EQ(fill.color, fakes.colors.SystemColor(2));
}

TEST_F(PreviewScene, TodayMenubarUsesItsOwnBackground) {
    Theme("[Today Menubar]\nMode=color\nSolid Color=4660\n");
    const SceneFill fill = Build().Find(SceneKind::TodayMenubar)->fill;
    EXPECT_EQ(fill.kind, FillKind::Solid);
    EXPECT_EQ(fill.color, 4660u);
}

TEST_F(PreviewScene, MissingPictureIsAPlaceholderWithTheElementsName) {
    Theme("[Topbar]\nPortrait=gone.bmp\nMode=scaled\n");
    const Scene scene = Build();
    const SceneElement* bar = scene.Find(SceneKind::TopBar);
    EXPECT_EQ(bar->fill.kind, FillKind::Placeholder);
    EXPECT_EQ(bar->fill.picture, ThemeFile(L"gone.bmp"));
    EXPECT_EQ(bar->name, L"Taskbar Background");
}

TEST_F(PreviewScene, ZeroSizedPictureIsAPlaceholder) {
    Theme("[Topbar]\nPortrait=empty.bmp\nMode=scaled\n");
    Picture(L"empty.bmp", 0, 0);
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.kind, FillKind::Placeholder);
}

TEST_F(PreviewScene, AbsolutePictureNamesAreTakenAsTheyStand) {
    Theme("[Topbar]\nPortrait=D:\\Elsewhere\\top.bmp\nMode=scaled\n");
    fakes.pictures[L"D:\\Elsewhere\\top.bmp"] = {240, 26};
    EXPECT_EQ(Build().Find(SceneKind::TopBar)->fill.picture, L"D:\\Elsewhere\\top.bmp");
}

TEST_F(PreviewScene, HugePictureIsShrunkToTheBar) {
    Theme("[Button Images]\nClose Normal=close.bmp\n");
    Picture(L"close.bmp", 100000, 100000);
    const Scene scene = Build();
    const SceneElement* close = scene.Find(SceneKind::TopBarButton, L"Close");
    ASSERT_TRUE(close);
    EXPECT_EQ(close->rect.Height(), 26);
    EXPECT_EQ(close->rect.Width(), 26);
}

TEST_F(PreviewScene, HugeOrNegativeMarginsKeepTheStartMenuOnTheScreen) {
    for (const char* margins : {"Left Margin=99999999\nRight Margin=99999999\n",
                                "Left Margin=-500\nRight Margin=-2147483648\n"}) {
        Theme(std::string("[Start Menu Skin]\nUse Colors=TRUE\n") + margins +
              "Sublevel Left Margin=99999\nSublevel Right Margin=-99999\n"
              "[Buttons]\nnormal=button.bmp\nleft=99999\nright=-5\ntop=-99999\n");
        Picture(L"button.bmp", 30, 20);
        ForEveryScene(*this, [](const Scene& scene, const std::string& where) {
            ExpectInsideScreen(scene, where);
            ExpectInsideParents(scene, where);
        });
    }
}

TEST_F(PreviewScene, NegativeMarginsCountAsNone) {
    Theme("[Start Menu Skin]\nUse Colors=TRUE\nLeft Margin=-40\n");
    request.startMenuOpen = true;
    const Scene scene = Build();
    EXPECT_EQ(scene.Find(SceneKind::MenuEntry)->rect.left,
              scene.Find(SceneKind::StartMenu)->rect.left);
}

TEST_F(PreviewScene, FontSizesZeroAndHugeKeepEverythingOnTheScreen) {
    for (const char* size : {"0", "999", "-999"}) {
        std::string theme;
        for (const char* section :
             {"Title Font", "Clock Font", "Start Menu Skin", "Buttons", "Today Menubar"})
            theme += std::string("[") + section + "]\nSize=" + size + "\n";
        Theme(theme + "[Start Menu Skin]\nUse Colors=TRUE\n");
        ForEveryScene(*this, [](const Scene& scene, const std::string& where) {
            ExpectInsideScreen(scene, where);
            ExpectInsideParents(scene, where);
            ExpectNoOverlaps(scene, where);
        });
    }
}

TEST_F(PreviewScene, TinyAndHugeScreensAreBroughtIntoRange) {
    FullTheme();
    for (const DeviceScreen& s :
         {DeviceScreen{"tiny", 1, 1, 1}, DeviceScreen{"huge", 100000, -5, 5000}}) {
        Screen(s);
        request.startMenuOpen = true;
        const Scene scene = Build();
        EXPECT_GE(scene.width, 1);
        EXPECT_LE(scene.width, kMaxSceneSide);
        EXPECT_GE(scene.height, 1);
        ExpectInsideScreen(scene, s.name);
        ExpectInsideParents(scene, s.name);
    }
}

TEST_F(PreviewScene, NarrowScreensKeepTheAppButtonInsideTheWindow) {
    for (int width = 1; width <= 64; ++width) {
        Screen(width, 51, 24);
        const Scene scene = Build();
        const std::string where = "width " + std::to_string(width);
        ExpectInsideScreen(scene, where);
        ExpectInsideParents(scene, where);
    }
}

TEST_F(PreviewScene, RoomForAPlaceholdersNameLiesBelowItsParts) {
    request.startMenuOpen = true;
    const Scene scene = Build();
    for (size_t i = 0; i < scene.elements.size(); ++i) {
        const SceneRect free = scene.FreeBelowParts(i);
        EXPECT_TRUE(scene.elements[i].rect.Contains(free) || free.IsEmpty());
        for (const SceneElement& e : scene.elements) {
            if (e.parent == static_cast<int>(i) && !e.popup) {
                EXPECT_FALSE(e.rect.Overlaps(free)) << static_cast<int>(e.kind);
            }
        }
    }
    const SceneElement* menu = scene.Find(SceneKind::StartMenu);
    const SceneRect free = scene.FreeBelowParts(static_cast<size_t>(menu - scene.elements.data()));
    EXPECT_EQ(free.top, scene.All(SceneKind::MenuEntry)[3]->rect.bottom);
    EXPECT_EQ(free.bottom, menu->rect.bottom);
}

TEST_F(PreviewScene, TopBarOnlyFillsTheWholeStrip) {
    FullTheme();
    Screen(240, 26, 96);
    request.topBarOnly = true;
    const Scene scene = Build();
    EXPECT_EQ(scene.Find(SceneKind::TopBar)->rect.Height(), 26);
    EXPECT_FALSE(scene.Find(SceneKind::Window));
    EXPECT_FALSE(scene.Find(SceneKind::TodayMenubar));
    EXPECT_FALSE(scene.Find(SceneKind::VolumeBubble));
}
