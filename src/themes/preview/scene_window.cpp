// The scene's middle and bottom: the desktop with a sample window in the theme's system colours,
// the volume bubble, and the Today menu bar with its soft keys.
#include <algorithm>

#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/image_pair_values.h"
#include "store/strings.h"
#include "themes/preview/scene_context.h"

namespace cv2 {
namespace {

// Rows of "Colors" the sample window shows.
enum SystemColorRow : size_t {
    kActiveCaption = 0,
    kWindow = 2,
    kWindowFrame = 3,
    kWindowText = 5,
    kCaptionText = 6,
    kHighlight = 7,
    kHighlightText = 8,
    kButtonFace = 9,
    kButtonShadow = 10,
    kGrayText = 11,
    kButtonText = 12,
    kButtonHighlight = 14,
    kStatic = 17,
};

// "Checkbox" and "Radiobutton" of "Buttons".
constexpr size_t kCheckboxRow = 0;
constexpr size_t kRadioRow = 1;

// What the parts of the window share: where the next part goes and the colours.
struct WindowBody {
    int window = -1; // the window's element
    SceneRect area;  // the room left for parts, shrinking from the top
    int gap = 0;
};

SceneFill Solid(ColorRef color) {
    SceneFill fill;
    fill.kind = FillKind::Solid;
    fill.color = color;
    return fill;
}

// Takes a row of `height` off the top of the body; false when it does not fit.
bool TakeRow(WindowBody& body, int height, SceneRect& row) {
    if (height <= 0 || body.area.top + height > body.area.bottom)
        return false;
    row = {body.area.left, body.area.top, body.area.right, body.area.top + height};
    body.area.top += height + body.gap;
    return true;
}

void AddTextRow(SceneContext& c, WindowBody& body, const std::wstring& text, ColorRef color,
                const SceneFill& fill) {
    const FontKeys font = SystemFont(color, false);
    SceneRect row;
    if (!TakeRow(body, c.TextHeight(font) + c.S(4), row))
        return;
    SceneElement e;
    e.kind = SceneKind::WindowRow;
    e.name = text;
    e.rect = row;
    e.parent = body.window;
    e.fill = fill;
    e.text.text = text;
    e.text.font = font;
    e.text.leftInset = c.S(2);
    c.Add(e);
}

void AddAppButton(SceneContext& c, WindowBody& body, const SettingValues& colors) {
    const SettingValues buttons = c.Theme(kAppButtonsSection);
    SceneElement e;
    e.kind = SceneKind::AppButton;
    e.name = Localized(IDS_APP_BUTTONS);
    e.text.text = Localized(IDS_PREVIEW_BUTTON);
    e.text.font = c.Font(buttons);
    e.text.align = TextAlign::Center;
    e.fill = c.PictureFill(c.Text(buttons, kAppNormal), nullptr, true);
    if (e.fill.kind == FillKind::Picture) {
        e.fill.fit = PictureFit::Margins;
        e.fill.margins = {ClampTo(c.Int(buttons, kAppLeft), 0, kMaxSceneSide),
                          ClampTo(c.Int(buttons, kAppTop), 0, kMaxSceneSide),
                          ClampTo(c.Int(buttons, kAppRight), 0, kMaxSceneSide),
                          ClampTo(c.Int(buttons, kAppBottom), 0, kMaxSceneSide)};
        e.fill.scale = c.Pic(100);
    } else if (e.fill.kind == FillKind::None) {
        // Without a picture the system draws the button, in the theme's button colours.
        e.fill.kind = FillKind::Raised;
        e.fill.color = c.Color(colors, kButtonFace);
        e.fill.color2 = c.Color(colors, kButtonHighlight);
        e.fill.color3 = c.Color(colors, kButtonShadow);
        e.text.font.color = c.Color(colors, kButtonText);
    }
    const int height = std::max(c.S(22), c.TextHeight(e.text.font) + c.S(6));
    SceneRect row;
    if (!TakeRow(body, height, row))
        return;
    // At least a usual button's width, but never wider than the window's row.
    const int width = ClampTo(c.TextWidth(e.text.font, e.text.text) + c.S(20),
                              std::min(c.S(64), row.Width()), row.Width());
    e.rect = {row.left, row.top, row.left + width, row.bottom};
    e.parent = body.window;
    c.Add(e);
}

// A check box or radio button: its picture in a box at the start of a row, its label after it.
void AddChoice(SceneContext& c, WindowBody& body, SceneKind kind, size_t imageRow, StringId label,
               const SettingValues& colors) {
    const SettingValues images = c.Theme(kCheckRadioSection);
    const FontKeys font = SystemFont(c.Color(colors, kWindowText), false);
    SceneRect row;
    if (!TakeRow(body, std::max(c.S(15), c.TextHeight(font) + c.S(2)), row))
        return;
    SceneElement box;
    box.kind = kind;
    box.name = Localized(label);
    box.parent = body.window;
    SceneSize own;
    box.fill = c.PictureFill(c.Text(images, imageRow), &own, true);
    SceneSize shown = {c.S(13), c.S(13)};
    if (box.fill.kind == FillKind::Picture) {
        shown = c.PictureOnScreen(own, row.Width() / 2, row.Height());
    } else if (box.fill.kind == FillKind::None) {
        box.fill.kind = FillKind::Box;
        box.fill.color = c.Color(colors, kWindow);
        box.fill.color2 = c.Color(colors, kWindowText);
    }
    shown.width = std::min(shown.width, row.Width());
    shown.height = std::min(shown.height, row.Height());
    const int top = row.top + (row.Height() - shown.height) / 2;
    box.rect = {row.left, top, row.left + shown.width, top + shown.height};
    c.Add(box);
    SceneElement text;
    text.kind = SceneKind::WindowRow;
    text.name = box.name;
    text.parent = body.window;
    text.rect = {box.rect.right + c.S(4), row.top, row.right, row.bottom};
    text.text.text = box.name;
    text.text.font = font;
    c.Add(text);
}

} // namespace

void AddDesktopAndWindow(SceneContext& c) {
    const SettingValues colors = c.Theme(kSystemColorsSection);
    SceneElement desktop;
    desktop.kind = SceneKind::Desktop;
    desktop.rect = MiddleArea(c);
    desktop.fill = Solid(c.Color(colors, kStatic));
    const int desk = c.Add(desktop);
    if (desk < 0)
        return;

    const int margin = c.S(6);
    SceneElement window;
    window.kind = SceneKind::Window;
    window.name = Localized(IDS_PREVIEW_WINDOW);
    window.rect = {desktop.rect.left + margin, desktop.rect.top + margin,
                   desktop.rect.right - margin, desktop.rect.bottom - margin};
    window.parent = desk;
    window.fill.kind = FillKind::Box;
    window.fill.color = c.Color(colors, kWindow);
    window.fill.color2 = c.Color(colors, kWindowFrame);
    WindowBody body;
    body.window = c.Add(window);
    if (body.window < 0)
        return;
    body.area = {window.rect.left + 1, window.rect.top + 1, window.rect.right - 1,
                 window.rect.bottom - 1};
    body.gap = c.S(3);

    SceneElement caption;
    caption.kind = SceneKind::Caption;
    caption.name = window.name;
    caption.parent = body.window;
    caption.fill = Solid(c.Color(colors, kActiveCaption));
    caption.text.text = window.name;
    caption.text.font = SystemFont(c.Color(colors, kCaptionText), true);
    caption.text.leftInset = c.S(3);
    if (!TakeRow(body, std::max(c.S(16), c.TextHeight(caption.text.font) + c.S(2)), caption.rect))
        return;
    c.Add(caption);
    body.area.left += c.S(4);
    body.area.right -= c.S(4);
    AddTextRow(c, body, Localized(IDS_PREVIEW_WINDOW_TEXT), c.Color(colors, kWindowText), {});
    AddTextRow(c, body, Localized(IDS_PREVIEW_SELECTED), c.Color(colors, kHighlightText),
               Solid(c.Color(colors, kHighlight)));
    AddTextRow(c, body, Localized(IDS_PREVIEW_UNAVAILABLE), c.Color(colors, kGrayText), {});
    AddAppButton(c, body, colors);
    AddChoice(c, body, SceneKind::CheckBox, kCheckboxRow, IDS_PREVIEW_CHECK_BOX, colors);
    AddChoice(c, body, SceneKind::RadioButton, kRadioRow, IDS_PREVIEW_RADIO_BUTTON, colors);
}

void AddVolumeBubble(SceneContext& c, int volumeButton) {
    const SettingValues bubble = c.Theme(kVolumeBubbleSection);
    const SceneRect middle = MiddleArea(c);
    SceneElement e;
    e.kind = SceneKind::VolumeBubble;
    e.name = Localized(IDS_VOLUME_BUBBLE);
    e.popup = true;
    SceneSize own;
    e.fill = c.PictureFill(c.Text(bubble, 0), &own);
    const int maxWidth = c.Width() - c.S(8);
    const int maxHeight = middle.Height() / 2;
    SceneSize shown = {std::min(c.S(100), maxWidth), std::min(c.S(40), maxHeight)};
    if (e.fill.kind == FillKind::Picture)
        shown = c.PictureOnScreen(own, maxWidth, maxHeight);
    // Under the volume button when it shows, else at the right end.
    int centre = c.Width() - c.S(4) - shown.width / 2;
    if (volumeButton >= 0) {
        const SceneRect button = c.At(volumeButton).rect;
        centre = (button.left + button.right) / 2;
    }
    const int left = ClampTo(centre - shown.width / 2, 0, c.Width() - shown.width);
    const int top = middle.top + c.S(2);
    e.rect = {left, top, left + shown.width, top + shown.height};
    if (!e.rect.IsEmpty() && middle.Contains(e.rect))
        c.Add(e);
}

void AddTodayMenubar(SceneContext& c) {
    const SettingValues today = c.Theme(kTodayMenubarSection);
    SceneElement bar;
    bar.kind = SceneKind::TodayMenubar;
    bar.name = Localized(IDS_TODAY_MENUBAR);
    bar.rect = {0, MiddleArea(c).bottom, c.Width(), c.Height()};
    bar.fill = BarBackground(c, kTodayMenubarSection);
    const int parent = c.Add(bar);
    if (parent < 0)
        return;

    const SettingValues keys = c.Theme(kSoftKeySection);
    for (int key = 0; key < 2; ++key) {
        SceneElement soft;
        soft.kind = SceneKind::SoftKey;
        soft.name = L"SoftKeys";
        soft.parent = parent;
        const int left = key == 0 ? 0 : c.Width() / 2;
        const int right = key == 0 ? c.Width() / 2 : c.Width();
        soft.rect = {left, bar.rect.top, right, bar.rect.bottom};
        soft.fill = c.PictureFill(c.Text(keys, SoftKeyRow(key, 0)), nullptr, true);
        if (key == 0 && c.Bool(today, kRowDisplayNewText)) {
            soft.text.text = Localized(IDS_PREVIEW_NEW);
            soft.text.font = c.Font(today);
            soft.text.align = TextAlign::Center;
        }
        c.Add(soft);
    }
}

} // namespace cv2
