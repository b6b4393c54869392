#include "themes/preview/scene_builder.h"

#include <algorithm>

#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/taskbar_buttons_values.h"
#include "pages/behaviour/button_assignments_values.h"
#include "store/config_sections.h"
#include "store/strings.h"
#include "themes/preview/scene_context.h"

namespace cv2 {
namespace {

// The Taskbar Buttons row whose "Normal" picture each built-in item of the button order shows;
// -1 for the clock, which shows its text.
const int kOrderItemPictureRow[kBuiltInOrderItems] = {
    1,  // close: "Close"
    -1, // clock
    3,  // notify: "Notify"
    4,  // volume
    7,  // battery: "Battery/Memory"
    8,  // home
    9,  // menu
    10, // custom1
    11, // custom2
    12, // connection: "Connection"
    14, // signal: "Signal Strength"
};
constexpr size_t kVolumeItem = 3;
constexpr size_t kClockItem = 1;
constexpr int kStartButtonRow = 0;

// Visibility flags of the Button Assignments page that the top bar reads directly.
constexpr size_t kStartMenuFlag = 0;
constexpr size_t kTitleFlag = 2;

// One button of the top bar before it is placed.
struct BarSlot {
    SceneElement element;
    int width = 0;
    int height = 0;
    bool volume = false;
};

// What the button order shows, by the Button Order rules over config.ini's values: the items,
// their visibility flags and the order.
struct TopBarLayout {
    std::vector<OrderItem> items;
    std::vector<bool> flags;
    std::vector<int> listed;
};

TopBarLayout ReadTopBarLayout(SceneContext& c) {
    TopBarLayout layout;
    layout.items = BuiltInOrderItems();
    layout.items.insert(layout.items.end(), c.device.pluginButtons.begin(),
                        c.device.pluginButtons.end());
    std::vector<const wchar_t*> pluginKeys;
    for (size_t i = kBuiltInOrderItems; i < layout.items.size(); ++i)
        pluginKeys.push_back(layout.items[i].present ? layout.items[i].key.c_str() : nullptr);
    for (const wchar_t* key : {L"Use Start Menu", L"Show Notifications"})
        c.Use(config::kGeneralSettings, key);
    for (const wchar_t* key : {L"Order", L"Show Title"})
        c.Use(config::kTopbarSettings, key);
    const std::wstring order = ReadOrderValue(c.ConfigDoc(), c.device.hasPhone);
    layout.flags = ReadVisibility(c.ConfigDoc(), order, c.device.hasPhone, pluginKeys);
    layout.listed = ListedItems(ParseOrder(order, layout.items), layout.items, layout.flags);
    return layout;
}

bool Flag(const std::vector<bool>& flags, size_t index) {
    return index < flags.size() && flags[index];
}

// A button showing its "Normal" picture at the picture's size, no taller than the bar; a
// square placeholder when there is none.
BarSlot PictureSlot(SceneContext& c, const SettingValues& images, int row, const std::wstring& name,
                    int barHeight) {
    BarSlot slot;
    slot.element.name = name;
    SceneSize own;
    slot.element.fill = c.PictureFill(c.Text(images, NormalKeyRow(static_cast<size_t>(row))), &own);
    if (slot.element.fill.kind == FillKind::Picture) {
        const SceneSize shown = c.PictureOnScreen(own, c.Width(), barHeight);
        slot.width = shown.width;
        slot.height = shown.height;
    } else {
        slot.width = slot.height = barHeight;
    }
    return slot;
}

BarSlot ClockSlot(SceneContext& c, int barHeight) {
    const ClockValues clock = ReadClockValues(c.ConfigDoc(), c.device.locale);
    for (const wchar_t* key :
         {L"Normal Clock", L"Show Time", L"Show Date", L"Time Format", L"Date Format"})
        c.Use(config::kGeneralSettings, key);
    BarSlot slot;
    slot.element.name = Localized(IDS_ORDER_CLOCK);
    slot.element.text.text = ClockShownText(clock, c.device.now, c.device.names);
    slot.element.text.font =
        c.Font(c.Theme(clock.normalClock ? kClockFontSection : kSmallClockFontSection));
    slot.element.text.align = TextAlign::Center;
    slot.width = c.TextWidth(slot.element.text.font, slot.element.text.text) + c.S(4);
    slot.height = barHeight;
    return slot;
}

// The buttons of the order, left to right; those that do not fit between the start button and
// the screen's right edge are left out from the left.
std::vector<BarSlot> OrderSlots(SceneContext& c, const TopBarLayout& layout, int barHeight,
                                int room) {
    const SettingValues images = c.Theme(ButtonImagesSection());
    std::vector<BarSlot> slots;
    const std::vector<OrderItem>& items = layout.items;
    for (int index : layout.listed) {
        const size_t item = static_cast<size_t>(index);
        BarSlot slot;
        if (item == kClockItem) {
            slot = ClockSlot(c, barHeight);
            if (slot.element.text.text.empty())
                continue;
        } else if (item < kBuiltInOrderItems) {
            slot = PictureSlot(c, images, kOrderItemPictureRow[item], items[item].name, barHeight);
        } else {
            // A plug-in draws its own button; the preview cannot.
            slot.element.name = items[item].name;
            slot.element.fill.kind = FillKind::Placeholder;
            slot.width = slot.height = barHeight;
        }
        slot.element.kind = item == kClockItem ? SceneKind::Clock : SceneKind::TopBarButton;
        slot.volume = item == kVolumeItem;
        slots.push_back(std::move(slot));
    }
    int total = 0;
    for (const BarSlot& s : slots)
        total += s.width;
    while (!slots.empty() && total > room) {
        total -= slots.front().width;
        slots.erase(slots.begin());
    }
    return slots;
}

SceneElement Placed(const BarSlot& slot, int x, int barHeight, int parent) {
    SceneElement e = slot.element;
    const int top = (barHeight - slot.height) / 2;
    e.rect = {x, top, x + slot.width, top + slot.height};
    e.parent = parent;
    return e;
}

// The theme's background pictures for the screen's shape: landscape screens take the landscape
// picture, or the portrait one when the theme has none.
const std::wstring& ShapePicture(SceneContext& c, const SettingValues& values) {
    if (c.Landscape()) {
        const std::wstring& landscape = c.Text(values, kRowLandscape);
        if (!landscape.empty())
            return landscape;
    }
    return c.Text(values, kRowPortrait);
}

} // namespace

SceneFill BarBackground(SceneContext& c, const SettingSection& section) {
    const SettingValues values = c.Theme(section);
    const int32_t mode = ModeFromWord(c.Text(values, kRowMode).c_str());
    SceneFill fill;
    switch (mode) {
    case kModeScaled:
    case kModeTiled: {
        SceneSize own;
        fill = c.PictureFill(ShapePicture(c, values), &own);
        if (fill.kind == FillKind::Picture && mode == kModeTiled) {
            const SceneSize tile = c.PictureOnScreen(own, kMaxSceneSide, kMaxSceneSide);
            fill.fit = PictureFit::Tile;
            fill.tileWidth = tile.width;
            fill.tileHeight = tile.height;
        }
        break;
    }
    case kModeGradient:
        fill.kind = FillKind::Gradient;
        if (c.Bool(values, kRowThemeColors) && c.device.colors) {
            fill.color = c.device.colors->ThemeColor(0);
            fill.color2 = c.device.colors->ThemeColor(1);
        } else {
            fill.color = c.Color(values, kRowLeftColor);
            fill.color2 = c.Color(values, kRowRightColor);
        }
        break;
    case kModeNone:
        break;
    default:
        fill.kind = FillKind::Solid;
        fill.color = c.Color(values, kRowSolidColor);
        break;
    }
    return fill;
}

void AddTopBar(SceneContext& c, int& startButton, int& volumeButton) {
    startButton = volumeButton = -1;
    const int barHeight = c.request.topBarOnly ? c.Height() : MiddleArea(c).top;
    SceneElement bar;
    bar.kind = SceneKind::TopBar;
    bar.name = Localized(IDS_TASKBAR_BACKGROUND);
    bar.rect = {0, 0, c.Width(), barHeight};
    bar.fill = BarBackground(c, kTopbarSection);
    const int parent = c.Add(bar);
    if (parent < 0)
        return;
    const TopBarLayout layout = ReadTopBarLayout(c);
    const SettingValues images = c.Theme(ButtonImagesSection());
    int left = 0;
    if (Flag(layout.flags, kStartMenuFlag)) {
        BarSlot start =
            PictureSlot(c, images, kStartButtonRow, Localized(IDS_BUTTON_START_MENU), barHeight);
        start.element.kind = SceneKind::StartButton;
        start.width = std::min(start.width, c.Width() / 2);
        startButton = c.Add(Placed(start, 0, barHeight, parent));
        left = start.width;
    }
    const std::vector<BarSlot> slots = OrderSlots(c, layout, barHeight, c.Width() - left);
    int total = 0;
    for (const BarSlot& s : slots)
        total += s.width;
    const int groupLeft = c.Width() - total;
    if (Flag(layout.flags, kTitleFlag) && groupLeft - left > c.S(10)) {
        SceneElement title;
        title.kind = SceneKind::Title;
        title.name = Localized(IDS_PREVIEW_TITLE);
        title.rect = {left + c.S(3), 0, groupLeft - c.S(3), barHeight};
        title.parent = parent;
        title.text.text = title.name;
        title.text.font = c.Font(c.Theme(kTitleFontSection));
        c.Add(title);
    }
    int x = groupLeft;
    for (const BarSlot& s : slots) {
        const int index = c.Add(Placed(s, x, barHeight, parent));
        if (s.volume)
            volumeButton = index;
        x += s.width;
    }
}

Scene BuildScene(const PreviewRequest& request, const PreviewDevice& device) {
    SceneContext c(request, device);
    int startButton = -1, volumeButton = -1;
    AddTopBar(c, startButton, volumeButton);
    if (request.topBarOnly)
        return std::move(c.scene);
    AddDesktopAndWindow(c);
    AddTodayMenubar(c);
    if (request.startMenuOpen && startButton >= 0)
        AddStartMenu(c, startButton);
    else
        AddVolumeBubble(c, volumeButton);
    return std::move(c.scene);
}

} // namespace cv2
