// The Sound Events page in the real theme editor: the thirteen events, the path field that
// stores every edit in the selected event, and Play, which tests only the file part of the
// text and hands the whole text to the platform's playback.
#include "control_pages_support.h"
#include "pages/appearance/list_pages.h"
#include "platform/sound_playback.h"
#include "temp_folder.h"
#include "themes/theme_messages.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

// A short, silent-ish 8-bit mono wave file of `samples` samples at 8000 per second.
std::string WaveFile(uint32_t samples) {
    auto le32 = [](uint32_t v) {
        return std::string{char(v & 0xFF), char((v >> 8) & 0xFF), char((v >> 16) & 0xFF),
                           char((v >> 24) & 0xFF)};
    };
    auto le16 = [](uint16_t v) { return std::string{char(v & 0xFF), char((v >> 8) & 0xFF)}; };
    std::string fmt = le16(1) + le16(1) + le32(8000) + le32(8000) + le16(1) + le16(8);
    std::string data(samples, '\x80');
    for (uint32_t i = 0; i < samples; i += 16)
        data[i] = '\xA0';
    std::string body = "WAVE" + std::string("fmt ") + le32(uint32_t(fmt.size())) + fmt + "data" +
                       le32(samples) + data;
    return "RIFF" + le32(uint32_t(body.size())) + body;
}

class SoundEventsPageTest : public cv2test::ControlPagesTest {
  protected:
    void SetUp() override {
        ControlPagesTest::SetUp();
        RecordSoundsWith([this](const std::wstring& text) {
            played.push_back(text);
            return true;
        });
    }
    void TearDown() override {
        RecordSoundsWith(nullptr);
        ControlPagesTest::TearDown();
    }

    // Puts `text` into the path field of the first event and presses ">".
    void PlayText(const std::wstring& text) {
        RunEditor(
            {NewSoundEventsPage()},
            [&](HWND dlg, ThemeEditor&) {
                cv2test::TypeText(dlg, IDC_SOUNDS_PATH, text);
                DialogDriver::Click(dlg, IDC_SOUNDS_PLAY);
            },
            IDCANCEL);
    }

    std::vector<std::wstring> played;
    cv2test::TempFolder dir;
};

} // namespace

TEST_F(SoundEventsPageTest, SelectingNotificationReminderShowsTheValueOfItsKey) {
    doc.SetString(L"Sounds", L"NotificationReminder", L"\\Windows\\remind.wav");
    std::wstring name, path;
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_SOUNDS_LIST, 12);
            name = cv2test::DlgText(dlg, IDC_SOUNDS_NAME);
            path = cv2test::DlgText(dlg, IDC_SOUNDS_PATH);
        },
        IDCANCEL);
    EXPECT_EQ(name, L"Notification Reminder");
    EXPECT_EQ(path, L"\\Windows\\remind.wav");
}

TEST_F(SoundEventsPageTest, TypingWhileStartupIsSelectedAndSavingWritesItUnderStartup) {
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_SOUNDS_LIST, 6);
            SetFocus(GetDlgItem(dlg, IDC_SOUNDS_PATH));
            cv2test::TypeText(dlg, IDC_SOUNDS_PATH, L"\\Windows\\boot.wav");
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Sounds", L"Startup", L"-"), L"\\Windows\\boot.wav");
    EXPECT_EQ(doc.GetString(L"Sounds", L"Close", L"-"), L"");
}

TEST_F(SoundEventsPageTest, ThemeWithNoSoundsSectionSavesAllThirteenKeysEmpty) {
    EXPECT_TRUE(RunEditor(
        {NewSoundEventsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    const std::vector<std::wstring> keys = cv2test::KeysOf(doc, L"Sounds");
    ASSERT_EQ(keys.size(), 13u);
    EXPECT_EQ(keys.front(), L"Close");
    EXPECT_EQ(keys.back(), L"NotificationReminder");
    for (const auto& e : doc.GetSectionEntries(L"Sounds"))
        EXPECT_EQ(std::wstring(e.second), L"");
}

TEST_F(SoundEventsPageTest, TheFirstEventShowsAtOnceAndTheListHoldsAllThirteen) {
    doc.SetString(L"Sounds", L"Close", L"close.wav");
    std::vector<std::wstring> names;
    std::wstring name, path, browse, play;
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            names = cv2test::ListTexts(dlg, IDC_SOUNDS_LIST);
            name = cv2test::DlgText(dlg, IDC_SOUNDS_NAME);
            path = cv2test::DlgText(dlg, IDC_SOUNDS_PATH);
            browse = cv2test::DlgText(dlg, IDC_SOUNDS_BROWSE);
            play = cv2test::DlgText(dlg, IDC_SOUNDS_PLAY);
        },
        IDCANCEL);
    ASSERT_EQ(names.size(), 13u);
    EXPECT_EQ(names[0], L"Close Window");
    EXPECT_EQ(names[12], L"Notification Reminder");
    EXPECT_EQ(name, L"Close Window");
    EXPECT_EQ(path, L"close.wav");
    EXPECT_EQ(browse, L"...");
    EXPECT_EQ(play, L">");
}

TEST_F(SoundEventsPageTest, ForAPathWithACommaOnlyTheFirstPartIsTestedButTheWholeTextIsPlayed) {
    dir.Write(L"ding.wav", WaveFile(400));
    const std::wstring text = dir.File(L"ding.wav") + L",extra";
    PlayText(text);
    EXPECT_EQ(played, std::vector<std::wstring>{text});
}

TEST_F(SoundEventsPageTest, ABarEndsTheFilePartBeforeAnyComma) {
    dir.Write(L"a,b.wav", WaveFile(400));
    const std::wstring text = dir.File(L"a,b.wav") + L"|more";
    PlayText(text);
    EXPECT_EQ(played, std::vector<std::wstring>{text});
}

TEST_F(SoundEventsPageTest, PlayOnAFolderAMissingFileOrNothingPlaysNothing) {
    dir.MakeFolder(L"folder");
    PlayText(dir.File(L"folder"));
    PlayText(dir.File(L"missing.wav"));
    PlayText(L"");
    PlayText(dir.File(L"missing.wav") + L",x");
    EXPECT_TRUE(played.empty());
}

TEST_F(SoundEventsPageTest, PathsAreCutTo259Characters) {
    doc.SetString(L"Sounds", L"Open", std::wstring(300, L'o').c_str());
    EXPECT_TRUE(RunEditor(
        {NewSoundEventsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    EXPECT_EQ(doc.GetString(L"Sounds", L"Open", L"-"), std::wstring(259, L'o'));
}

TEST_F(SoundEventsPageTest, AReloadedThemeShowsInThePathOfTheSelectedEvent) {
    std::wstring path;
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_SOUNDS_LIST, 2);
            doc.SetString(L"Sounds", L"MenuCommand", L"menu.wav");
            SendMessageW(dlg, UpdateThemeMessage(), 0, 0);
            path = cv2test::DlgText(dlg, IDC_SOUNDS_PATH);
        },
        IDCANCEL);
    EXPECT_EQ(path, L"menu.wav");
}

// The platform's own playback, without the recorder.
class SoundPlayback : public cv2test::ControlPagesTest {};

TEST_F(SoundPlayback, PlayOnANonWaveFileReturnsWithoutHangingTheEditor) {
    cv2test::TempFolder dir;
    dir.Write(L"not-a-wave.wav", "this is text, not a sound");
    bool returned = false;
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::TypeText(dlg, IDC_SOUNDS_PATH, dir.File(L"not-a-wave.wav"));
            DialogDriver::Click(dlg, IDC_SOUNDS_PLAY);
            returned = true;
        },
        IDCANCEL);
    EXPECT_TRUE(returned);
    EXPECT_FALSE(PlaySoundFile(dir.File(L"not-a-wave.wav")));
}

TEST_F(SoundPlayback, ThePlaybackCallIsFoundAtRunTime) {
    EXPECT_TRUE(HasSoundPlayback());
}

TEST_F(SoundPlayback, AShortWaveFilePlaysToItsEnd) {
    ASSERT_TRUE(HasSoundPlayback());
    if (SoundOutputDevices() == 0)
        GTEST_SKIP() << "this machine has no sound output device, so nothing can be played; "
                        "the wave file and the call were not tried";
    cv2test::TempFolder dir;
    dir.Write(L"beep.wav", WaveFile(800));
    EXPECT_TRUE(PlaySoundFile(dir.File(L"beep.wav")));
}
