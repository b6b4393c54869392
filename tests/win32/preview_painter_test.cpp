// The preview's painter against pictures worked out beforehand: three made-up themes of solid
// colours and small pictures whose pixels are known. Each scene is drawn without its texts
// (fonts differ between systems) and compared pixel by pixel, allowing a difference of 3 in a
// colour channel (a gradient's steps are rounded differently by different drawing code).
#include <gtest/gtest.h>

#include "preview_expected.h"
#include "temp_folder.h"
#include "themes/preview/preview_device.h"
#include "themes/preview/scene_builder.h"
#include "ui/image/bmp_bytes.h"
#include "ui/preview/scene_painter.h"

using namespace cv2;

namespace {

constexpr int kTolerance = 3;

class FixedColors : public DeviceColors {
  public:
    ColorRef SystemColor(int index) const override { return 0x102030u + index; }
    ColorRef ThemeColor(int index) const override { return index == 0 ? 0x0000C0 : 0xC0C000; }
};

// A picture of `width` x `height` whose every pixel is `color`, or whose columns run through
// `bands` from left to right when bands are given.
PixelImage Picture(int width, int height, ColorRef color, std::vector<ColorRef> bands = {}) {
    PixelImage p = MakePixelImage(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            cv2test::PutPixel(p, x, y, bands.empty() ? color : bands[x * bands.size() / width]);
    }
    return p;
}

class PreviewPainter : public ::testing::Test {
  protected:
    void Add(const std::wstring& name, const PixelImage& picture) {
        const std::vector<unsigned char> bytes = BmpBytes(picture);
        dir.Write(name, std::string(bytes.begin(), bytes.end()));
        pictures[dir.File(name)] = picture;
    }

    Scene Build(const std::string& theme, int width, int height, int dpi, bool menuOpen) {
        themeDoc.Parse(reinterpret_cast<const unsigned char*>(theme.data()), theme.size());
        PreviewRequest request;
        request.theme = &themeDoc;
        request.config = &config;
        request.themeFolder = dir.Path();
        request.width = width;
        request.height = height;
        request.dpi = dpi;
        request.startMenuOpen = menuOpen;
        PreviewDevice device = ThisDevicePreview(painter);
        device.colors = &colors;
        device.pluginButtons.clear();
        return BuildScene(request, device);
    }

    // Draws the scene without texts and compares it with the pixels worked out for it.
    void ExpectDrawnAsWorkedOut(const Scene& scene) {
        const Scene plain = cv2test::WithoutTexts(scene);
        const PixelImage drawn = painter.Render(plain);
        ASSERT_FALSE(drawn.Empty());
        EXPECT_EQ(
            cv2test::DifferentPixels(drawn, cv2test::ExpectedPixels(plain, pictures), kTolerance),
            0);
    }

    cv2test::TempFolder dir;
    cv2test::Pictures pictures;
    IniDocument themeDoc;
    IniDocument config;
    FixedColors colors;
    ScenePainter painter;
};

const char kSolidTheme[] =
    "[Skin Info]\nName=Solid\n[Topbar]\nMode=color\nSolid Color=255\n"
    "[Today Menubar]\nMode=color\nSolid Color=65280\n"
    "[Colors]\nActive Caption=8388608\nWindow=16777215\nWindowFrame=0\nHighlight=32768\n"
    "Static=12632256\nButton Face=13421772\nButton Highlight=16777215\nButton Shadow=8421504\n"
    "[Start Menu Skin]\nUse Colors=TRUE\nBKColor=16776960\nHighColor=65535\n";

} // namespace

TEST_F(PreviewPainter, SolidColorThemeWithTheStartMenuOpen) {
    const Scene scene = Build(kSolidTheme, 240, 320, 96, true);
    ASSERT_TRUE(scene.Find(SceneKind::StartMenu));
    ExpectDrawnAsWorkedOut(scene);
    // A few pixels stated outright: the bars' colours and the start menu's.
    const PixelImage drawn = painter.Render(cv2test::WithoutTexts(scene));
    const SceneRect title = scene.Find(SceneKind::Title)->rect;
    EXPECT_EQ(drawn.At(title.left + 2, 1)[2], 255) << "red top bar";
    EXPECT_EQ(drawn.At(120, 318)[1], 255) << "green menu bar";
    const SceneRect menu = scene.Find(SceneKind::StartMenu)->rect;
    const unsigned char* bottom = drawn.At(menu.left + 1, menu.bottom - 1);
    EXPECT_EQ(bottom[2] + bottom[1] * 256 + bottom[0] * 65536, 0xFFFF00)
        << "the menu's own colour (BKColor 16776960)";
}

TEST_F(PreviewPainter, PictureThemeWithMarginsAndTilesAtHighDensity) {
    Add(L"top.bmp", Picture(8, 8, 0xFF0000));
    Add(L"tile.bmp", Picture(2, 2, 0, {0x00FFFF, 0xFF00FF}));
    Add(L"close.bmp", Picture(10, 10, 0x0080FF));
    Add(L"start.bmp", Picture(20, 20, 0x00FFFF));
    Add(L"bubble.bmp", Picture(40, 20, 0xFFFF00));
    Add(L"check.bmp", Picture(13, 13, 0x808000));
    Add(L"button.bmp", Picture(12, 6, 0, {0xFF0000, 0x00FF00, 0x00FF00, 0x0000FF}));
    Add(L"left.bmp", Picture(4, 4, 0x404040));
    const Scene scene =
        Build("[Skin Info]\n[Topbar]\nPortrait=top.bmp\nMode=scaled\n"
              "[Today Menubar]\nPortrait=tile.bmp\nMode=tiled\n[SoftKey]\nLeft Button=left.bmp\n"
              "[Button Images]\nClose Normal=close.bmp\nStart Menu Normal=start.bmp\n"
              "[Volume Bubble]\nImage=bubble.bmp\n"
              "[Buttons]\nnormal=button.bmp\nleft=3\nright=3\nCheckbox=check.bmp\n",
              480, 640, 192, false);
    EXPECT_EQ(scene.Find(SceneKind::TodayMenubar)->fill.tileWidth, 4);
    EXPECT_EQ(scene.Find(SceneKind::AppButton)->fill.fit, PictureFit::Margins);
    ASSERT_TRUE(scene.Find(SceneKind::VolumeBubble));
    ExpectDrawnAsWorkedOut(scene);
}

TEST_F(PreviewPainter, GradientThemeWithPicturesInTheStartMenuOnALandscapeScreen) {
    Add(L"menu.bmp", Picture(30, 30, 0x203040));
    Add(L"sub.bmp", Picture(30, 30, 0x405060));
    Add(L"prog.bmp", Picture(16, 16, 0x00A0A0));
    const Scene scene =
        Build("[Skin Info]\n[Topbar]\nMode=gradient\nUse Theme Colors=FALSE\nLeft Color=255\n"
              "Right Color=16711680\n[Today Menubar]\nMode=gradient\nUse Theme Colors=TRUE\n"
              "[Start Menu Skin]\nStart Menu Picture=menu.bmp\nStart Menu Picture 2=sub.bmp\n"
              "Program Group=prog.bmp\nLeft Margin=12\nRight Margin=2\n",
              320, 240, 96, true);
    EXPECT_EQ(scene.Find(SceneKind::TodayMenubar)->fill.color, colors.ThemeColor(0));
    ASSERT_TRUE(scene.Find(SceneKind::MenuIcon));
    ExpectDrawnAsWorkedOut(scene);
}

TEST_F(PreviewPainter, TextsAreDrawnInsideTheirElements) {
    const Scene scene = Build(kSolidTheme, 240, 320, 96, true);
    const PixelImage plain = painter.Render(cv2test::WithoutTexts(scene));
    const PixelImage drawn = painter.Render(scene);
    const SceneRect caption = scene.Find(SceneKind::Caption)->rect;
    int changed = 0, outside = 0;
    for (int y = 0; y < drawn.height; ++y) {
        for (int x = 0; x < drawn.width; ++x) {
            const bool differs = !std::equal(drawn.At(x, y), drawn.At(x, y) + 3, plain.At(x, y));
            if (differs && caption.Contains(x, y))
                ++changed;
            const SceneElement* at = scene.At(x, y);
            if (differs && (!at || at->text.text.empty()) && at &&
                at->fill.kind != FillKind::Placeholder)
                ++outside;
        }
    }
    EXPECT_GT(changed, 20) << "the caption's text shows";
    EXPECT_EQ(outside, 0) << "no text spills out of its element";
}

TEST_F(PreviewPainter, PictureThatCannotBeReadIsDrawnAsAPlaceholder) {
    dir.Write(L"broken.bmp", "BM not a picture");
    SceneElement e;
    e.kind = SceneKind::TopBar;
    e.rect = {0, 0, 40, 10};
    e.fill.kind = FillKind::Picture;
    e.fill.picture = dir.File(L"broken.bmp");
    Scene scene;
    scene.width = 40;
    scene.height = 10;
    scene.elements.push_back(e);
    const PixelImage drawn = painter.Render(scene);
    EXPECT_EQ(drawn.At(20, 5)[0], 0xE0);
    EXPECT_EQ(drawn.At(0, 0)[0], 0x90);
}

TEST_F(PreviewPainter, HugePictureIsReadShrunk) {
    Add(L"huge.bmp", Picture(3000, 8, 0x00FF00));
    SceneSize size;
    ASSERT_TRUE(painter.PictureSize(dir.File(L"huge.bmp"), size));
    EXPECT_LE(size.width, kPreviewPictureLimit);
    EXPECT_GE(size.height, 1);
}
