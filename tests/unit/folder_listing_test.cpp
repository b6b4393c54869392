// Folder listing, tree removal and attribute queries of the file module, on real folders.
#include "platform/file_access.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "store/paths.h"
#include "temp_folder.h"

#ifdef _WIN32
#include <windows.h>
#endif

using namespace cv2;
using namespace cv2test;

namespace {

using Names = std::vector<std::wstring>;

Names Sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

TEST(FolderListing, SubfoldersAreListedWithoutFilesOrDots) {
    TempFolder dir;
    dir.MakeFolder(L"B");
    dir.MakeFolder(L"a\\deeper");
    dir.Write(L"file.skin", "x");
    EXPECT_EQ(Sorted(ListSubfolders(dir.Path())), (Names{L"B", L"a"}));
    EXPECT_EQ(ListSubfolders(dir.File(L"B")), Names{});
}

TEST(FolderListing, FilesMatchThePatternWithoutRegardToCase) {
    TempFolder dir;
    dir.Write(L"one.skin", "");
    dir.Write(L"TWO.SKIN", "");
    dir.Write(L"three.skin.bak", "");
    dir.Write(L"four.ini", "");
    dir.MakeFolder(L"folder.skin");
    EXPECT_EQ(Sorted(ListFiles(dir.Path(), L"*.skin")), (Names{L"TWO.SKIN", L"one.skin"}));
    EXPECT_EQ(ListFiles(dir.Path(), L"f?ur.*"), Names{L"four.ini"});
}

TEST(FolderListing, MissingFolderListsNothing) {
    TempFolder dir;
    EXPECT_EQ(ListSubfolders(dir.File(L"gone")), Names{});
    EXPECT_EQ(ListFiles(dir.File(L"gone"), L"*.skin"), Names{});
}

TEST(FolderListing, PatternsMatchLikeTheFileSystem) {
    EXPECT_TRUE(MatchesPattern(L"a.skin", L"*.skin"));
    EXPECT_TRUE(MatchesPattern(L".skin", L"*.skin"));
    EXPECT_TRUE(MatchesPattern(L"anything", L"*"));
    EXPECT_TRUE(MatchesPattern(L"a.b.skin", L"*.*"));
    EXPECT_FALSE(MatchesPattern(L"a.skins", L"*.skin"));
    EXPECT_FALSE(MatchesPattern(L"skin", L"*.skin"));
    EXPECT_TRUE(MatchesPattern(L"\u00C9T\u00C9.SKIN", L"\u00E9t\u00E9.skin"));
    // Many stars on a long name end quickly.
    EXPECT_FALSE(MatchesPattern(std::wstring(5000, L'a'), L"*a*a*a*a*a*a*a*a*b"));
}

TEST(FolderListing, RemoveFolderTreeTakesFilesAndSubfolders) {
    TempFolder dir;
    dir.MakeFolder(L"theme\\images\\big");
    dir.Write(L"theme\\theme.skin", "x");
    dir.Write(L"theme\\images\\a.bmp", "x");
    dir.Write(L"theme\\images\\big\\b.bmp", "x");
    dir.MakeFolder(L"keep");
    EXPECT_TRUE(RemoveFolderTree(dir.File(L"theme")));
    EXPECT_FALSE(dir.HasFolder(L"theme"));
    EXPECT_TRUE(dir.HasFolder(L"keep"));
}

TEST(FolderListing, RemovingAMissingFolderFailsQuietly) {
    TempFolder dir;
    EXPECT_FALSE(RemoveFolderTree(dir.File(L"gone")));
}

#ifdef _WIN32
TEST(FolderListing, RemoveFolderTreeGoesOnPastAFileItCannotRemove) {
    TempFolder dir;
    dir.MakeFolder(L"theme\\a");
    dir.MakeFolder(L"theme\\z");
    dir.Write(L"theme\\a\\stuck.bmp", "x");
    dir.Write(L"theme\\z\\loose.bmp", "x");
    dir.Write(L"theme\\loose.skin", "x");
    ASSERT_TRUE(
        SetFileAttributesW(dir.File(L"theme\\a\\stuck.bmp").c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(RemoveFolderTree(dir.File(L"theme")));
    EXPECT_TRUE(FileExists(dir.File(L"theme\\a\\stuck.bmp")));
    EXPECT_FALSE(FileExists(dir.File(L"theme\\loose.skin")));
    EXPECT_FALSE(dir.HasFolder(L"theme\\z"));
    SetFileAttributesW(dir.File(L"theme\\a\\stuck.bmp").c_str(), FILE_ATTRIBUTE_NORMAL);
}
#endif

TEST(FolderListing, AttributesOfAFolderAndOfNothing) {
    TempFolder dir;
    dir.Write(L"f.txt", "x");
    EXPECT_NE(FileAttributes(dir.Path()) & kAttributeFolder, 0u);
    EXPECT_EQ(FileAttributes(dir.File(L"f.txt")) & kAttributeFolder, 0u);
    EXPECT_EQ(FileAttributes(dir.File(L"gone")), kNoFileAttributes);
}
