#include "pages/behaviour/check_list_page.h"

#include <commctrl.h>

#include <algorithm>

#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"
#include "ui/text_extent.h"

namespace cv2 {
namespace {

// The list fills the page, a little below its top.
constexpr int kListTop = 3;

int WidestLabel(HWND list, const CheckTable& table) {
    int widest = 0;
    for (size_t i = 0; i < table.count; ++i)
        widest = std::max(widest, TextWidth(list, Localized(table.rows[i].label)));
    return widest;
}

// Room a row takes before and after its text: the check box and the list's text margins.
int RowDecoration(HWND list) {
    RECT bounds = {LVIR_BOUNDS, 0, 0, 0};
    RECT label = {LVIR_LABEL, 0, 0, 0};
    if (!SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&bounds)) ||
        !SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&label)))
        return 0;
    return (label.left - bounds.left) + ScaleX(6);
}

} // namespace

CheckListPage::CheckListPage(StringId nameId, CheckTable table,
                             std::unique_ptr<OutsideStores> outside, int listId)
    : SettingsPage(nameId), m_table(table), m_outside(std::move(outside)), m_listId(listId) {}

CheckListPage::~CheckListPage() {
    OnDestroy();
}

void CheckListPage::Create(HWND host) {
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&icc);
    m_list = CreateWindowExW(
        0, WC_LISTVIEWW, L"",
        WS_CHILD | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_NOLABELWRAP, 0, 0, 0, 0,
        host, reinterpret_cast<HMENU>(INT_PTR(m_listId)), GetModuleHandleW(nullptr), nullptr);
    if (!m_list)
        return;
    SendMessageW(m_list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SetControlFont(m_list, TextFont());
    OnSize(Area());

    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    SendMessageW(m_list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    for (size_t i = 0; i < m_table.count; ++i) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(i);
        item.pszText = const_cast<wchar_t*>(Localized(m_table.rows[i].label));
        SendMessageW(m_list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    FitColumn();
}

// One column, as wide as the widest row or the list, whichever is wider; a row wider than the
// list scrolls sideways rather than losing its end.
void CheckListPage::FitColumn() {
    RECT client = {};
    GetClientRect(m_list, &client);
    const int width = std::max(WidestLabel(m_list, m_table) + RowDecoration(m_list),
                               static_cast<int>(client.right) - ScaleX(2));
    SendMessageW(m_list, LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(width, 0));
}

void CheckListPage::Show(bool visible) {
    ShowWindows(&m_list, 1, visible);
}

void CheckListPage::OnSize(const RECT&) {
    if (!m_list)
        return;
    const ControlPlace place = FillingPlace(m_listId, kListTop);
    PlaceControls(GetParent(m_list), Area(), &place, 1);
    if (SendMessageW(m_list, LVM_GETITEMCOUNT, 0, 0) > 0)
        FitColumn();
}

void CheckListPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc || !m_list)
        return;
    const std::vector<bool> states = ReadCheckRows(m_table, *doc, m_outside.get());
    for (size_t i = 0; i < states.size(); ++i)
        ListView_SetCheckState(m_list, static_cast<int>(i), states[i] ? TRUE : FALSE);
}

std::vector<bool> CheckListPage::CheckStates() const {
    std::vector<bool> states(m_table.count, false);
    for (size_t i = 0; i < m_table.count; ++i)
        states[i] = ListView_GetCheckState(m_list, static_cast<int>(i)) != 0;
    return states;
}

void CheckListPage::Save(IniDocument* target) {
    if ((!target && !Doc()) || !m_list)
        return;
    WriteCheckRows(m_table, CheckStates(), SaveTarget(target), m_outside.get());
}

void CheckListPage::OnDestroy() {
    if (m_list && IsWindow(m_list))
        DestroyWindow(m_list);
    m_list = nullptr;
}

} // namespace cv2
