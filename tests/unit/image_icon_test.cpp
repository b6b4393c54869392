#include "ui/image/icon_reader.h"

#include <gtest/gtest.h>

#include "image_test_data.h"
#include "ui/image/image_files.h"

using namespace cv2;
using cv2test::IconBitmap;
using cv2test::IconFile;

namespace {

PixelImage Read(const std::string& file, int wanted, const PngDecoder& decodePng = nullptr) {
    return ReadIcon(reinterpret_cast<const unsigned char*>(file.data()), file.size(), wanted,
                    decodePng);
}

PixelImage ReadFile(const std::string& name, int defaultSize = 32,
                    const PngDecoder& decodePng = nullptr) {
    return ReadIconFile(cv2test::ImageDataPath(name), defaultSize, decodePng);
}

// The PNG files a decoder was given, in order.
struct PngCalls {
    std::vector<std::string> given;
};

// A decoder that keeps what it is given and answers a 7 x 1 picture.
PngDecoder Noting(PngCalls& calls) {
    return [&calls](const unsigned char* data, size_t size) {
        calls.given.emplace_back(reinterpret_cast<const char*>(data), size);
        return MakePixelImage(7, 1);
    };
}

// The start of a PNG file: its signature and header chunk (the checksum is not looked at).
std::string PngHeader(int width, int bitDepth, int colourType) {
    std::string s = "\x89PNG\r\n\x1a\n";
    const auto bigEndian = [&s](uint32_t v) {
        for (int shift = 24; shift >= 0; shift -= 8)
            s += static_cast<char>((v >> shift) & 0xFF);
    };
    bigEndian(13);
    s += "IHDR";
    bigEndian(static_cast<uint32_t>(width));
    bigEndian(static_cast<uint32_t>(width));
    s += static_cast<char>(bitDepth);
    s += static_cast<char>(colourType);
    s += std::string(3, '\0');
    bigEndian(0);
    return s;
}

// A square 32-bit image of one colour (blue, green, red, alpha as a little-endian number).
std::string Solid32(int size, uint32_t bgra) {
    return IconBitmap(
        size, size, 32, {}, [=](int, int) { return bgra; }, [](int, int) { return false; });
}

// A square 4-bit image whose every pixel is palette entry 1 of the given colour.
std::string Solid4(int size, uint32_t bgr) {
    return IconBitmap(
        size, size, 4, {0, bgr}, [](int, int) { return 1u; }, [](int, int) { return false; });
}

uint32_t Blue(const PixelImage& image) {
    return image.Empty() ? 0 : image.At(0, 0)[0];
}

} // namespace

TEST(IconChoice, FirstFittingImageIsTheStart) {
    EXPECT_EQ(ChooseIconImage({{16, 8, true}, {16, 4, true}}, 16), 0u);
}

TEST(IconChoice, LaterWiderImageReplacesTheChoice) {
    EXPECT_EQ(ChooseIconImage({{16, 32, true}, {24, 4, true}}, 32), 1u);
}

TEST(IconChoice, LaterDeeperImageReplacesTheChoice) {
    EXPECT_EQ(ChooseIconImage({{16, 4, true}, {16, 32, true}}, 16), 1u);
}

TEST(IconChoice, LaterImageNoWiderAndNoDeeperKeepsTheChoice) {
    EXPECT_EQ(ChooseIconImage({{16, 8, true}, {16, 8, true}, {8, 4, true}}, 16), 0u);
}

TEST(IconChoice, ImagesWiderThanWantedAreSkipped) {
    EXPECT_EQ(ChooseIconImage({{48, 32, true}, {16, 4, true}, {32, 32, true}}, 16), 1u);
}

TEST(IconChoice, ImagesOfMoreThanThirtyTwoBitsAreSkipped) {
    EXPECT_EQ(ChooseIconImage({{16, 4, true}, {16, 64, true}}, 16), 0u);
}

TEST(IconChoice, UnreadableImagesAreSkipped) {
    EXPECT_EQ(ChooseIconImage({{16, 4, true}, {16, 32, false}}, 16), 0u);
}

TEST(IconChoice, WithoutAFittingImageTheFirstIsUsed) {
    EXPECT_EQ(ChooseIconImage({{32, 4, true}, {32, 32, true}}, 16), 0u);
    EXPECT_EQ(ChooseIconImage({}, 16), 0u);
}

TEST(IconReader, SizeSuffixSixteenLoadsTheBestImageNoWiderThanSixteen) {
    // 16 x 16 at 4 and 32 bits, 32 x 32 at 8 and 32 bits, 48 x 48 at 32 bits.
    const PixelImage image = ReadFile("icon_sizes.ico|16");
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("graded16")));
    EXPECT_TRUE(image.hasAlpha);
}

TEST(IconReader, FileOfOnlyThirtyTwoPixelImagesFallsBackToTheFirst) {
    // The first image is the 4-bit one, the second the 32-bit one.
    const PixelImage image = ReadFile("icon_large_only.ico|16");
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("few32")));
}

TEST(IconReader, WithoutASuffixTheDefaultSizeIsWanted) {
    EXPECT_TRUE(cv2test::SamePixels(ReadFile("icon_sizes.ico", 32), cv2test::Picture("graded32")));
    EXPECT_TRUE(cv2test::SamePixels(ReadFile("icon_sizes.ico", 64), cv2test::Picture("graded48")));
}

TEST(IconReader, PictureIsHalfTheStoredHeight) {
    const PixelImage image = Read(IconFile({Solid32(8, 0xFF010203)}), 32);
    EXPECT_EQ(image.width, 8);
    EXPECT_EQ(image.height, 8);
}

TEST(IconReader, PngImageTakesPartInTheChoiceByTheWidthInItsHeader) {
    // A 16 x 16 bitmap image and a 48 x 48 PNG-coded one.
    PngCalls calls;
    const PixelImage image = ReadFile("icon_with_png.ico|48", 32, Noting(calls));
    ASSERT_EQ(calls.given.size(), 1u);
    EXPECT_EQ(calls.given[0], cv2test::ReadImageData("graded48.png"));
    EXPECT_EQ(image.width, 7) << "the decoder's picture is the image";
}

TEST(IconReader, BitmapImageThatFitsBetterIsStillChosen) {
    PngCalls calls;
    const PixelImage image = ReadFile("icon_with_png.ico|16", 32, Noting(calls));
    EXPECT_TRUE(calls.given.empty());
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("graded16")));
}

TEST(IconReader, IconOfPngImagesOnlyChoosesAmongThemBySize) {
    const std::string file =
        IconFile({cv2test::ReadImageData("graded16.png"), cv2test::ReadImageData("graded32.png"),
                  cv2test::ReadImageData("graded48.png")});
    for (const auto& [wanted, picture] :
         std::vector<std::pair<int, std::string>>{{32, "graded32.png"},
                                                  {47, "graded32.png"},
                                                  {64, "graded48.png"},
                                                  {20, "graded16.png"},
                                                  {8, "graded16.png"}}) {
        PngCalls calls;
        Read(file, wanted, Noting(calls));
        ASSERT_EQ(calls.given.size(), 1u) << wanted;
        EXPECT_EQ(calls.given[0], cv2test::ReadImageData(picture)) << wanted;
    }
}

TEST(IconReader, PngImageOfMoreThanThirtyTwoBitsIsSkipped) {
    // Sixteen bits for each of red, green, blue and alpha.
    PngCalls calls;
    const PixelImage image =
        Read(IconFile({PngHeader(16, 16, 6), Solid32(16, 0xFF010203)}), 16, Noting(calls));
    EXPECT_TRUE(calls.given.empty());
    EXPECT_EQ(image.width, 16);
}

TEST(IconReader, PngImageWithADamagedHeaderIsNotChosen) {
    std::string damaged = PngHeader(16, 8, 6);
    damaged[12] = 'X'; // the first chunk is no longer the header
    PngCalls calls;
    const PixelImage image = Read(IconFile({Solid4(8, 0x445566), damaged}), 16, Noting(calls));
    EXPECT_TRUE(calls.given.empty());
    EXPECT_EQ(image.width, 8);
}

TEST(IconReader, ChosenPngImageWithoutADecoderGivesNothing) {
    EXPECT_TRUE(ReadFile("icon_with_png.ico|48").Empty());
}

TEST(IconReader, PaletteImageTakesTransparencyFromTheMask) {
    const std::string file = IconFile({IconBitmap(
        4, 2, 4, {0x000000, 0x112233}, [](int, int) { return 1u; },
        [](int x, int y) { return x == 3 && y == 0; })});
    const PixelImage image = Read(file, 16);
    ASSERT_EQ(image.width, 4);
    EXPECT_TRUE(image.hasAlpha);
    EXPECT_EQ(image.At(3, 0)[3], 0);
    EXPECT_EQ(image.At(2, 0)[3], 255);
    EXPECT_EQ(image.At(3, 1)[3], 255);
    EXPECT_EQ(image.At(0, 1)[0], 0x33);
    EXPECT_EQ(image.At(0, 1)[2], 0x11);
}

TEST(IconReader, ImageWithoutMaskedPixelsIsOpaque) {
    const PixelImage image = Read(IconFile({Solid4(4, 0x445566)}), 16);
    ASSERT_FALSE(image.Empty());
    EXPECT_FALSE(image.hasAlpha);
}

TEST(IconReader, ThirtyTwoBitImageKeepsItsAlpha) {
    const PixelImage image = Read(IconFile({Solid32(2, 0x80102030)}), 16);
    ASSERT_FALSE(image.Empty());
    EXPECT_TRUE(image.hasAlpha);
    EXPECT_EQ(image.At(1, 1)[3], 0x80);
    EXPECT_EQ(image.At(1, 1)[2], 0x10);
}

TEST(IconReader, ThirtyTwoBitImageWithoutAlphaUsesTheMask) {
    const std::string file = IconFile({IconBitmap(
        2, 2, 32, {}, [](int, int) { return 0x00AABBCCu; },
        [](int x, int y) { return x == 0 && y == 1; })});
    const PixelImage image = Read(file, 16);
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(0, 1)[3], 0);
    EXPECT_EQ(image.At(1, 1)[3], 255);
    EXPECT_EQ(image.At(0, 0)[0], 0xCC);
}

TEST(IconReader, SixteenBitPixelsAreWidenedToEightBitsPerColour) {
    // Red 31, green 0, blue 16 in five bits each.
    const std::string file = IconFile({IconBitmap(
        1, 1, 16, {}, [](int, int) { return (31u << 10) | 16u; }, [](int, int) { return false; })});
    const PixelImage image = Read(file, 16);
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(0, 0)[2], 255);
    EXPECT_EQ(image.At(0, 0)[1], 0);
    EXPECT_EQ(image.At(0, 0)[0], 132);
}

TEST(IconReader, IndexPastThePaletteReadsBlack) {
    const std::string file = IconFile({IconBitmap(
        2, 1, 8, {0xFFFFFF}, [](int x, int) { return x == 0 ? 0u : 200u; },
        [](int, int) { return false; })});
    const PixelImage image = Read(file, 16);
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(0, 0)[1], 255);
    EXPECT_EQ(image.At(1, 0)[1], 0);
}

TEST(IconReader, CompressedBitmapIsNotRead) {
    const std::string file = IconFile({IconBitmap(
        2, 2, 8, {0xFFFFFF}, [](int, int) { return 0u; }, [](int, int) { return false; }, 1)});
    EXPECT_TRUE(Read(file, 16).Empty());
}

TEST(IconReader, EmptyDirectoryYieldsEmptyImage) {
    EXPECT_TRUE(Read(IconFile({}), 16).Empty());
}

TEST(IconReader, DirectoryLongerThanTheFileYieldsEmptyImage) {
    std::string file = IconFile({Solid32(2, 0xFF000000)});
    file[4] = '\xE8'; // 1000 entries
    file[5] = '\x03';
    EXPECT_TRUE(Read(file, 16).Empty());
}

TEST(IconReader, ImageOutsideTheFileIsSkipped) {
    std::string file = IconFile({Solid32(2, 0xFF000001), Solid32(2, 0xFF000002)});
    file[6 + 12 + 3] = '\x7F'; // the first image's offset far past the end
    EXPECT_EQ(Blue(Read(file, 16)), 2u);
    file = IconFile({Solid32(2, 0xFF000001), Solid32(2, 0xFF000002)});
    file[6 + 8 + 2] = '\x01'; // the first image's size past the end
    EXPECT_EQ(Blue(Read(file, 16)), 2u);
}

TEST(IconReader, UnreadableFirstImageWithoutACandidateYieldsEmptyImage) {
    std::string file = IconFile({Solid32(32, 0xFF000001)});
    file[6 + 12 + 3] = '\x7F';
    EXPECT_TRUE(Read(file, 16).Empty());
}

TEST(IconReader, HugeSizeInTheBitmapHeaderYieldsEmptyImage) {
    std::string file = IconFile({Solid32(2, 0xFF000000)});
    const size_t header = 6 + 16;
    file[header + 4 + 3] = '\x40'; // width 0x40000002
    EXPECT_TRUE(Read(file, 1 << 30).Empty());
    file = IconFile({Solid32(2, 0xFF000000)});
    file[header + 8 + 2] = '\x01'; // stored height 0x10004
    EXPECT_TRUE(Read(file, 16).Empty());
    file = IconFile({Solid32(2, 0xFF000000)});
    file[header + 8 + 3] = '\x80'; // negative height
    EXPECT_TRUE(Read(file, 16).Empty());
}

TEST(IconReader, PaletteLargerThanTheImageYieldsEmptyImage) {
    std::string file = IconFile({Solid4(2, 0x123456)});
    file[6 + 16 + 32 + 1] = '\x01'; // 258 colours used
    EXPECT_TRUE(Read(file, 16).Empty());
}

TEST(IconReader, SingleImageFileCutAnywhereYieldsEmptyImage) {
    for (const char* name : {"icon_1bit.ico", "icon_24bit.ico", "icon_32bit.ico"}) {
        const std::string file = cv2test::ReadImageData(name);
        ASSERT_FALSE(Read(file, 32).Empty()) << name;
        for (size_t length = 0; length < file.size(); ++length)
            EXPECT_TRUE(Read(file.substr(0, length), 32).Empty()) << name << " cut to " << length;
    }
}

TEST(IconReader, ManyImageFileCutAnywhereGivesAWholeImageOrNone) {
    const std::string file = cv2test::ReadImageData("icon_sizes.ico");
    for (size_t length = 0; length < file.size(); ++length) {
        const PixelImage image = Read(file.substr(0, length), 32);
        if (!image.Empty()) {
            EXPECT_EQ(image.pixels.size(), static_cast<size_t>(image.width) * image.height * 4);
        }
    }
}

TEST(IconReader, MissingFileGivesEmptyImage) {
    EXPECT_TRUE(ReadFile("no such file.ico|16").Empty());
}

// Every icon file made by icoutils and ImageMagick decodes to its picture.
struct IconCase {
    const char* name; // test name
    const char* file; // with a size suffix
    const char* picture;
};

void PrintTo(const IconCase& c, std::ostream* os) {
    *os << c.file;
}

class IconFiles : public ::testing::TestWithParam<IconCase> {};

TEST_P(IconFiles, DecodeToThePicturePixelForPixel) {
    const IconCase& c = GetParam();
    EXPECT_TRUE(cv2test::SamePixels(ReadFile(c.file), cv2test::Picture(c.picture)));
}

INSTANTIATE_TEST_SUITE_P(MadeByIcoutilsAndImageMagick, IconFiles,
                         ::testing::Values(IconCase{"OneBit", "icon_1bit.ico", "bw16"},
                                           IconCase{"FourBit16", "icon_4bit.ico|16", "few16"},
                                           IconCase{"FourBit32", "icon_4bit.ico|32", "few32"},
                                           IconCase{"EightBit32", "icon_8bit.ico|32", "few32"},
                                           IconCase{"EightBit48", "icon_8bit.ico|48", "few48"},
                                           IconCase{"TwentyFourBit", "icon_24bit.ico", "few32"},
                                           IconCase{"ThirtyTwoBit", "icon_32bit.ico", "graded32"},
                                           IconCase{"Sizes48", "icon_sizes.ico|48", "graded48"},
                                           IconCase{"Magick16", "icon_magick.ico|16", "graded16"},
                                           IconCase{"Magick32", "icon_magick.ico|32", "few32"},
                                           IconCase{"Magick48", "icon_magick.ico|48", "graded48"}),
                         [](const ::testing::TestParamInfo<IconCase>& info) {
                             return std::string(info.param.name);
                         });
