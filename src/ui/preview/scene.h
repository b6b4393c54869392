// The preview of the bar as plain data: a list of elements, each a rectangle with what fills it
// and the text drawn over it, in drawing order (an element's parent comes before it). The scene
// builder makes it from a theme; the painter draws it; tests read it. Portable.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/pickers/color_value.h"
#include "ui/pickers/font_style.h"

namespace cv2 {

struct SceneRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool Contains(const SceneRect& inner) const {
        return inner.left >= left && inner.top >= top && inner.right <= right &&
               inner.bottom <= bottom;
    }
    bool Overlaps(const SceneRect& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
};

struct SceneSize {
    int width = 0;
    int height = 0;
};

// What an element stands for on the screen.
enum class SceneKind {
    Desktop,      // the screen behind everything
    TopBar,       // the bar at the top, and its parts:
    StartButton,  //
    Title,        //
    TopBarButton, // a button of the button order
    Clock,        //
    StartMenu,    // the start menu opened under the start button (a pop-up), and its parts:
    MenuEntry,    //
    MenuIcon,     //
    MenuArrow,    // the mark of an entry that opens a sub-menu
    SubMenu,      // the sub-menu of the highlighted entry (a pop-up)
    Window,       // the sample window in the theme's system colours, and its parts:
    Caption,      //
    WindowRow,    // a line of text, plain, highlighted or greyed
    AppButton,    //
    CheckBox,     //
    RadioButton,  //
    VolumeBubble, // the volume bubble (a pop-up)
    TodayMenubar, // the menu bar at the bottom, and its parts:
    SoftKey,      //
};

enum class FillKind {
    None,
    Solid,       // `color`
    Gradient,    // from `color` on the left to `color2` on the right
    Picture,     // `picture` drawn as `fit` says
    Placeholder, // a neutral box with the element's name, where a picture is wanted but none can
                 // be shown (`picture` holds the file that was named, or "" when none was)
    Raised,      // a push button of the system: face `color`, light edge `color2`, dark `color3`
    Box,         // `color` inside a one-pixel frame of `color2`
};

enum class PictureFit {
    Stretch, // over the whole rectangle
    Tile,    // repeated from the top-left corner at tileWidth x tileHeight
    Margins, // the picture's edges (margins, in the picture's own pixels) kept, its middle
             // stretched, drawn scaled by `scale` percent
};

struct SceneMargins {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct SceneFill {
    FillKind kind = FillKind::None;
    ColorRef color = 0;
    ColorRef color2 = 0;
    ColorRef color3 = 0;
    std::wstring picture; // a full path
    PictureFit fit = PictureFit::Stretch;
    int tileWidth = 0;
    int tileHeight = 0;
    SceneMargins margins;
    int scale = 100;
};

enum class TextAlign { Left, Center, Right };

// One line of text, vertically centred in its element and cut with an ellipsis to its width.
struct SceneText {
    std::wstring text; // empty: no text
    FontKeys font;
    TextAlign align = TextAlign::Left;
    // Room kept free of text at either end of the element (for an icon, an arrow).
    int leftInset = 0;
    int rightInset = 0;
};

struct SceneElement {
    SceneKind kind = SceneKind::Desktop;
    std::wstring name; // what a placeholder shows, and what tests look for
    SceneRect rect;
    int parent = -1; // index of the element it lies in; -1 for the screen
    SceneFill fill;
    SceneText text;
    // Pop-ups lie over other elements of the screen; everything else shares its parent with
    // siblings that it must not overlap.
    bool popup = false;
};

// A theme value the scene was made from.
struct SceneKey {
    std::wstring section;
    std::wstring key;
};

struct Scene {
    int width = 0;
    int height = 0;
    int dpi = 96;
    std::vector<SceneElement> elements;
    std::vector<SceneKey> usedKeys; // each once, in the order first used

    // The first element of that kind (and name, when given); null when there is none.
    const SceneElement* Find(SceneKind kind, const std::wstring& name = std::wstring()) const;
    // The elements of that kind, in drawing order.
    std::vector<const SceneElement*> All(SceneKind kind) const;
    // Whether the scene was made from `key` of `section` (compared without regard to case).
    bool Used(const wchar_t* section, const wchar_t* key) const;
    // The topmost element at a point of the scene, or null.
    const SceneElement* At(int x, int y) const;
    // The part of an element below the last of the elements that lie in it (pop-ups aside):
    // where its own label can go without running into them. The whole element when nothing
    // lies in it; empty when they reach its bottom.
    SceneRect FreeBelowParts(size_t index) const;
};

} // namespace cv2
