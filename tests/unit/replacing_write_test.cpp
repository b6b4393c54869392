// A write that replaces a file either puts the whole new file in place or leaves the old one
// whole: whichever step fails, nothing half-written and no temporary file stays behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_access.h"
#include "temp_folder.h"

using cv2::WriteFailure;
using cv2::WriteStep;
using cv2test::TempFolder;

namespace {

const unsigned long kInjectedError = 112; // the Windows number of a full disk

class ReplacingWrite : public ::testing::TestWithParam<WriteStep> {
  protected:
    void SetUp() override { m_dir.Write(L"config.ini", "[Old]\nKey=old\n"); }
    void TearDown() override { cv2::InjectWriteFault(WriteStep::None, 0); }
    bool WriteNew(WriteFailure* failure) const {
        const std::string text = "[New]\nKey=new\n";
        return cv2::WriteFileReplacing(m_dir.File(L"config.ini"),
                                       cv2::Bytes(text.begin(), text.end()), failure);
    }
    bool TemporaryExists() const { return std::filesystem::exists(Host(L"config.ini.tmp~")); }
    std::filesystem::path Host(const std::wstring& name) const {
        std::wstring p = m_dir.File(name);
        for (wchar_t& c : p) {
            if (c == L'\\')
                c = L'/';
        }
        return std::filesystem::path(p);
    }
    TempFolder m_dir;
};

} // namespace

TEST_P(ReplacingWrite, FaultAtAnyStepKeepsTheOldFileWholeAndLeavesNoTemporaryFile) {
    cv2::InjectWriteFault(GetParam(), kInjectedError);
    WriteFailure failure;
    EXPECT_FALSE(WriteNew(&failure));
    EXPECT_EQ(failure.step, GetParam());
    EXPECT_EQ(failure.error, kInjectedError);
    EXPECT_EQ(m_dir.Read(L"config.ini"), "[Old]\nKey=old\n");
    EXPECT_FALSE(TemporaryExists());
}

TEST_P(ReplacingWrite, WriteAfterTheFaultEndsPutsTheWholeNewFileInPlace) {
    cv2::InjectWriteFault(GetParam(), kInjectedError);
    ASSERT_FALSE(WriteNew(nullptr));
    cv2::InjectWriteFault(WriteStep::None, 0);
    WriteFailure failure;
    EXPECT_TRUE(WriteNew(&failure));
    EXPECT_EQ(failure.step, WriteStep::None);
    EXPECT_EQ(m_dir.Read(L"config.ini"), "[New]\nKey=new\n");
    EXPECT_FALSE(TemporaryExists());
}

INSTANTIATE_TEST_SUITE_P(EveryStep, ReplacingWrite,
                         ::testing::Values(WriteStep::CreateTemporary, WriteStep::Write,
                                           WriteStep::Flush, WriteStep::Close, WriteStep::Replace));

TEST(ReplacingWriteFolder, FolderWhereTheTemporaryFileGoesFailsAndIsLeftAlone) {
    TempFolder dir;
    dir.Write(L"config.ini", "[Old]\n");
    std::wstring folder = dir.File(L"config.ini.tmp~");
    for (wchar_t& c : folder) {
        if (c == L'\\')
            c = L'/';
    }
    ASSERT_TRUE(std::filesystem::create_directory(std::filesystem::path(folder)));
    WriteFailure failure;
    const std::string text = "[New]\n";
    EXPECT_FALSE(cv2::WriteFileReplacing(dir.File(L"config.ini"),
                                         cv2::Bytes(text.begin(), text.end()), &failure));
    EXPECT_EQ(failure.step, WriteStep::CreateTemporary);
    EXPECT_NE(failure.error, 0u);
    EXPECT_EQ(dir.Read(L"config.ini"), "[Old]\n");
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(folder)));
}
