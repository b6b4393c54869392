// Files read and written piece by piece, and folders made and moved: the file-access calls that
// unpack a package into a folder and move it into place whole. Both implementations run them.
#include <gtest/gtest.h>

#include <string>

#include "platform/file_access.h"
#include "temp_folder.h"

using namespace cv2;
using cv2test::TempFolder;

namespace {

const unsigned char* Data(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

TEST(FilePieces, InputFileReadsAtAnyOffsetAndNotPastTheEnd) {
    TempFolder dir;
    dir.Write(L"a.bin", "0123456789");
    InputFile file;
    ASSERT_TRUE(file.Open(dir.File(L"a.bin")));
    EXPECT_EQ(file.Size(), 10u);
    unsigned char got[4] = {};
    ASSERT_TRUE(file.ReadAt(6, got, 4));
    EXPECT_EQ(std::string(got, got + 4), "6789");
    EXPECT_FALSE(file.ReadAt(7, got, 4));
    EXPECT_FALSE(file.ReadAt(~0ull, got, 1));
}

TEST(FilePieces, InputFileOfAMissingFileDoesNotOpen) {
    TempFolder dir;
    InputFile file;
    EXPECT_FALSE(file.Open(dir.File(L"gone.bin")));
    unsigned char got[1];
    EXPECT_FALSE(file.ReadAt(0, got, 1));
}

TEST(FilePieces, OutputFileWritesPiecesAndRefusesATakenName) {
    TempFolder dir;
    {
        OutputFile file;
        ASSERT_TRUE(file.Create(dir.File(L"a.bin"), false));
        ASSERT_TRUE(file.Write(Data("abc"), 3));
        ASSERT_TRUE(file.Write(Data("def"), 3));
        EXPECT_TRUE(file.Close(false));
    }
    EXPECT_EQ(dir.Read(L"a.bin"), "abcdef");
    OutputFile again;
    EXPECT_FALSE(again.Create(dir.File(L"a.bin"), false));
    EXPECT_EQ(dir.Read(L"a.bin"), "abcdef");
    ASSERT_TRUE(again.Create(dir.File(L"a.bin"), true));
    EXPECT_TRUE(again.Close(true));
    EXPECT_EQ(dir.Read(L"a.bin"), "");
}

TEST(FilePieces, ReplacingFileWithoutCommitLeavesTheOldFileAndNothingElse) {
    TempFolder dir;
    dir.Write(L"a.zip", "old");
    {
        ReplacingFile file(dir.File(L"a.zip"));
        ASSERT_TRUE(file.Open());
        ASSERT_TRUE(file.Write(Data("new"), 3));
    }
    EXPECT_EQ(dir.Read(L"a.zip"), "old");
    EXPECT_EQ(ListFiles(dir.Path(), L"*"), std::vector<std::wstring>{L"a.zip"});
}

TEST(FilePieces, ReplacingFileCommittedReplacesTheOldFile) {
    TempFolder dir;
    dir.Write(L"a.zip", "old");
    ReplacingFile file(dir.File(L"a.zip"));
    ASSERT_TRUE(file.Open());
    ASSERT_TRUE(file.Write(Data("new"), 3));
    ASSERT_TRUE(file.Commit());
    EXPECT_EQ(dir.Read(L"a.zip"), "new");
    EXPECT_EQ(ListFiles(dir.Path(), L"*"), std::vector<std::wstring>{L"a.zip"});
}

TEST(FilePieces, MakeFolderFailsWhenTheNameIsTaken) {
    TempFolder dir;
    EXPECT_TRUE(MakeFolder(dir.File(L"a")));
    EXPECT_FALSE(MakeFolder(dir.File(L"a")));
    dir.Write(L"b", "file");
    EXPECT_FALSE(MakeFolder(dir.File(L"b")));
}

TEST(FilePieces, MoveFolderMovesItWholeAndNeverOntoATakenName) {
    TempFolder dir;
    dir.MakeFolder(L"from\\inner");
    dir.Write(L"from\\inner\\a.txt", "a");
    dir.MakeFolder(L"taken");
    EXPECT_FALSE(MoveFolder(dir.File(L"from"), dir.File(L"taken")));
    EXPECT_TRUE(dir.HasFolder(L"from"));
    ASSERT_TRUE(MoveFolder(dir.File(L"from"), dir.File(L"to")));
    EXPECT_FALSE(dir.HasFolder(L"from"));
    EXPECT_EQ(dir.Read(L"to\\inner\\a.txt"), "a");
}

TEST(FilePieces, TempFoldersAreNewAndNumbered) {
    TempFolder dir;
    dir.MakeFolder(L"~t1");
    const std::wstring first = MakeTempFolder(dir.Path(), L"~t");
    const std::wstring second = MakeTempFolder(dir.Path(), L"~t");
    EXPECT_EQ(first, dir.File(L"~t2\\"));
    EXPECT_EQ(second, dir.File(L"~t3\\"));
    EXPECT_TRUE(MakeTempFolder(dir.File(L"missing"), L"~t").empty());
}
