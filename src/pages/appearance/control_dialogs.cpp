#include "pages/appearance/control_dialogs.h"

#include "ids_appearance_controls.h"
#include "pages/appearance/fields_dialog.h"
#include "pages/appearance/notification_list.h"
#include "pages/setting_table.h"

namespace cv2 {
namespace {

// A margin box takes at most nine digits.
constexpr int kMarginChars = 9;

// A picture row: label, path box and "..." button across the width.
constexpr ControlPlace LabelPlace(int id, int top) {
    return {id, From::Left, 4, From::Left, 54, top + 3, 16};
}
constexpr ControlPlace PathPlace(int id, int top) {
    return {id, From::Left, 56, From::Right, -31, top, 21};
}
constexpr ControlPlace BrowsePlace(int id, int top) {
    return {id, From::Right, -28, From::Right, -4, top, 21};
}

const DialogField kImageFields[] = {
    {IDC_ROW_NORMAL, IDC_ROW_NORMAL_BROWSE, kSettingPathChars},
    {IDC_ROW_PRESSED, IDC_ROW_PRESSED_BROWSE, kSettingPathChars},
    {IDC_ROW_DISABLED, IDC_ROW_DISABLED_BROWSE, kSettingPathChars},
    {IDC_ROW_FOCUSED, IDC_ROW_FOCUSED_BROWSE, kSettingPathChars},
    {IDC_MARGIN_LEFT, 0, kMarginChars},
    {IDC_MARGIN_RIGHT, 0, kMarginChars},
    {IDC_MARGIN_TOP, 0, kMarginChars},
    {IDC_MARGIN_BOTTOM, 0, kMarginChars},
};

const ControlText kImageTexts[] = {
    {IDC_ROW_NORMAL_LABEL, IDS_NORMAL_IMAGE},     {IDC_ROW_PRESSED_LABEL, IDS_PRESSED_IMAGE},
    {IDC_ROW_DISABLED_LABEL, IDS_DISABLED_IMAGE}, {IDC_ROW_FOCUSED_LABEL, IDS_FOCUSED_IMAGE},
    {IDC_MARGINS_HEADING, IDS_MARGINS},           {IDC_MARGIN_LEFT_LABEL, IDS_LEFT_SHORT},
    {IDC_MARGIN_RIGHT_LABEL, IDS_RIGHT_SHORT},    {IDC_MARGIN_TOP_LABEL, IDS_TOP_SHORT},
    {IDC_MARGIN_BOTTOM_LABEL, IDS_BOTTOM_SHORT},
};

// Margins two to a row, each label before its box, the boxes meeting at the middle.
const ControlPlace kImagePlaces[] = {
    LabelPlace(IDC_ROW_NORMAL_LABEL, 4),
    PathPlace(IDC_ROW_NORMAL, 4),
    BrowsePlace(IDC_ROW_NORMAL_BROWSE, 4),
    LabelPlace(IDC_ROW_PRESSED_LABEL, 29),
    PathPlace(IDC_ROW_PRESSED, 29),
    BrowsePlace(IDC_ROW_PRESSED_BROWSE, 29),
    LabelPlace(IDC_ROW_DISABLED_LABEL, 54),
    PathPlace(IDC_ROW_DISABLED, 54),
    BrowsePlace(IDC_ROW_DISABLED_BROWSE, 54),
    LabelPlace(IDC_ROW_FOCUSED_LABEL, 79),
    PathPlace(IDC_ROW_FOCUSED, 79),
    BrowsePlace(IDC_ROW_FOCUSED_BROWSE, 79),
    {IDC_MARGINS_HEADING, From::Left, 4, From::Right, -4, 108, 16},
    {IDC_MARGIN_LEFT_LABEL, From::Left, 4, From::Left, 54, 130, 16},
    {IDC_MARGIN_LEFT, From::Left, 56, From::Middle, -4, 127, 21},
    {IDC_MARGIN_RIGHT_LABEL, From::Middle, 4, From::Middle, 54, 130, 16},
    {IDC_MARGIN_RIGHT, From::Middle, 56, From::Right, -4, 127, 21},
    {IDC_MARGIN_TOP_LABEL, From::Left, 4, From::Left, 54, 155, 16},
    {IDC_MARGIN_TOP, From::Left, 56, From::Middle, -4, 152, 21},
    {IDC_MARGIN_BOTTOM_LABEL, From::Middle, 4, From::Middle, 54, 155, 16},
    {IDC_MARGIN_BOTTOM, From::Middle, 56, From::Right, -4, 152, 21},
};
const int kImageBold[] = {IDC_MARGINS_HEADING};

const FieldsDialogTable kImagesDialog = {
    IDD_APP_BUTTON_IMAGES,
    IDS_BUTTON_IMAGES,
    kImageFields,
    sizeof kImageFields / sizeof kImageFields[0],
    kImageTexts,
    sizeof kImageTexts / sizeof kImageTexts[0],
    kImagePlaces,
    sizeof kImagePlaces / sizeof kImagePlaces[0],
    kImageBold,
    1,
};

const DialogField kNotifyFields[] = {
    {IDC_NOTIFY_TITLE, 0, static_cast<int>(kNotificationTitleChars)},
    {IDC_ROW_NORMAL, IDC_ROW_NORMAL_BROWSE, kSettingPathChars},
    {IDC_ROW_PRESSED, IDC_ROW_PRESSED_BROWSE, kSettingPathChars},
};

const ControlText kNotifyTexts[] = {
    {IDC_NOTIFY_TITLE_LABEL, IDS_NOTIFY_DIALOG_TITLE},
    {IDC_ROW_NORMAL_LABEL, IDS_NORMAL_IMAGE},
    {IDC_ROW_PRESSED_LABEL, IDS_PRESSED_IMAGE},
};

// The title's label is long: it has a row of its own above the box.
const ControlPlace kNotifyPlaces[] = {
    {IDC_NOTIFY_TITLE_LABEL, From::Left, 4, From::Right, -4, 4, 16},
    {IDC_NOTIFY_TITLE, From::Left, 4, From::Right, -4, 21, 21},
    LabelPlace(IDC_ROW_NORMAL_LABEL, 50),
    PathPlace(IDC_ROW_NORMAL, 50),
    BrowsePlace(IDC_ROW_NORMAL_BROWSE, 50),
    LabelPlace(IDC_ROW_PRESSED_LABEL, 75),
    PathPlace(IDC_ROW_PRESSED, 75),
    BrowsePlace(IDC_ROW_PRESSED_BROWSE, 75),
};

const FieldsDialogTable kNotifyDialog = {
    IDD_NOTIFICATION, IDS_NOTIFICATIONS,
    kNotifyFields,    sizeof kNotifyFields / sizeof kNotifyFields[0],
    kNotifyTexts,     sizeof kNotifyTexts / sizeof kNotifyTexts[0],
    kNotifyPlaces,    sizeof kNotifyPlaces / sizeof kNotifyPlaces[0],
    nullptr,          0,
};

} // namespace

bool EditAppButtonImages(std::vector<std::wstring>& texts, HWND parent) {
    return EditFields(kImagesDialog, texts, parent);
}

bool EditNotification(std::vector<std::wstring>& texts, HWND parent) {
    return EditFields(kNotifyDialog, texts, parent);
}

} // namespace cv2
