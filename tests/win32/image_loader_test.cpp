// Loading pictures into the in-memory image type: which reader, the size, the bitmap's layout.
#include "ui/image/image_loader.h"

#include <gtest/gtest.h>

#include "../unit/image_test_data.h"
#include "temp_folder.h"
#include "ui/image/icon_reader.h"

using namespace cv2;

namespace {

LoadedImage Load(const char* name, int width = 0, int height = 0) {
    return LoadImageFile(cv2test::ImageDataPath(name), width, height);
}

} // namespace

TEST(LoadedImage, BitmapIsATwentyFourBitBottomUpDibSection) {
    const LoadedImage image = Load("opaque.png");
    ASSERT_FALSE(image.IsEmpty());
    DIBSECTION dib = {};
    ASSERT_EQ(GetObjectW(image.Bitmap(), sizeof dib, &dib), static_cast<int>(sizeof dib));
    EXPECT_EQ(dib.dsBm.bmBitsPixel, 24);
    EXPECT_EQ(dib.dsBmih.biHeight, 17);
    EXPECT_EQ(image.Width(), 23);
    EXPECT_EQ(image.Height(), 17);
    EXPECT_EQ(image.Stride(), 72); // 23 * 3 = 69, padded to 4
    EXPECT_EQ(dib.dsBm.bmWidthBytes, image.Stride());
    // The first stored row is the picture's bottom row: blue from the gradient, then white.
    const PixelImage picture = cv2test::Picture("opaque");
    EXPECT_EQ(image.Bits()[0], picture.At(0, 16)[0]);
    EXPECT_EQ(image.Bits()[2], picture.At(0, 16)[2]);
    EXPECT_EQ(image.Bits()[22 * 3], 255);
    EXPECT_FALSE(image.HasAlpha());
    EXPECT_EQ(image.Alpha(), nullptr);
}

TEST(LoadedImage, AlphaPlaneRowsStartAtThePicturesTopRow) {
    const LoadedImage image = Load("alpha32_bl_rle.tga");
    ASSERT_TRUE(image.HasAlpha());
    const PixelImage picture = cv2test::Picture("alpha");
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 23; ++x)
            ASSERT_EQ(image.Alpha()[y * 23 + x], picture.At(x, y)[3]) << x << "," << y;
    }
}

TEST(LoadedImage, PixelsGoBackUnchanged) {
    const PixelImage picture = cv2test::Picture("alpha");
    EXPECT_TRUE(cv2test::SamePixels(LoadedImage::FromPixels(picture).ToPixels(), picture));
}

TEST(LoadedImage, FlattenComposesOntoTheBackgroundAndDropsAlpha) {
    PixelImage picture = MakePixelImage(2, 1);
    picture.hasAlpha = true;
    picture.At(0, 0)[0] = 200; // blue 200, alpha 0
    picture.At(0, 0)[3] = 0;
    picture.At(1, 0)[2] = 255; // red, alpha 51
    picture.At(1, 0)[3] = 51;
    LoadedImage image = LoadedImage::FromPixels(picture);
    image.Flatten(RGB(0, 0, 255));
    EXPECT_FALSE(image.HasAlpha());
    const PixelImage flat = image.ToPixels();
    EXPECT_EQ(flat.At(0, 0)[0], 255); // only the blue background
    EXPECT_EQ(flat.At(0, 0)[2], 0);
    EXPECT_EQ(flat.At(1, 0)[2], 51); // a fifth red over four fifths blue
    EXPECT_EQ(flat.At(1, 0)[0], 204);
}

TEST(LoadedImage, MovingHandsTheBitmapOver) {
    LoadedImage first = Load("opaque.png");
    HBITMAP bitmap = first.Bitmap();
    LoadedImage second = std::move(first);
    EXPECT_TRUE(first.IsEmpty());
    EXPECT_EQ(second.Bitmap(), bitmap);
    EXPECT_EQ(GetObjectType(bitmap), static_cast<DWORD>(OBJ_BITMAP));
    second.Reset();
    EXPECT_EQ(GetObjectType(bitmap), 0u);
}

TEST(ImageLoader, IconPathWithSizeSuffixLoadsThatSizesImage) {
    const LoadedImage image = Load("icon_sizes.ico|16", 16, 16);
    EXPECT_TRUE(image.HasAlpha());
    EXPECT_TRUE(cv2test::SamePixels(image.ToPixels(), cv2test::Picture("graded16")));
}

TEST(ImageLoader, IconPathWithoutSuffixWantsTheSystemIconWidth) {
    const int system = GetSystemMetrics(SM_CXICON);
    const std::vector<IconCandidate> images = {
        {16, 4, true}, {16, 32, true}, {32, 8, true}, {32, 32, true}, {48, 32, true}};
    const char* pictures[] = {"few16", "graded16", "few32", "graded32", "graded48"};
    const size_t chosen = ChooseIconImage(images, system);
    EXPECT_TRUE(
        cv2test::SamePixels(Load("icon_sizes.ico").ToPixels(), cv2test::Picture(pictures[chosen])))
        << "system icon width " << system;
}

TEST(ImageLoader, PngImageOfAnIconIsDecodedByThePlatform) {
    // A 16 x 16 bitmap image and a 48 x 48 PNG-coded one.
    EXPECT_TRUE(
        cv2test::SamePixels(Load("icon_with_png.ico|48").ToPixels(), cv2test::Picture("graded48")));
}

// As icons for current desktops are made: every image PNG-coded, one chosen by the same rule.
TEST(ImageLoader, IconOfPngImagesOnlyShowsTheImageOfTheWantedSize) {
    EXPECT_TRUE(
        cv2test::SamePixels(Load("icon_png_only.ico|32").ToPixels(), cv2test::Picture("graded32")));
    EXPECT_TRUE(
        cv2test::SamePixels(Load("icon_png_only.ico|20").ToPixels(), cv2test::Picture("graded16")));
}

TEST(ImageLoader, TargaIsReadByTheProgramsOwnReader) {
    EXPECT_TRUE(cv2test::SamePixels(Load("opaque24_tl_rle.tga").ToPixels(),
                                    cv2test::Opaque(cv2test::Picture("opaque"))));
}

TEST(ImageLoader, OtherPicturesGoToThePlatformDecoder) {
    EXPECT_TRUE(cv2test::SamePixels(Load("alpha.png").ToPixels(), cv2test::Picture("alpha")));
    EXPECT_TRUE(cv2test::SamePixels(Load("few32.gif").ToPixels(), cv2test::Picture("few32")));
}

TEST(ImageLoader, PictureIsScaledToTheWantedSize) {
    const LoadedImage image = Load("opaque.bmp", 46, 34);
    ASSERT_EQ(image.Width(), 46);
    ASSERT_EQ(image.Height(), 34);
    const PixelImage picture = cv2test::Picture("opaque");
    const PixelImage pixels = image.ToPixels();
    for (int y = 0; y < 34; ++y) {
        for (int x = 0; x < 46; ++x)
            ASSERT_EQ(pixels.At(x, y)[1], picture.At(x / 2, y / 2)[1]) << x << "," << y;
    }
}

TEST(ImageLoader, IconIsScaledToTheWantedSizeWithItsAlpha) {
    const LoadedImage image = Load("icon_32bit.ico", 16, 16);
    EXPECT_EQ(image.Width(), 16);
    EXPECT_TRUE(image.HasAlpha());
}

TEST(ImageLoader, MissingFileGivesEmptyImage) {
    for (const char* name : {"missing.png", "missing.ico|16", "missing.tga", "missing.jpg"})
        EXPECT_TRUE(Load(name, 16, 16).IsEmpty()) << name;
}

TEST(ImageLoader, SixteenBitTargaGivesEmptyImage) {
    cv2test::TempFolder dir;
    dir.Write(L"sixteen.tga", cv2test::TargaFile(2, 2, 2, 16, 0, std::string(8, '\x1F')));
    EXPECT_TRUE(LoadImageFile(dir.File(L"sixteen.tga"), 16, 16).IsEmpty());
}

TEST(ImageLoader, FileThatIsNoPictureGivesEmptyImage) {
    cv2test::TempFolder dir;
    dir.Write(L"text.png", "this is not a picture");
    EXPECT_TRUE(LoadImageFile(dir.File(L"text.png"), 0, 0).IsEmpty());
}
