#include "store/text_codec.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(TextCodec, EveryNonNulByteRoundTrips) {
    std::string bytes;
    for (int b = 1; b < 256; ++b)
        bytes.push_back(static_cast<char>(b));
    std::wstring text =
        DecodeAnsi(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    ASSERT_EQ(text.size(), 255u);
    EXPECT_EQ(EncodeAnsi(text), bytes);
}

TEST(TextCodec, ReadsWindows1252Letters) {
    const unsigned char bytes[] = {0x80, 0xE9, 0x41};
    EXPECT_EQ(DecodeAnsi(bytes, 3), std::wstring(L"\x20AC\xE9"
                                                 L"A"));
}

TEST(TextCodec, UnmappableCharacterBecomesQuestionMark) {
    EXPECT_EQ(EncodeAnsi(L"a\x4E2D"), "a?");
}

TEST(TextCodec, Utf8OfLatinLetter) {
    EXPECT_EQ(EncodeUtf8(L"\xE9"), "\xC3\xA9");
}
