#include "pages/appearance/editor_buttons_page.h"

#include <new>

#include "ids_appearance_controls.h"
#include "pages/appearance/control_dialogs.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/own_controls_page.h"
#include "ui/pickers/color_picker.h"
#include "ui/pickers/font_picker.h"

namespace cv2 {
namespace {

enum class ButtonEdit { AppImages, Font, Color };

// A button, what it edits, and where the value lives: the page's section and, for a colour, the
// row.
struct EditorButton {
    StringId text;
    int id;
    ButtonEdit edit;
    size_t section;
    size_t row;
};

// The buttons stand one under the other, 26 units apart, at a fixed place.
OwnControl ButtonControl(const EditorButton& button, int index) {
    const ControlPlace place = {button.id, From::Left, 57, From::Left, 182, 9 + 26 * index, 23};
    return {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, button.text, button.id}, place, false};
}

class EditorButtonsPage : public OwnControlsPage {
  public:
    template <size_t N>
    EditorButtonsPage(StringId name, const EditorButton (&buttons)[N],
                      std::vector<const SettingSection*> sections)
        : OwnControlsPage(name, Controls(buttons, N), std::move(sections)), m_buttons(buttons),
          m_count(N) {}

    bool OnCommand(WPARAM wParam, LPARAM) override {
        if (HIWORD(wParam) != BN_CLICKED)
            return false;
        for (size_t i = 0; i < m_count; ++i) {
            if (m_buttons[i].id == LOWORD(wParam)) {
                Edit(m_buttons[i]);
                return true;
            }
        }
        return false;
    }

  private:
    static std::vector<OwnControl> Controls(const EditorButton* buttons, size_t count) {
        std::vector<OwnControl> controls;
        for (size_t i = 0; i < count; ++i)
            controls.push_back(ButtonControl(buttons[i], static_cast<int>(i)));
        return controls;
    }

    void Edit(const EditorButton& button) {
        SettingValues& values = Values(button.section);
        HWND owner = HostWindow();
        switch (button.edit) {
        case ButtonEdit::AppImages:
            EditImages(values, owner);
            return;
        case ButtonEdit::Font: {
            FontRecord record = FontRecordOf(values.Font());
            if (PickFont(record, owner))
                values.SetFont(FontKeysOf(record));
            return;
        }
        case ButtonEdit::Color: {
            ColorRef color = values.Color(button.row);
            if (EditColor(color, owner))
                values.SetColor(button.row, color);
            return;
        }
        }
    }

    // The dialog works on the texts of the picture and margin rows; each row reads its text
    // back as its type says (a margin that is not a number is 0).
    static void EditImages(SettingValues& values, HWND owner) {
        std::vector<std::wstring> texts;
        for (size_t row = 0; row < kAppImageRows; ++row)
            texts.push_back(values.Text(row));
        if (!EditAppButtonImages(texts, owner))
            return;
        for (size_t row = 0; row < kAppImageRows; ++row)
            values.SetText(row, texts[row]);
    }

    const EditorButton* m_buttons;
    size_t m_count;
};

const EditorButton kAppButtons[] = {
    {IDS_IMAGES_BUTTON, IDC_APP_IMAGES, ButtonEdit::AppImages, 0, 0},
    {IDS_FONT_BUTTON, IDC_APP_FONT, ButtonEdit::Font, 0, 0},
    {IDS_PRESSED_COLOR, IDC_APP_PRESSED_COLOR, ButtonEdit::Color, 0, kAppPressedColor},
    {IDS_DISABLED_COLOR, IDC_APP_DISABLED_COLOR, ButtonEdit::Color, 0, kAppDisabledColor},
};

const EditorButton kFontButtons[] = {
    {IDS_TITLE_FONT, IDC_FONTS_TITLE, ButtonEdit::Font, 0, 0},
    {IDS_CLOCK_FONT, IDC_FONTS_CLOCK, ButtonEdit::Font, 1, 0},
    {IDS_SMALL_CLOCK_FONT, IDC_FONTS_SMALL_CLOCK, ButtonEdit::Font, 2, 0},
};

} // namespace

SettingsPage* NewAppButtonsPage() {
    return new (std::nothrow)
        EditorButtonsPage(IDS_APP_BUTTONS, kAppButtons, {&kAppButtonsSection});
}

SettingsPage* NewTaskbarFontsPage() {
    return new (std::nothrow)
        EditorButtonsPage(IDS_TASKBAR_FONTS, kFontButtons,
                          {&kTitleFontSection, &kClockFontSection, &kSmallClockFontSection});
}

} // namespace cv2
