// Apply when config.ini cannot be written: the user is told which file and why, the old file
// stays whole, the pages keep their edits for another try, and Done keeps the editor open.
#include "app_fixture.h"
#include "color_dialog_driver.h"

#include "app/save_failure.h"
#include "platform/file_access.h"

namespace cv2test {
namespace {

// A page whose value the test changes between two Apply presses.
class ValuePage : public cv2::SettingsPage {
  public:
    ValuePage() : SettingsPage(L"Value") {}
    void Create(HWND) override {}
    void Show(bool) override {}
    void Save(cv2::IniDocument* target) override {
        SaveTarget(target).SetString(L"Test", L"Key", value.c_str());
    }
    std::wstring value = L"edited";
};

struct Box {
    std::wstring caption;
    std::wstring text;
};

// Reads the next message box and presses its OK.
void ReadNextBox(Box& box) {
    DialogDriver::OnNextDialog(
        [&box](HWND dlg) {
            wchar_t text[1024] = {};
            GetWindowTextW(dlg, text, 1024);
            box.caption = text;
            GetDlgItemTextW(dlg, 0xFFFF, text, 1024); // a message box's text control
            box.text = text;
        },
        IDOK);
}

class ApplyFailure : public AppFixture, public ::testing::WithParamInterface<cv2::WriteStep> {
  protected:
    void SetUp() override {
        m_page = new ValuePage;
        MakeApp({m_page}, "[Test]\r\nKey=old\r\n");
    }
    void TearDown() override {
        cv2::InjectWriteFault(cv2::WriteStep::None, 0);
        AppFixture::TearDown();
    }
    ValuePage* m_page = nullptr;
};

} // namespace

TEST_P(ApplyFailure, UserIsToldTheFileAndTheReasonAndTheOldFileStaysWhole) {
    cv2::InjectWriteFault(GetParam(), ERROR_DISK_FULL);
    Box box;
    ReadNextBox(box);
    EXPECT_FALSE(m_app->Apply());
    EXPECT_EQ(box.caption, L"Settings Not Saved");
    EXPECT_NE(box.text.find(m_dir.File(L"config.ini")), std::wstring::npos) << box.text;
    const std::wstring expected = cv2::SaveFailureText(
        m_dir.File(L"config.ini"), cv2::WriteFailure{GetParam(), ERROR_DISK_FULL});
    EXPECT_EQ(box.text, expected);
    EXPECT_EQ(ConfigText(), "[Test]\r\nKey=old\r\n");
}

TEST_P(ApplyFailure, EditsAreKeptAndTheNextApplyWritesThem) {
    cv2::InjectWriteFault(GetParam(), ERROR_DISK_FULL);
    Box box;
    ReadNextBox(box);
    ASSERT_FALSE(m_app->Apply());
    cv2::InjectWriteFault(cv2::WriteStep::None, 0);
    EXPECT_TRUE(m_app->Apply());
    EXPECT_EQ(ConfigText(), "[Test]\r\nKey=edited\r\n\r\n");
}

INSTANTIATE_TEST_SUITE_P(EveryStep, ApplyFailure,
                         ::testing::Values(cv2::WriteStep::CreateTemporary, cv2::WriteStep::Write,
                                           cv2::WriteStep::Flush, cv2::WriteStep::Close,
                                           cv2::WriteStep::Replace));

TEST_F(AppFixture, DoneKeepsTheEditorOpenWhenTheSaveFails) {
    MakeApp({new ValuePage}, "[Test]\r\nKey=old\r\n");
    cv2::InjectWriteFault(cv2::WriteStep::Replace, ERROR_ACCESS_DENIED);
    Box box;
    ReadNextBox(box);
    SendMessageW(Main(), WM_COMMAND, IDOK, 0);
    cv2::InjectWriteFault(cv2::WriteStep::None, 0);
    MSG msg;
    EXPECT_FALSE(PeekMessageW(&msg, Main(), WM_CLOSE, WM_CLOSE, PM_REMOVE))
        << "Done must not close";
    EXPECT_EQ(box.caption, L"Settings Not Saved");
    EXPECT_TRUE(IsWindow(Main()));
}

TEST_F(AppFixture, DoneClosesOnceTheSaveSucceeds) {
    MakeApp({new ValuePage}, "[Test]\r\nKey=old\r\n");
    SendMessageW(Main(), WM_COMMAND, IDOK, 0);
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, Main(), WM_CLOSE, WM_CLOSE, PM_REMOVE));
    EXPECT_EQ(ConfigText(), "[Test]\r\nKey=edited\r\n\r\n");
}

// What the platform itself does when the old file cannot be replaced: these need no injected
// fault.
TEST_F(AppFixture, ReadOnlyConfigIsNotReplaced) {
    MakeApp({new ValuePage}, "[Test]\r\nKey=old\r\n");
    const std::wstring path = m_dir.File(L"config.ini");
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    Box box;
    ReadNextBox(box);
    EXPECT_FALSE(m_app->Apply());
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(box.caption, L"Settings Not Saved");
    EXPECT_EQ(ConfigText(), "[Test]\r\nKey=old\r\n");
}

TEST_F(AppFixture, ConfigHeldOpenWithoutSharingIsNotReplaced) {
    MakeApp({new ValuePage}, "[Test]\r\nKey=old\r\n");
    const std::wstring path = m_dir.File(L"config.ini");
    HANDLE held = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Box box;
    ReadNextBox(box);
    EXPECT_FALSE(m_app->Apply());
    CloseHandle(held);
    EXPECT_EQ(box.caption, L"Settings Not Saved");
    EXPECT_EQ(ConfigText(), "[Test]\r\nKey=old\r\n");
}

} // namespace cv2test
