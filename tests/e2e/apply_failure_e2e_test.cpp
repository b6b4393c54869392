// Apply on the real program when config.ini cannot be replaced: a message names the file, the
// file and the bar are left alone, Done keeps the editor open, and a later Apply succeeds.
#include "device_fixture.h"

namespace cv2test {
namespace {

class ApplyFailureE2E : public DeviceFixture {
  protected:
    // Presses a menu-bar or Done command without waiting for it (a message box will block it)
    // and returns the text of the message box it opens, after pressing its OK.
    std::wstring PressAndReadBox(WPARAM command) {
        PostMessageW(m_main, WM_COMMAND, command, 0);
        HWND box = nullptr;
        EXPECT_TRUE(WaitFor(
            [&] { return (box = FindWindowW(L"#32770", L"Settings Not Saved")) != nullptr; }));
        if (!box)
            return L"";
        wchar_t text[1024] = {};
        GetDlgItemTextW(box, 0xFFFF, text, 1024);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        WaitFor([&] { return !IsWindow(box); });
        return text;
    }
    void MakeReadOnly(bool readOnly) {
        SetFileAttributesW(File(L"config.ini").c_str(),
                           readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
    }
};

const WPARAM kApply = MAKEWPARAM(40001, 0);

} // namespace

TEST_F(ApplyFailureE2E, ReadOnlyConfigIsKeptAndTheBarIsNotTold) {
    WriteText(L"config.ini", "[Settings]\r\nKept=yes\r\n");
    MakeReadOnly(true);
    StartBar();
    ASSERT_TRUE(StartEditor());
    const std::wstring text = PressAndReadBox(kApply);
    MakeReadOnly(false);
    EXPECT_NE(text.find(File(L"config.ini")), std::wstring::npos) << "the message names the file";
    EXPECT_EQ(ReadText(L"config.ini"), "[Settings]\r\nKept=yes\r\n");
    EXPECT_EQ(BarLog(), "");
    EXPECT_TRUE(EditorRunning());
}

TEST_F(ApplyFailureE2E, DoneKeepsTheEditorOpenAndApplyWorksOnceTheFileIsWritable) {
    WriteText(L"config.ini", "[Settings]\r\nKept=yes\r\n");
    MakeReadOnly(true);
    StartBar();
    ASSERT_TRUE(StartEditor());
    PressAndReadBox(IDOK);
    Sleep(300); // time for a close that must not come
    EXPECT_TRUE(EditorRunning()) << "Done must not close when nothing was saved";
    MakeReadOnly(false);
    Apply();
    EXPECT_NE(ReadText(L"config.ini").find("[General Settings]"), std::string::npos);
    EXPECT_EQ(BarLog(), "child CVResetConfig 242 0\n");
}

} // namespace cv2test
