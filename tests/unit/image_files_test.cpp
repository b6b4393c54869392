#include "ui/image/image_files.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(ImageFiles, PathContainingIcoAnywhereGoesToTheIconReader) {
    EXPECT_EQ(ReaderForPath(L"\\Themes\\a\\start.ico"), ImageReader::Icon);
    EXPECT_EQ(ReaderForPath(L"\\Themes\\a\\start.ico|16"), ImageReader::Icon);
    EXPECT_EQ(ReaderForPath(L"\\My.Icons\\b.png"), ImageReader::Icon);
}

TEST(ImageFiles, PathIsComparedLowerCased) {
    EXPECT_EQ(ReaderForPath(L"\\A\\START.ICO"), ImageReader::Icon);
    EXPECT_EQ(ReaderForPath(L"\\A\\Bar.Tga"), ImageReader::Targa);
}

TEST(ImageFiles, PathContainingTgaGoesToTheTargaReader) {
    EXPECT_EQ(ReaderForPath(L"\\a\\bar.tga"), ImageReader::Targa);
}

TEST(ImageFiles, IcoIsLookedForBeforeTga) {
    EXPECT_EQ(ReaderForPath(L"\\a.tga\\b.ico"), ImageReader::Icon);
}

TEST(ImageFiles, OtherPicturesGoToThePlatformDecoder) {
    for (const wchar_t* path :
         {L"\\a\\b.png", L"\\a\\b.jpg", L"\\a\\b.gif", L"\\a\\b.bmp", L"", L"x"})
        EXPECT_EQ(ReaderForPath(path), ImageReader::Platform) << path;
}

TEST(IconPath, SizeSuffixIsSplitOff) {
    int size = 0;
    EXPECT_EQ(SplitIconSize(L"\\a\\b.ico|16", 32, size), L"\\a\\b.ico");
    EXPECT_EQ(size, 16);
}

TEST(IconPath, WithoutSuffixTheDefaultSizeIsWanted) {
    int size = 0;
    EXPECT_EQ(SplitIconSize(L"\\a\\b.ico", 32, size), L"\\a\\b.ico");
    EXPECT_EQ(size, 32);
}

TEST(IconPath, SuffixThatIsNoNumberKeepsTheDefaultSize) {
    int size = 0;
    EXPECT_EQ(SplitIconSize(L"\\a\\b.ico|big", 32, size), L"\\a\\b.ico");
    EXPECT_EQ(size, 32);
    EXPECT_EQ(SplitIconSize(L"\\a\\b.ico|", 48, size), L"\\a\\b.ico");
    EXPECT_EQ(size, 48);
    SplitIconSize(L"\\a\\b.ico|0", 48, size);
    EXPECT_EQ(size, 48);
}

TEST(IconPath, HugeSuffixDoesNotOverflow) {
    int size = 0;
    SplitIconSize(L"b.ico|99999999999999999999", 32, size);
    EXPECT_GT(size, 0);
}
