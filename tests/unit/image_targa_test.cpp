#include "ui/image/targa_reader.h"

#include <gtest/gtest.h>

#include "image_test_data.h"
#include "ui/image/image_files.h"

using namespace cv2;
using cv2test::TargaFile;

namespace {

PixelImage Read(const std::string& file) {
    return ReadTarga(reinterpret_cast<const unsigned char*>(file.data()), file.size());
}

// A 32-bit pixel as stored: blue, green, red, alpha.
std::string Bgra(int b, int g, int r, int a) {
    return {static_cast<char>(b), static_cast<char>(g), static_cast<char>(r), static_cast<char>(a)};
}

// Two columns, three rows; the stored row i has blue = 10 * (i + 1) and alpha = 100 + i.
std::string ThreeRows() {
    std::string data;
    for (int row = 0; row < 3; ++row) {
        data += Bgra(10 * (row + 1), 1, 2, 100 + row);
        data += Bgra(10 * (row + 1), 3, 4, 100 + row);
    }
    return data;
}

} // namespace

TEST(TargaReader, TopLeftOriginThirtyTwoBitShowsUpright) {
    const PixelImage image = Read(TargaFile(2, 2, 3, 32, 0x28, ThreeRows()));
    ASSERT_EQ(image.width, 2);
    ASSERT_EQ(image.height, 3);
    EXPECT_EQ(image.At(0, 0)[0], 10); // the first stored row is the top row
    EXPECT_EQ(image.At(1, 2)[0], 30);
    EXPECT_EQ(image.At(0, 0)[3], 100);
    EXPECT_EQ(image.At(1, 0)[1], 3);
}

TEST(TargaReader, BottomLeftOriginTakesRowsBottomUpAsStored) {
    const PixelImage image = Read(TargaFile(2, 2, 3, 32, 0x08, ThreeRows()));
    ASSERT_EQ(image.height, 3);
    EXPECT_EQ(image.At(0, 2)[0], 10); // the first stored row is the bottom row
    EXPECT_EQ(image.At(0, 1)[0], 20);
    EXPECT_EQ(image.At(1, 0)[0], 30);
    EXPECT_EQ(image.At(1, 0)[3], 102);
}

TEST(TargaReader, SixteenBitYieldsNoPixels) {
    const std::string file = TargaFile(2, 4, 4, 16, 0, std::string(4 * 4 * 2, '\x55'));
    EXPECT_TRUE(Read(file).Empty());
    EXPECT_TRUE(Read(TargaFile(10, 4, 4, 16, 0, "\x8F\x55\x55")).Empty());
}

TEST(TargaReader, DepthsOtherThanTwentyFourAndThirtyTwoYieldNoPixels) {
    for (int depth : {0, 8, 15, 31, 33, 48})
        EXPECT_TRUE(Read(TargaFile(2, 2, 2, depth, 0, std::string(64, '\x7F'))).Empty()) << depth;
}

TEST(TargaReader, RawTypesOneToThreeAreRead) {
    for (int type : {1, 2, 3}) {
        const PixelImage image = Read(TargaFile(type, 1, 1, 24, 0, "\x01\x02\x03"));
        ASSERT_FALSE(image.Empty()) << type;
        EXPECT_EQ(image.At(0, 0)[0], 1);
        EXPECT_EQ(image.At(0, 0)[2], 3);
    }
}

TEST(TargaReader, RunLengthTypesNineToElevenAreRead) {
    for (int type : {9, 10, 11}) {
        // One run packet of two pixels.
        const PixelImage image = Read(TargaFile(type, 2, 1, 24, 0, "\x81\x01\x02\x03"));
        ASSERT_FALSE(image.Empty()) << type;
        EXPECT_EQ(image.At(1, 0)[0], 1);
        EXPECT_EQ(image.At(1, 0)[2], 3);
    }
}

TEST(TargaReader, OtherImageTypesYieldNoPixels) {
    for (int type : {0, 4, 8, 12, 32, 33, 255})
        EXPECT_TRUE(Read(TargaFile(type, 1, 1, 24, 0, std::string(16, '\x81'))).Empty()) << type;
}

TEST(TargaReader, ZeroWidthOrHeightYieldsNoPixels) {
    EXPECT_TRUE(Read(TargaFile(2, 0, 1, 24, 0, "\x01\x02\x03")).Empty());
    EXPECT_TRUE(Read(TargaFile(2, 1, 0, 24, 0, "\x01\x02\x03")).Empty());
}

TEST(TargaReader, ThirtyTwoBitSourceHasAlpha) {
    const PixelImage image = Read(TargaFile(2, 1, 1, 32, 0x08, Bgra(1, 2, 3, 77)));
    EXPECT_TRUE(image.hasAlpha);
    EXPECT_EQ(image.At(0, 0)[3], 77);
}

TEST(TargaReader, TwentyFourBitSourceIsOpaque) {
    const PixelImage image = Read(TargaFile(2, 1, 1, 24, 0, "\x01\x02\x03"));
    EXPECT_FALSE(image.hasAlpha);
    EXPECT_EQ(image.At(0, 0)[3], 255);
}

TEST(TargaReader, ThirtyTwoBitWithEveryAlphaZeroShowsOpaque) {
    const PixelImage image = Read(TargaFile(2, 2, 1, 32, 0, Bgra(1, 2, 3, 0) + Bgra(4, 5, 6, 0)));
    EXPECT_FALSE(image.hasAlpha);
    EXPECT_EQ(image.At(1, 0)[3], 255);
    EXPECT_EQ(image.At(1, 0)[0], 4);
}

TEST(TargaReader, RunLengthPacketsRunAcrossRowEnds) {
    // 3 x 2: a run of four pixels, then a raw packet of two.
    const std::string data = std::string("\x83\x09\x08\x07") + "\x01" + "\x01\x01\x01\x02\x02\x02";
    const PixelImage image = Read(TargaFile(10, 3, 2, 24, 0x20, data));
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(2, 0)[0], 9);
    EXPECT_EQ(image.At(0, 1)[0], 9);
    EXPECT_EQ(image.At(1, 1)[0], 1);
    EXPECT_EQ(image.At(2, 1)[0], 2);
}

TEST(TargaReader, PacketReachingPastTheLastPixelIsCut) {
    const PixelImage image = Read(TargaFile(10, 2, 1, 24, 0, "\xFF\x05\x06\x07"));
    ASSERT_EQ(image.width, 2);
    EXPECT_EQ(image.At(1, 0)[2], 7);
}

TEST(TargaReader, ImageIdIsSkipped) {
    const PixelImage image = Read(TargaFile(2, 1, 1, 24, 0, "\x01\x02\x03", "an id"));
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(0, 0)[0], 1);
}

TEST(TargaReader, ColourMapBeforeThePixelsIsSkipped) {
    std::string file =
        TargaFile(2, 1, 1, 24, 0, std::string("\xAA\xBB\xCC\xDD\xEE\xFF") + "\x01\x02\x03");
    file[1] = 1;  // a colour map is present
    file[5] = 2;  // of two entries
    file[7] = 24; // of 24 bits each
    const PixelImage image = Read(file);
    ASSERT_FALSE(image.Empty());
    EXPECT_EQ(image.At(0, 0)[0], 1);
}

TEST(TargaReader, FileCutAnywhereYieldsEmptyImage) {
    for (const char* name : {"alpha32_bl_raw.tga", "alpha32_tl_rle.tga", "opaque24_bl_rle.tga",
                             "opaque24_id_rle.tga"}) {
        const std::string file = cv2test::ReadImageData(name);
        ASSERT_FALSE(Read(file).Empty()) << name;
        for (size_t length = 0; length < file.size(); ++length)
            EXPECT_TRUE(Read(file.substr(0, length)).Empty()) << name << " cut to " << length;
    }
}

TEST(TargaReader, HugeSizeInTheHeaderWithLittleDataYieldsEmptyImage) {
    EXPECT_TRUE(Read(TargaFile(2, 65535, 65535, 32, 0, std::string(64, '\0'))).Empty());
    EXPECT_TRUE(Read(TargaFile(10, 65535, 65535, 32, 0, std::string(64, '\xFF'))).Empty());
}

TEST(TargaReader, IdLongerThanTheFileYieldsEmptyImage) {
    std::string file = TargaFile(2, 1, 1, 24, 0, "\x01\x02\x03");
    file[0] = static_cast<char>(200);
    EXPECT_TRUE(Read(file).Empty());
}

TEST(TargaReader, MissingFileGivesEmptyImage) {
    EXPECT_TRUE(ReadTargaFile(cv2test::ImageDataPath("no such file.tga")).Empty());
}

// Every Targa file ImageMagick made from the two pictures decodes to the picture itself.
struct TargaCase {
    const char* file;
    const char* picture;
    bool alpha;
};

void PrintTo(const TargaCase& c, std::ostream* os) {
    *os << c.file;
}

class TargaFiles : public ::testing::TestWithParam<TargaCase> {};

TEST_P(TargaFiles, DecodeToThePicturePixelForPixel) {
    const TargaCase& c = GetParam();
    const PixelImage image = ReadTargaFile(cv2test::ImageDataPath(c.file));
    const PixelImage picture = cv2test::Picture(c.picture);
    EXPECT_EQ(image.hasAlpha, c.alpha);
    EXPECT_TRUE(cv2test::SamePixels(image, c.alpha ? picture : cv2test::Opaque(picture)));
}

INSTANTIATE_TEST_SUITE_P(MadeByImageMagick, TargaFiles,
                         ::testing::Values(TargaCase{"opaque24_bl_raw.tga", "opaque", false},
                                           TargaCase{"opaque24_bl_rle.tga", "opaque", false},
                                           TargaCase{"opaque24_tl_raw.tga", "opaque", false},
                                           TargaCase{"opaque24_tl_rle.tga", "opaque", false},
                                           TargaCase{"opaque24_id_rle.tga", "opaque", false},
                                           TargaCase{"alpha32_bl_raw.tga", "alpha", true},
                                           TargaCase{"alpha32_bl_rle.tga", "alpha", true},
                                           TargaCase{"alpha32_tl_raw.tga", "alpha", true},
                                           TargaCase{"alpha32_tl_rle.tga", "alpha", true}),
                         [](const ::testing::TestParamInfo<TargaCase>& info) {
                             std::string name = info.param.file;
                             name = name.substr(0, name.find('.'));
                             return name;
                         });
