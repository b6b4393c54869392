#include "pages/appearance/bar_background_page.h"

#include <new>

#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/soft_key_dialog.h"
#include "pages/appearance/today_menubar_dialog.h"
#include "ui/backgrounds/background_dialog.h"
#include "ui/backgrounds/button_images_dialog.h"

namespace cv2 {
namespace {

// What the panel's "Settings" button opens.
enum class BarDialog { Background, TodayMenubar, Menubar, SoftKeys };

struct BarMember {
    PageTitle title;
    const SettingSection* section;
    PanelView view;
    BarDialog dialog;
    // A soft-key bar is always drawn by scaling its pictures, whatever mode was read.
    bool alwaysScaled;
};

// Every bar shows both picture rows and "Settings"; the soft keys leave the drop-down list and
// "Use Custom Colors" as the page before left them.
constexpr unsigned kBarShown = kPanelRows | kPanelSettings;
constexpr unsigned kBarHidden = kPanelList | kPanelCustomColors;

const BarMember kMembers[] = {
    {{IDS_TASKBAR_BACKGROUND, nullptr},
     &kTopbarSection,
     {IDS_PORTRAIT_ROW, IDS_LANDSCAPE_ROW, kBarShown, kBarHidden},
     BarDialog::Background,
     false},
    {{IDS_TODAY_MENUBAR, nullptr},
     &kTodayMenubarSection,
     {IDS_PORTRAIT_ROW, IDS_LANDSCAPE_ROW, kBarShown, kBarHidden},
     BarDialog::TodayMenubar,
     false},
    {{IDS_APP_MENUBAR, nullptr},
     &kMenubarSection,
     {IDS_PORTRAIT_ROW, IDS_LANDSCAPE_ROW, kBarShown, kBarHidden},
     BarDialog::Menubar,
     false},
    {{StringId{}, L"SoftKeys"},
     &kSoftKeySection,
     {IDS_PORTRAIT_ROW, IDS_LANDSCAPE_ROW, kBarShown, 0},
     BarDialog::SoftKeys,
     true},
};

class BarBackgroundPage : public PanelPage {
  public:
    explicit BarBackgroundPage(const BarMember& member)
        : PanelPage(member.title, *member.section, member.view, {kRowPortrait, kRowLandscape}),
          m_member(member) {}

    bool OnCommand(WPARAM wParam, LPARAM) override {
        if (!IsSettingsClick(wParam))
            return false;
        switch (m_member.dialog) {
        case BarDialog::Background:
            EditFill();
            break;
        case BarDialog::TodayMenubar:
            EditToday();
            break;
        case BarDialog::Menubar:
            EditMenubar();
            break;
        case BarDialog::SoftKeys:
            EditSoftKeyImages();
            break;
        }
        return true;
    }

  protected:
    void Write(IniDocument& doc) const override {
        if (!m_member.alwaysScaled) {
            m_values.Save(doc);
            return;
        }
        SettingValues written = m_values;
        written.SetText(kRowMode, ModeWord(kModeScaled));
        written.Save(doc);
    }

  private:
    void EditFill() {
        BackgroundFill fill = FillOf(m_values);
        if (EditBackground(fill, Owner()))
            SetFill(m_values, fill);
    }

    void EditToday() {
        TodayMenubarLook look;
        look.fill = FillOf(m_values);
        look.displayNewText = m_values.Bool(kRowDisplayNewText);
        look.font = m_values.Font();
        if (!EditTodayMenubar(look, Owner()))
            return;
        SetFill(m_values, look.fill);
        m_values.SetBool(kRowDisplayNewText, look.displayNewText);
        m_values.SetFont(look.font);
    }

    void EditMenubar() {
        ButtonImages images;
        images.font = FontRecordOf(m_values.Font());
        images.pressedColor = m_values.Color(kRowPressedColor);
        images.normalImage = m_values.Text(kRowNormalImage);
        images.pressedImage = m_values.Text(kRowNormalImage + 1);
        images.disabledImage = m_values.Text(kRowNormalImage + 2);
        images.background = FillOf(m_values);
        images.leftMargin = static_cast<int32_t>(m_values.Int(kRowLeftMargin));
        images.rightMargin = static_cast<int32_t>(m_values.Int(kRowRightMargin));
        if (!EditButtonImages(images, Owner()))
            return;
        m_values.SetFont(FontKeysOf(images.font));
        m_values.SetColor(kRowPressedColor, images.pressedColor);
        m_values.SetText(kRowNormalImage, images.normalImage);
        m_values.SetText(kRowNormalImage + 1, images.pressedImage);
        m_values.SetText(kRowNormalImage + 2, images.disabledImage);
        SetFill(m_values, images.background);
        m_values.SetInt(kRowLeftMargin, images.leftMargin);
        m_values.SetInt(kRowRightMargin, images.rightMargin);
    }

    void EditSoftKeyImages() {
        SoftKeyImages images;
        for (size_t i = 0; i < kSoftKeyImageCount; ++i)
            images.paths[i] = m_values.Text(kRowFirstSoftKey + i);
        if (!EditSoftKeys(images, Owner()))
            return;
        for (size_t i = 0; i < kSoftKeyImageCount; ++i)
            m_values.SetText(kRowFirstSoftKey + i, images.paths[i]);
    }

    const BarMember& m_member;
};

} // namespace

SettingsPage* NewBarBackgroundPage(BarKind kind) {
    return new (std::nothrow) BarBackgroundPage(kMembers[static_cast<int>(kind)]);
}

} // namespace cv2
