#include "app/about_box.h"

#include "app/version_info.h"
#include "ids_app.h"
#include "platform/device_colors.h"
#include "platform/exe_folder.h"
#include "store/strings.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/image/image_draw.h"
#include "ui/image/image_loader.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const DialogTemplates kAboutTemplates = {IDD_ABOUT_PORTRAIT, IDD_ABOUT_LANDSCAPE, 0};

// Places in 96-dpi units. Portrait: the logo above the text; landscape: the title lines beside
// the logo and the rest below. Text lines that may be long get room for a second line.
const ControlPlace kPortraitPlaces[] = {
    {IDC_ABOUT_LOGO, From::Left, 6, From::Right, -6, 4, 52},
    {IDC_ABOUT_TITLE, From::Left, 6, From::Right, -6, 60, 14},
    {IDC_ABOUT_VERSION, From::Left, 6, From::Right, -6, 75, 14},
    {IDC_ABOUT_VERSION2, From::Left, 6, From::Right, -6, 75, 14},
    {IDC_ABOUT_LEGAL, From::Left, 6, From::Right, -6, 91, 28},
    {IDC_ABOUT_HOME_LABEL, From::Left, 6, From::Left, 78, 122, 14},
    {IDC_ABOUT_HOME, From::Left, 80, From::Right, -4, 122, 14},
    {IDC_ABOUT_SUPPORT_LABEL, From::Left, 6, From::Left, 78, 137, 14},
    {IDC_ABOUT_SUPPORT, From::Left, 80, From::Right, -4, 137, 14},
    {IDC_ABOUT_CREDITS, From::Left, 6, From::Right, -6, 156, 60},
};
const ControlPlace kLandscapePlaces[] = {
    {IDC_ABOUT_LOGO, From::Left, 6, From::Left, 126, 4, 52},
    {IDC_ABOUT_TITLE, From::Left, 132, From::Right, -4, 4, 14},
    {IDC_ABOUT_VERSION, From::Left, 132, From::Right, -4, 20, 28},
    {IDC_ABOUT_VERSION2, From::Left, 132, From::Right, -4, 20, 28},
    {IDC_ABOUT_LEGAL, From::Left, 132, From::Right, -4, 48, 28},
    {IDC_ABOUT_HOME_LABEL, From::Left, 6, From::Left, 78, 84, 14},
    {IDC_ABOUT_HOME, From::Left, 80, From::Right, -4, 84, 14},
    {IDC_ABOUT_SUPPORT_LABEL, From::Left, 6, From::Left, 78, 100, 14},
    {IDC_ABOUT_SUPPORT, From::Left, 80, From::Right, -4, 100, 14},
    {IDC_ABOUT_CREDITS, From::Left, 6, From::Right, -6, 122, 60},
};

void PlaceAboutControls(HWND dialog) {
    if (ChooseTemplate(kAboutTemplates) == IDD_ABOUT_PORTRAIT)
        PlaceControls(dialog, kPortraitPlaces, sizeof kPortraitPlaces / sizeof kPortraitPlaces[0]);
    else
        PlaceControls(dialog, kLandscapePlaces, sizeof kLandscapePlaces / sizeof kLandscapePlaces[0]);
}

void SetText(HWND dialog, int id, const std::wstring& text) {
    SetDlgItemTextW(dialog, id, text.c_str());
}

// The logo stays loaded while the dialog shows it.
void InitAboutBox(HWND dialog, LoadedImage& logo) {
    InitFullScreenDialog(dialog);
    PlaceAboutControls(dialog);
    logo = LoadImageFile(ExeFolder() + L"logo.png", 0, 0);
    ShowInPictureControl(GetDlgItem(dialog, IDC_ABOUT_LOGO), logo, DeviceSysColor(COLOR_STATIC));
    for (int id = IDC_ABOUT_TITLE; id <= IDC_ABOUT_CREDITS; ++id)
        SetControlFont(GetDlgItem(dialog, id), TextFont());
    SetControlFont(GetDlgItem(dialog, IDC_ABOUT_TITLE), CaptionFont());
    SetText(dialog, IDC_ABOUT_HOME_LABEL, Localized(IDS_ABOUT_HOME_PAGE));
    SetText(dialog, IDC_ABOUT_SUPPORT_LABEL, Localized(IDS_ABOUT_SUPPORT));
    SetText(dialog, IDC_ABOUT_CREDITS, Localized(IDS_ABOUT_CREDITS));

    wchar_t exe[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    const VersionInfo version = ReadVersionInfo(exe);
    SetText(dialog, IDC_ABOUT_VERSION, VersionLine(version));
    SetText(dialog, IDC_ABOUT_VERSION2, VersionLine(version));
    SetText(dialog, IDC_ABOUT_LEGAL, version.legalCopyright);
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_INITDIALOG:
        InitAboutBox(dialog, *reinterpret_cast<LoadedImage*>(lParam));
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<INT_PTR>(DeviceStaticColors(reinterpret_cast<HDC>(wParam)));
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, IDOK);
            return TRUE;
        }
        break;
    }
    return FALSE;
}

} // namespace

void ShowAboutBox(HWND owner) {
    LoadedImage logo;
    RunDialog(owner, kAboutTemplates, AboutProc, reinterpret_cast<LPARAM>(&logo));
}

} // namespace cv2
