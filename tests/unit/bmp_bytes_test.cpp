// Writing a picture as a BMP file.
#include "ui/image/bmp_bytes.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {

uint32_t Le(const std::vector<unsigned char>& b, size_t at, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i)
        v = v << 8 | b[at + static_cast<size_t>(i)];
    return v;
}

} // namespace

TEST(BmpBytes, HeaderNamesSizeAndDepth) {
    const std::vector<unsigned char> bytes = BmpBytes(MakePixelImage(3, 2));
    ASSERT_EQ(bytes.size(), 54u + 12u * 2u) << "rows of nine bytes padded to twelve";
    EXPECT_EQ(bytes[0], 'B');
    EXPECT_EQ(bytes[1], 'M');
    EXPECT_EQ(Le(bytes, 2, 4), bytes.size());
    EXPECT_EQ(Le(bytes, 18, 4), 3u);
    EXPECT_EQ(Le(bytes, 22, 4), 2u);
    EXPECT_EQ(Le(bytes, 28, 2), 24u);
}

TEST(BmpBytes, RowsAreStoredBottomFirstInBlueGreenRed) {
    PixelImage image = MakePixelImage(1, 2);
    image.At(0, 0)[2] = 255; // top pixel red
    image.At(0, 1)[0] = 255; // bottom pixel blue
    const std::vector<unsigned char> bytes = BmpBytes(image);
    EXPECT_EQ(bytes[54], 255) << "the first row stored is the bottom one";
    EXPECT_EQ(bytes[54 + 2], 0);
    EXPECT_EQ(bytes[58 + 2], 255);
}

TEST(BmpBytes, EmptyPictureGivesNoFile) {
    EXPECT_TRUE(BmpBytes(PixelImage()).empty());
}
