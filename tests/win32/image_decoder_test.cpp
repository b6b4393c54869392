// The platform's image decoder: BMP, PNG, GIF and JPEG files made by ImageMagick, read through
// the chunk callback.
#include "platform/image_decoder.h"

#include <gtest/gtest.h>

#include <string>

#include "../unit/image_test_data.h"
#include "ui/image/image_loader.h"
#include "ui/image/loaded_image.h"

using namespace cv2;

namespace {

// Hands out a string in chunks and counts the calls.
struct ChunkSource {
    std::string bytes;
    size_t at = 0;
    int calls = 0;
};

DWORD CALLBACK FromString(LPSTR buffer, DWORD bufferMax, LPARAM lParam) {
    ChunkSource* source = reinterpret_cast<ChunkSource*>(lParam);
    ++source->calls;
    const size_t n = std::min<size_t>(bufferMax, source->bytes.size() - source->at);
    std::copy(source->bytes.begin() + source->at, source->bytes.begin() + source->at + n, buffer);
    source->at += n;
    return static_cast<DWORD>(n);
}

// Decodes `bytes` through the callback; the bitmap (or null) is returned, the caller deletes it.
HBITMAP Decode(ChunkSource& source, int depth, DWORD chunk = 100, int maxWidth = 0,
               HRESULT* result = nullptr, DWORD* read = nullptr) {
    std::string buffer(chunk, '\0');
    HBITMAP bitmap = reinterpret_cast<HBITMAP>(1); // must be cleared on failure
    DecompressImageInfo info = {};
    info.dwSize = sizeof info;
    info.pbBuffer = reinterpret_cast<LPBYTE>(&buffer[0]);
    info.dwBufferMax = chunk;
    info.phBM = &bitmap;
    info.iBitDepth = depth;
    info.lParam = reinterpret_cast<LPARAM>(&source);
    info.iMaxWidth = maxWidth;
    info.pfnGetData = FromString;
    const HRESULT hr = DecompressImageIndirect(&info);
    if (result)
        *result = hr;
    if (read)
        *read = info.dwBufferCurrent;
    return bitmap;
}

PixelImage DecodeData(const char* name) {
    return DecodeWithPlatform(cv2test::ImageDataPath(name));
}

} // namespace

TEST(PlatformDecoder, PngWithAlphaDecodesToThePicture) {
    const PixelImage image = DecodeData("alpha.png");
    EXPECT_TRUE(image.hasAlpha);
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("alpha")));
}

TEST(PlatformDecoder, OpaquePngDecodesWithoutAlpha) {
    const PixelImage image = DecodeData("opaque.png");
    EXPECT_FALSE(image.hasAlpha);
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("opaque")));
}

TEST(PlatformDecoder, BmpDecodesToThePicture) {
    EXPECT_TRUE(cv2test::SamePixels(DecodeData("opaque.bmp"), cv2test::Picture("opaque")));
}

TEST(PlatformDecoder, GifKeepsItsTransparentColour) {
    const PixelImage image = DecodeData("few32.gif");
    EXPECT_TRUE(image.hasAlpha);
    EXPECT_TRUE(cv2test::SamePixels(image, cv2test::Picture("few32")));
}

TEST(PlatformDecoder, JpegDecodesCloseToTheReferenceDecoding) {
    // JPEG decoders may differ by a few levels per channel.
    EXPECT_TRUE(cv2test::SamePixels(DecodeData("opaque.jpg"), cv2test::Picture("opaque_jpg"), 6));
}

TEST(PlatformDecoder, FileIsReadThroughTheCallbackInChunks) {
    ChunkSource source{cv2test::ReadImageData("alpha.png")};
    DWORD read = 0;
    HBITMAP bitmap = Decode(source, 32, 64, 0, nullptr, &read);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(read, source.bytes.size());
    EXPECT_EQ(source.calls, static_cast<int>((source.bytes.size() + 63) / 64) + 1);
    DeleteObject(bitmap);
}

TEST(PlatformDecoder, ResultIsABottomUpDibSectionOfTheWantedDepth) {
    for (int depth : {24, 32}) {
        ChunkSource source{cv2test::ReadImageData("opaque.png")};
        HBITMAP bitmap = Decode(source, depth);
        ASSERT_NE(bitmap, nullptr);
        DIBSECTION dib = {};
        ASSERT_EQ(GetObjectW(bitmap, sizeof dib, &dib), static_cast<int>(sizeof dib));
        EXPECT_EQ(dib.dsBm.bmBitsPixel, depth);
        EXPECT_EQ(dib.dsBmih.biHeight, 17);
        EXPECT_EQ(dib.dsBm.bmWidth, 23);
        DeleteObject(bitmap);
    }
}

TEST(PlatformDecoder, TwentyFourBitsComposeTransparencyOntoWhite) {
    ChunkSource source{cv2test::ReadImageData("alpha.png")};
    HBITMAP bitmap = Decode(source, 24);
    ASSERT_NE(bitmap, nullptr);
    PixelImage image = PixelsFromBitmap(bitmap);
    DeleteObject(bitmap);
    EXPECT_FALSE(image.hasAlpha);
    // Each pixel is the picture's colour c with alpha a over white: c * a + 255 * (1 - a).
    PixelImage expected = cv2test::Picture("alpha");
    for (size_t i = 0; i < expected.pixels.size(); i += 4) {
        const int a = expected.pixels[i + 3];
        for (int c = 0; c < 3; ++c)
            expected.pixels[i + c] = static_cast<unsigned char>(
                (expected.pixels[i + c] * a + 255 * (255 - a) + 127) / 255);
        expected.pixels[i + 3] = 255;
    }
    EXPECT_TRUE(cv2test::SamePixels(image, expected, 1));
}

TEST(PlatformDecoder, LargerPictureIsShrunkToTheMaximumKeepingItsShape) {
    ChunkSource source{cv2test::ReadImageData("opaque.png")};
    HBITMAP bitmap = Decode(source, 32, 4096, 10);
    ASSERT_NE(bitmap, nullptr);
    BITMAP bm = {};
    GetObjectW(bitmap, sizeof bm, &bm);
    EXPECT_EQ(bm.bmWidth, 10);
    EXPECT_EQ(bm.bmHeight, 7);
    DeleteObject(bitmap);
}

TEST(PlatformDecoder, DamagedDataGivesNoBitmap) {
    std::string png = cv2test::ReadImageData("alpha.png");
    ChunkSource source{png.substr(0, 40)};
    HRESULT hr = S_OK;
    EXPECT_EQ(Decode(source, 32, 100, 0, &hr), nullptr);
    EXPECT_TRUE(FAILED(hr));
    ChunkSource garbage{std::string(500, '\x5A')};
    EXPECT_EQ(Decode(garbage, 32, 100, 0, &hr), nullptr);
    EXPECT_TRUE(FAILED(hr));
}

TEST(PlatformDecoder, EmptyFileGivesNoBitmap) {
    ChunkSource source;
    HRESULT hr = S_OK;
    EXPECT_EQ(Decode(source, 32, 100, 0, &hr), nullptr);
    EXPECT_TRUE(FAILED(hr));
}

TEST(PlatformDecoder, MissingFileGivesEmptyImage) {
    EXPECT_TRUE(DecodeData("no such picture.png").Empty());
}
