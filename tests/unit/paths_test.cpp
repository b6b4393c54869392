#include "store/paths.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(Paths, DevicePathStartingWithBackslashIsAbsolute) {
    EXPECT_TRUE(IsAbsolutePath(L"\\Windows\\a.png"));
}

TEST(Paths, DriveLetterAndUncPathsAreAbsolute) {
    EXPECT_TRUE(IsAbsolutePath(L"C:\\x\\a.png"));
    EXPECT_TRUE(IsAbsolutePath(L"z:/x"));
    EXPECT_TRUE(IsAbsolutePath(L"\\\\server\\share\\a"));
}

TEST(Paths, BareAndRelativeNamesAreNotAbsolute) {
    EXPECT_FALSE(IsAbsolutePath(L"a.png"));
    EXPECT_FALSE(IsAbsolutePath(L"Themes\\a.png"));
    EXPECT_FALSE(IsAbsolutePath(L"C:a.png"));
    EXPECT_FALSE(IsAbsolutePath(L""));
}

TEST(Paths, FolderOfKeepsTheLastBackslash) {
    EXPECT_EQ(FolderOf(L"\\a\\b\\c.skin"), L"\\a\\b\\");
    EXPECT_EQ(FolderOf(L"c.skin"), L"");
}

TEST(Paths, FolderWithSlashAppendsOnlyWhenMissing) {
    EXPECT_EQ(FolderWithSlash(L"\\a"), L"\\a\\");
    EXPECT_EQ(FolderWithSlash(L"\\a\\"), L"\\a\\");
    EXPECT_EQ(FolderWithSlash(L""), L"");
}

TEST(Paths, CutToBufferKeepsRoomForTheTerminator) {
    EXPECT_EQ(CutToBuffer(L"abcdefgh", 5), L"abcd");
    EXPECT_EQ(CutToBuffer(L"abc", 5), L"abc");
    EXPECT_EQ(CutToBuffer(L"abc", 0), L"");
}

TEST(Paths, QuestionMarkStandsForExactlyOneCharacter) {
    EXPECT_TRUE(MatchesPattern(L"ab", L"a?"));
    EXPECT_FALSE(MatchesPattern(L"a", L"a?"));
    EXPECT_FALSE(MatchesPattern(L"abc", L"a?"));
}
