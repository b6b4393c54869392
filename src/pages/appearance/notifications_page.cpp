#include "pages/appearance/notifications_page.h"

#include <new>

#include "ids_appearance_controls.h"
#include "pages/appearance/control_dialogs.h"
#include "pages/appearance/notification_list.h"
#include "pages/appearance/own_controls_page.h"

namespace cv2 {
namespace {

// Places inside the page's area: the three buttons in a row, the list filling the rest.
const OwnControl kControls[] = {
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_ADD, IDC_NOTIFY_ADD},
     {IDC_NOTIFY_ADD, From::Left, 3, From::Third, -2, 6, 23},
     false},
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_MODIFY, IDC_NOTIFY_MODIFY},
     {IDC_NOTIFY_MODIFY, From::Third, 2, From::TwoThirds, -2, 6, 23},
     false},
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_DELETE, IDC_NOTIFY_DELETE},
     {IDC_NOTIFY_DELETE, From::TwoThirds, 2, From::Right, -3, 6, 23},
     false},
    {{L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP, 0,
      StringId(0), IDC_NOTIFY_LIST},
     {IDC_NOTIFY_LIST, From::Left, 3, From::Right, -3, 34, -3, FromY::Top, true},
     false},
};

std::vector<std::wstring> TextsOf(const CustomNotification& entry) {
    return {entry.title, entry.normalImage, entry.pressedImage};
}

class NotificationsPage : public OwnControlsPage {
  public:
    NotificationsPage()
        : OwnControlsPage(IDS_NOTIFICATIONS, {std::begin(kControls), std::end(kControls)}, {}) {}

    void Load(IniDocument* doc) override {
        OwnControlsPage::Load(doc);
        if (!doc)
            return;
        m_entries = ReadCustomNotifications(*doc);
        SendMessageW(List(), LB_RESETCONTENT, 0, 0);
        for (const CustomNotification& entry : m_entries)
            SendMessageW(List(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.title.c_str()));
    }

    void Save(IniDocument* target) override {
        if (target || Doc())
            WriteCustomNotifications(SaveTarget(target), m_entries);
    }

    bool OnCommand(WPARAM wParam, LPARAM) override {
        const int id = LOWORD(wParam);
        if (id == IDC_NOTIFY_LIST)
            return true; // a change of selection needs nothing more
        if (HIWORD(wParam) != BN_CLICKED)
            return false;
        switch (id) {
        case IDC_NOTIFY_ADD:
            Add();
            return true;
        case IDC_NOTIFY_MODIFY:
            Modify();
            return true;
        case IDC_NOTIFY_DELETE:
            Delete();
            return true;
        }
        return false;
    }

  private:
    HWND List() const { return Control(IDC_NOTIFY_LIST); }
    size_t Row() const { return SelectedRow(List(), m_entries.size()); }

    // The dialog's texts as an entry; false for an empty title, which the bar could never
    // match and which would end the stored list early, hiding every entry after it.
    bool Ask(std::vector<std::wstring> texts, CustomNotification& entry) {
        if (!EditNotification(texts, HostWindow()) || texts.size() < 3 || texts[0].empty())
            return false;
        entry = CutToBuffers({texts[0], texts[1], texts[2]});
        return true;
    }

    void Add() {
        CustomNotification entry;
        if (!Ask({L"", L"", L""}, entry))
            return;
        m_entries.push_back(entry);
        SendMessageW(List(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.title.c_str()));
    }

    void Modify() {
        const size_t row = Row();
        CustomNotification entry;
        if (row >= m_entries.size() || !Ask(TextsOf(m_entries[row]), entry))
            return;
        m_entries[row] = entry;
        SendMessageW(List(), LB_DELETESTRING, row, 0);
        SendMessageW(List(), LB_INSERTSTRING, row, reinterpret_cast<LPARAM>(entry.title.c_str()));
        SendMessageW(List(), LB_SETCURSEL, row, 0);
    }

    void Delete() {
        const size_t row = Row();
        if (row >= m_entries.size())
            return;
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(row));
        SendMessageW(List(), LB_DELETESTRING, row, 0);
    }

    std::vector<CustomNotification> m_entries;
};

} // namespace

SettingsPage* NewNotificationsPage() {
    return new (std::nothrow) NotificationsPage();
}

} // namespace cv2
