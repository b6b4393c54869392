#include <new>

#include "ids_appearance_controls.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/own_controls_page.h"
#include "pages/appearance/sound_event_file.h"
#include "platform/sound_playback.h"
#include "ui/file_browser.h"

namespace cv2 {
namespace {

// Places inside the page's area: the event's name, its path with "..." and ">" at its right
// end (where a 240-pixel screen has them at 188 and 214, and wider screens give the path more
// room), the list of events filling the rest.
const OwnControl kControls[] = {
    RowNameLabel(IDC_SOUNDS_NAME),
    {{L"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 0, StringId(0), IDC_SOUNDS_PATH},
     {IDC_SOUNDS_PATH, From::Left, 3, From::Right, -55, 25, 20},
     false},
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, StringId(0), IDC_SOUNDS_BROWSE},
     {IDC_SOUNDS_BROWSE, From::Right, -52, From::Right, -29, 24, 22},
     false},
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, StringId(0), IDC_SOUNDS_PLAY},
     {IDC_SOUNDS_PLAY, From::Right, -26, From::Right, -3, 24, 22},
     false},
    RowList(IDC_SOUNDS_LIST),
};

class SoundEventsPage : public OwnControlsPage {
  public:
    SoundEventsPage()
        : OwnControlsPage(IDS_SOUND_EVENTS, {std::begin(kControls), std::end(kControls)},
                          {&kSoundsSection}) {}

    bool OnCommand(WPARAM wParam, LPARAM) override {
        const int id = LOWORD(wParam);
        const int code = HIWORD(wParam);
        if (id == IDC_SOUNDS_LIST && code == LBN_SELCHANGE)
            OnSelect();
        else if (id == IDC_SOUNDS_PATH && code == EN_CHANGE)
            Values(0).SetText(Row(), PathText());
        else if (id == IDC_SOUNDS_BROWSE && code == BN_CLICKED)
            Browse();
        else if (id == IDC_SOUNDS_PLAY && code == BN_CLICKED)
            Play();
        else
            return false;
        return true;
    }

  protected:
    void OnCreated() override {
        // The two small buttons carry signs, not words: they are never translated.
        SetWindowTextW(Control(IDC_SOUNDS_BROWSE), L"...");
        SetWindowTextW(Control(IDC_SOUNDS_PLAY), L">");
        SendMessageW(Control(IDC_SOUNDS_PATH), EM_LIMITTEXT, kSettingPathChars, 0);
        FillNameList(Control(IDC_SOUNDS_LIST), kSoundEventNames, kSoundEventCount);
        SendMessageW(HostWindow(), WM_COMMAND, MAKEWPARAM(IDC_SOUNDS_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(Control(IDC_SOUNDS_LIST)));
    }

    // A reloaded theme shows at once in the path of the selected event.
    void OnLoaded() override { ShowSelectedPath(); }

  private:
    size_t Row() const { return SelectedRow(Control(IDC_SOUNDS_LIST), kSoundEventCount); }
    std::wstring PathText() const {
        return TextOfWindow(Control(IDC_SOUNDS_PATH), kSettingPathChars);
    }

    void ShowSelectedPath() {
        // Putting the text in stores it back into the same row, unchanged.
        SetWindowTextW(Control(IDC_SOUNDS_PATH), Values(0).Text(Row()).c_str());
    }

    // The name as the list shows it, and the event's path.
    void OnSelect() {
        HWND list = Control(IDC_SOUNDS_LIST);
        const size_t row = Row();
        if (row >= kSoundEventCount)
            return;
        wchar_t name[128] = {};
        if (SendMessageW(list, LB_GETTEXTLEN, row, 0) < 128)
            SendMessageW(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(name));
        SetWindowTextW(Control(IDC_SOUNDS_NAME), name);
        ShowSelectedPath();
    }

    void Browse() {
        FileBrowser browser(false, false);
        browser.SetFilter(Localized(IDS_SOUND_FILTER), true, L"sounds");
        if (browser.Run(HostWindow()))
            SetWindowTextW(Control(IDC_SOUNDS_PATH), browser.result.c_str());
    }

    // Only the file part is tested; the whole text goes to the platform, which waits until the
    // sound has ended. Anything that is not a file is passed over without a word.
    void Play() {
        const std::wstring text = PathText();
        if (IsPlayableSound(text))
            PlaySoundFile(text);
    }
};

} // namespace

SettingsPage* NewSoundEventsPage() {
    return new (std::nothrow) SoundEventsPage();
}

} // namespace cv2
