// The start menu of the scene, opened under the start button with its first entry highlighted,
// and that entry's sub-menu beside it.
#include <algorithm>

#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/start_menu_skin_values.h"
#include "store/strings.h"
#include "themes/preview/scene_context.h"

namespace cv2 {
namespace {

// The first-level entries: their names and the row of their icon in "Start Menu Skin"; the two
// groups open sub-menus.
struct EntryRow {
    StringId name;
    size_t iconRow;
    bool opens;
};
const EntryRow kEntries[] = {
    {IDS_PREVIEW_PROGRAMS, kRowFirstIcon, true},
    {IDS_PREVIEW_SETTINGS, kRowFirstIcon + 1, true},
    {IDS_PREVIEW_FIND, kRowFirstIcon + 2, false},
    {IDS_PREVIEW_HELP, kRowFirstIcon + 3, false},
};
const StringId kSubEntries[] = {IDS_PREVIEW_GAMES, IDS_PREVIEW_ACCESSORIES};

// "Highlight" and "Highlight Text" of the theme's system colours.
constexpr size_t kSysHighlight = 7;
constexpr size_t kSysHighlightText = 8;

// What both levels of the menu share.
struct MenuLook {
    FontKeys font;
    bool useColors = false;
    ColorRef background = 0;
    ColorRef highlight = 0;
    ColorRef highlightText = 0;
    int rowHeight = 0;
    int icon = 0;  // side of an icon's box
    int arrow = 0; // side of the sub-menu mark's box
    int pad = 0;
};

// One level of the menu: where it stands, its picture and its margins.
struct MenuLevel {
    SceneKind kind;
    int x, y;
    std::wstring picture;
    int leftMargin, rightMargin;
    std::vector<std::wstring> texts;
    bool icons; // the first level has icons and marks, the sub-level only texts
};

MenuLook ReadLook(SceneContext& c, const SettingValues& skin, int room) {
    MenuLook look;
    look.font = c.Font(skin);
    look.useColors = c.Bool(skin, kRowUseColors);
    const SettingValues colors = c.Theme(kSystemColorsSection);
    if (look.useColors) {
        look.background = c.Color(skin, kRowBackgroundColor);
        look.highlight = c.Color(skin, kRowHighlightColor);
    } else {
        look.highlight = c.Color(colors, kSysHighlight);
    }
    look.highlightText = c.Color(colors, kSysHighlightText);
    look.icon = c.S(16);
    look.arrow = c.S(9);
    look.pad = c.S(4);
    // A row holds an icon or a line of text; a huge font is cut rather than pushing the menu
    // off the screen.
    look.rowHeight =
        std::clamp(std::max(look.icon, c.TextHeight(look.font)) + c.S(4), 1, std::max(1, room / 4));
    return look;
}

// A margin of the theme's pictures on the screen, kept between 0 and half the screen's width.
int MarginOnScreen(SceneContext& c, long margin) {
    return std::clamp(c.Pic(margin), 0, c.Width() / 2);
}

int LevelWidth(SceneContext& c, const MenuLook& look, const MenuLevel& level) {
    int text = 0;
    for (const std::wstring& t : level.texts)
        text = std::max(text, c.TextWidth(look.font, t));
    int inner = look.pad * 2 + text;
    if (level.icons)
        inner += look.icon + look.pad + look.arrow + look.pad;
    const long long width = static_cast<long long>(level.leftMargin) + inner + level.rightMargin;
    return ClampTo(std::min<long long>(width, c.Width()), std::min(c.S(40), c.Width()), c.Width());
}

void AddEntryParts(SceneContext& c, const SettingValues& skin, const MenuLook& look,
                   const EntryRow& row, int entry) {
    const SceneRect r = c.At(entry).rect;
    const int middle = (r.top + r.bottom) / 2;
    SceneElement icon;
    icon.kind = SceneKind::MenuIcon;
    icon.name = c.At(entry).name;
    icon.parent = entry;
    icon.fill = c.PictureFill(c.Text(skin, row.iconRow), nullptr, true);
    const int side = std::min(look.icon, r.Height());
    icon.rect = {r.left + look.pad, middle - side / 2, r.left + look.pad + side,
                 middle - side / 2 + side};
    if (icon.fill.kind != FillKind::None && r.Contains(icon.rect))
        c.Add(icon);
    SceneElement arrow;
    arrow.kind = SceneKind::MenuArrow;
    arrow.name = icon.name;
    arrow.parent = entry;
    arrow.fill = c.PictureFill(c.Text(skin, kRowSubmenuArrow), nullptr, true);
    const int mark = std::min(look.arrow, r.Height());
    arrow.rect = {r.right - look.pad - mark, middle - mark / 2, r.right - look.pad,
                  middle - mark / 2 + mark};
    if (row.opens && arrow.fill.kind != FillKind::None && r.Contains(arrow.rect) &&
        !arrow.rect.Overlaps(icon.rect))
        c.Add(arrow);
}

// Adds one level with its entries, the first highlighted when `highlightFirst`; returns the
// index of its first entry, or -1 when no entry fits.
int AddLevel(SceneContext& c, const SettingValues& skin, const MenuLook& look,
             const MenuLevel& level, bool highlightFirst) {
    const SceneRect middle = MiddleArea(c);
    const int width = LevelWidth(c, look, level);
    const int x = ClampTo(level.x, 0, c.Width() - width);
    const int rows = static_cast<int>(level.texts.size());
    const int height = std::min(rows * look.rowHeight + look.pad, middle.bottom - level.y);
    if (height <= look.pad)
        return -1;
    SceneElement menu;
    menu.kind = level.kind;
    menu.name = Localized(IDS_START_MENU_SKIN);
    menu.rect = {x, level.y, x + width, level.y + height};
    menu.popup = true;
    if (look.useColors) {
        menu.fill.kind = FillKind::Solid;
        menu.fill.color = look.background;
    } else {
        menu.fill = c.PictureFill(level.picture);
    }
    const int parent = c.Add(menu);
    if (parent < 0)
        return -1;
    int first = -1;
    for (int i = 0; i < rows; ++i) {
        SceneElement entry;
        entry.kind = SceneKind::MenuEntry;
        entry.name = level.texts[static_cast<size_t>(i)];
        entry.parent = parent;
        const int top = level.y + look.pad / 2 + i * look.rowHeight;
        entry.rect = {x + level.leftMargin, top, x + width - level.rightMargin,
                      top + look.rowHeight};
        if (entry.rect.IsEmpty() || !menu.rect.Contains(entry.rect))
            break;
        entry.text.text = entry.name;
        entry.text.font = look.font;
        entry.text.leftInset = look.pad + (level.icons ? look.icon + look.pad : 0);
        entry.text.rightInset = look.pad + (level.icons ? look.arrow + look.pad : 0);
        if (highlightFirst && i == 0) {
            entry.fill.kind = FillKind::Solid;
            entry.fill.color = look.highlight;
            entry.text.font.color = look.highlightText;
        }
        const int index = c.Add(entry);
        if (first < 0)
            first = index;
        if (level.icons)
            AddEntryParts(c, skin, look, kEntries[i], index);
    }
    return first;
}

} // namespace

void AddStartMenu(SceneContext& c, int startButton) {
    const SettingValues skin = c.Theme(kStartMenuSkinSection);
    const SceneRect middle = MiddleArea(c);
    const MenuLook look = ReadLook(c, skin, middle.Height());
    MenuLevel first{SceneKind::StartMenu,
                    c.At(startButton).rect.left,
                    middle.top,
                    c.Text(skin, kRowFirstLevelPicture),
                    MarginOnScreen(c, c.Int(skin, kRowFirstMargin)),
                    MarginOnScreen(c, c.Int(skin, kRowFirstMargin + 1)),
                    {},
                    true};
    for (const EntryRow& row : kEntries)
        first.texts.push_back(Localized(row.name));
    const int highlighted = AddLevel(c, skin, look, first, true);
    if (highlighted < 0)
        return;
    const SceneRect from = c.At(highlighted).rect;
    const SceneRect menu = c.At(c.At(highlighted).parent).rect;
    MenuLevel sub{SceneKind::SubMenu,
                  menu.right,
                  from.top,
                  c.Text(skin, kRowSublevelPicture),
                  MarginOnScreen(c, c.Int(skin, kRowFirstMargin + 2)),
                  MarginOnScreen(c, c.Int(skin, kRowFirstMargin + 3)),
                  {},
                  false};
    for (StringId text : kSubEntries)
        sub.texts.push_back(Localized(text));
    AddLevel(c, skin, look, sub, false);
}

} // namespace cv2
