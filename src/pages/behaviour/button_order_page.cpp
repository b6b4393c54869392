#include "pages/behaviour/button_order_page.h"

#include <commctrl.h>

#include <algorithm>

#include "ids_behaviour.h"
#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// Laid out for a 240-pixel-wide page: the list beside its up-down control, both down to near
// the page's bottom.
const ControlPlace kListPlace = {IDC_ORDER_LIST, From::Left, 3, From::Right, -19, 3, 163};
const ControlPlace kMoverPlace = {IDC_ORDER_MOVE, From::Right, -17, From::Right, -4, 3, 163};
constexpr int kBottomMargin = 4;

// The mover never runs into a limit: its range is wide, and its position is put back after
// every press.
constexpr int kMoverLow = 100;
constexpr int kMoverHigh = 0;
constexpr int kMoverRest = 50;

HWND MakeChild(HWND host, const wchar_t* cls, DWORD style, int id) {
    HWND child = CreateWindowExW(0, cls, L"", WS_CHILD | style, 0, 0, 0, 0, host,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                 GetModuleHandleW(nullptr), nullptr);
    SetControlFont(child, TextFont());
    return child;
}

} // namespace

ButtonOrderPage::ButtonOrderPage(const PluginRegistry& plugins, TopBarState& state)
    : SettingsPage(IDS_BUTTON_ORDER), m_plugins(plugins), m_state(state) {}

ButtonOrderPage::~ButtonOrderPage() {
    OnDestroy();
}

void ButtonOrderPage::Create(HWND host) {
    m_items = BuiltInOrderItems();
    m_plugins.AppendOrderItems(m_items);
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&icc);
    m_list = MakeChild(host, L"LISTBOX",
                       WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                       IDC_ORDER_LIST);
    m_mover = MakeChild(host, UPDOWN_CLASSW, UDS_ARROWKEYS, IDC_ORDER_MOVE);
    SendMessageW(m_mover, UDM_SETRANGE32, kMoverLow, kMoverHigh);
    SendMessageW(m_mover, UDM_SETPOS32, 0, kMoverRest);
    OnSize(Area());
}

void ButtonOrderPage::Show(bool visible) {
    HWND controls[] = {m_list, m_mover};
    ShowWindows(controls, 2, visible);
}

void ButtonOrderPage::OnSize(const RECT&) {
    if (!m_list)
        return;
    const RECT& area = Area();
    RECT list = PlaceRectIn(kListPlace, area);
    RECT mover = PlaceRectIn(kMoverPlace, area);
    // Taller screens give the list their extra room.
    list.bottom = mover.bottom =
        std::max(list.bottom, static_cast<LONG>(area.bottom - Scale(kBottomMargin)));
    MoveWindow(m_list, list.left, list.top, list.right - list.left, list.bottom - list.top, TRUE);
    MoveWindow(m_mover, mover.left, mover.top, mover.right - mover.left, mover.bottom - mover.top,
               TRUE);
}

void ButtonOrderPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc)
        return;
    if (m_items.empty())
        m_items = BuiltInOrderItems();
    m_order = ParseOrder(ReadOrderValue(*doc, m_state.hasPhone), m_items);
}

void ButtonOrderPage::OnActivate() {
    if (!m_list)
        return;
    SendMessageW(m_list, LB_RESETCONTENT, 0, 0);
    for (int index : ListedItems(m_order, m_items, m_state.visible)) {
        const LRESULT row = SendMessageW(m_list, LB_ADDSTRING, 0,
                                         reinterpret_cast<LPARAM>(m_items[index].name.c_str()));
        if (row >= 0)
            SendMessageW(m_list, LB_SETITEMDATA, static_cast<WPARAM>(row), index);
    }
}

void ButtonOrderPage::OnDeactivate() {
    if (!m_list)
        return;
    m_order.clear();
    const LRESULT rows = SendMessageW(m_list, LB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < rows && m_order.size() < kMaxOrderEntries; ++row)
        m_order.push_back(
            static_cast<int>(SendMessageW(m_list, LB_GETITEMDATA, static_cast<WPARAM>(row), 0)));
}

void ButtonOrderPage::Move(int delta) {
    const LRESULT selected = SendMessageW(m_list, LB_GETCURSEL, 0, 0);
    if (selected < 0)
        return;
    const LRESULT last = SendMessageW(m_list, LB_GETCOUNT, 0, 0) - 1;
    if (selected == last && delta >= 0)
        return;
    const LRESULT target = std::max<LRESULT>(0, delta < 0 ? selected - 1 : selected + 1);
    const LRESULT data = SendMessageW(m_list, LB_GETITEMDATA, static_cast<WPARAM>(selected), 0);
    const LRESULT length = SendMessageW(m_list, LB_GETTEXTLEN, static_cast<WPARAM>(selected), 0);
    std::wstring text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    SendMessageW(m_list, LB_GETTEXT, static_cast<WPARAM>(selected),
                 reinterpret_cast<LPARAM>(&text[0]));
    SendMessageW(m_list, LB_DELETESTRING, static_cast<WPARAM>(selected), 0);
    const LRESULT row = SendMessageW(m_list, LB_INSERTSTRING, static_cast<WPARAM>(target),
                                     reinterpret_cast<LPARAM>(text.c_str()));
    SendMessageW(m_list, LB_SETITEMDATA, static_cast<WPARAM>(row), data);
    SendMessageW(m_list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

LRESULT ButtonOrderPage::OnNotify(WPARAM, LPARAM lParam) {
    const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
    if (!header || !m_mover || header->hwndFrom != m_mover)
        return 0;
    if (header->code == UDN_DELTAPOS) {
        Move(reinterpret_cast<const NMUPDOWN*>(lParam)->iDelta);
        SendMessageW(m_mover, UDM_SETPOS32, 0, kMoverRest);
    }
    return 1;
}

// A page never shown has an empty list: it is filled first, so the saved order still follows
// the visibility flags.
void ButtonOrderPage::Save(IniDocument* target) {
    if (!target && !Doc())
        return;
    if (!IsActive())
        OnActivate();
    OnDeactivate();
    WriteOrderValue(SaveTarget(target), JoinOrder(m_order, m_items));
}

void ButtonOrderPage::OnDestroy() {
    HWND controls[] = {m_list, m_mover};
    DestroyWindows(controls, 2);
    m_list = m_mover = nullptr;
}

} // namespace cv2
