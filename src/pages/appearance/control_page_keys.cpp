#include "pages/appearance/control_page_keys.h"

#include "store/config_sections.h"
namespace cv2 {
namespace {

constexpr SettingType kPath = SettingType::Path;
constexpr SettingType kInt = SettingType::Integer;
constexpr SettingType kColor = SettingType::Color;

// The system colour of grey (disabled) text.
constexpr int kSysGrayText = 17;

const SettingKey kAppButtonKeys[] = {
    {L"normal", kPath},
    {L"pressed", kPath},
    {L"disabled", kPath},
    {L"focused", kPath},
    {L"left", kInt, L"3"},
    {L"right", kInt, L"3"},
    {L"top", kInt, L"0"},
    {L"bottom", kInt, L"0"},
    {L"Pressed Color", kColor, L"16777215"},
    {L"Disabled Color", kColor, L"", DeviceDefault::SystemColor, kSysGrayText},
};
const FontDefault kAppButtonFont = {L"Tahoma", 8, 0, 0, L"bold"};

// "WindowFrame" has no space, unlike every other key; themes are written with it so.
const SettingKey kSystemColorKeys[] = {
    {L"Active Caption", kColor, L"10027008"},        // 0x990000
    {L"Inactive Caption", kColor, L"8421504"},       // 0x808080
    {L"Window", kColor, L"16777215"},                // 0xFFFFFF
    {L"WindowFrame", kColor, L"0"},                  //
    {L"Menu Text", kColor, L"0"},                    //
    {L"Window Text", kColor, L"0"},                  //
    {L"Caption Text", kColor, L"16777215"},          // 0xFFFFFF
    {L"Highlight", kColor, L"10027008"},             // 0x990000
    {L"Highlight Text", kColor, L"16777215"},        // 0xFFFFFF
    {L"Button Face", kColor, L"12635353"},           // 0xC0CCD9
    {L"Button Shadow", kColor, L"8421504"},          // 0x808080
    {L"Gray Text", kColor, L"8421504"},              // 0x808080
    {L"Button Text", kColor, L"0"},                  //
    {L"Inactive Caption Text", kColor, L"16777215"}, // 0xFFFFFF
    {L"Button Highlight", kColor, L"16777215"},      // 0xFFFFFF
    {L"Tooltip Text", kColor, L"0"},                 //
    {L"Tooltip Background", kColor, L"13434879"},    // 0xCCFFFF
    {L"Static", kColor, L"16777215"},                // 0xFFFFFF
    {L"Static Text", kColor, L"0"},                  //
};
static_assert(sizeof kSystemColorKeys / sizeof kSystemColorKeys[0] == kSystemColorCount,
              "one key per system colour");

// The bar's top-bar fonts are white with a shadow, unlike every other font of a theme.
const FontDefault kTopBarFont = {L"Tahoma", 8, 0xFFFFFF, 0, L"shadow"};
const FontDefault kSmallClockFont = {L"Tahoma", 6, 0xFFFFFF, 0, L"shadow"};

const SettingKey kSoundKeys[] = {
    {L"Close", kPath},
    {L"Maximize", kPath},
    {L"MenuCommand", kPath},
    {L"MenuPopup", kPath},
    {L"Minimize", kPath},
    {L"Open", kPath},
    {L"Startup", kPath},
    {L"SystemAsterisk", kPath},
    {L"SystemDefault", kPath},
    {L"SystemExclamation", kPath},
    {L"SystemHand", kPath},
    {L"SystemQuestion", kPath},
    {L"NotificationReminder", kPath},
};
static_assert(sizeof kSoundKeys / sizeof kSoundKeys[0] == kSoundEventCount,
              "one key per sound event");

const SettingKey kNotifyImageKeys[] = {
    {L"Normal", kPath},
    {L"Pressed", kPath},
};

} // namespace

const SettingSection kAppButtonsSection =
    SectionOf(config::kButtons, kAppButtonKeys, &kAppButtonFont);

const SettingSection kSystemColorsSection = SectionOf(config::kColors, kSystemColorKeys);
const StringId kSystemColorNames[kSystemColorCount] = {
    IDS_SYS_ACTIVE_CAPTION,
    IDS_SYS_INACTIVE_CAPTION,
    IDS_SYS_WINDOW,
    IDS_SYS_WINDOW_FRAME,
    IDS_SYS_MENU_TEXT,
    IDS_SYS_WINDOW_TEXT,
    IDS_SYS_CAPTION_TEXT,
    IDS_SYS_HIGHLIGHT,
    IDS_SYS_HIGHLIGHT_TEXT,
    IDS_SYS_BUTTON_FACE,
    IDS_SYS_BUTTON_SHADOW,
    IDS_SYS_GRAY_TEXT,
    IDS_SYS_BUTTON_TEXT,
    IDS_SYS_INACTIVE_CAPTION_TEXT,
    IDS_SYS_BUTTON_HIGHLIGHT,
    IDS_SYS_TOOLTIP_TEXT,
    IDS_SYS_TOOLTIP_BACKGROUND,
    IDS_SYS_STATIC,
    IDS_SYS_STATIC_TEXT,
};

const SettingSection kTitleFontSection = FontSectionOf(config::kTitleFont, &kTopBarFont);
const SettingSection kClockFontSection = FontSectionOf(config::kClockFont, &kTopBarFont);
const SettingSection kSmallClockFontSection =
    FontSectionOf(config::kSmallClockFont, &kSmallClockFont);

const SettingSection kSoundsSection = SectionOf(config::kSounds, kSoundKeys);
// The first twelve events are numbered in a run; the reminder came later.
const StringId kSoundEventNames[kSoundEventCount] = {
    IDS_SOUND_CLOSE,    IDS_SOUND_MAXIMIZE,    IDS_SOUND_MENU_COMMAND, IDS_SOUND_MENU_POPUP,
    IDS_SOUND_MINIMIZE, IDS_SOUND_OPEN,        IDS_SOUND_STARTUP,      IDS_SOUND_ASTERISK,
    IDS_SOUND_DEFAULT,  IDS_SOUND_EXCLAMATION, IDS_SOUND_HAND,         IDS_SOUND_QUESTION,
    IDS_SOUND_REMINDER,
};

const SettingSection kNotifyImagesSection = SectionOf(config::kNotifySections, kNotifyImageKeys);

} // namespace cv2
