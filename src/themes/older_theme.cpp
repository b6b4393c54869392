#include "themes/older_theme.h"

#include <vector>

#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {

const wchar_t* const kAppearanceSections[kAppearanceSectionCount] = {
    config::kSkinInfo,  config::kButtonImages,   config::kTopbar,        config::kTodayMenubar,
    config::kMenubar,   config::kVolumeBubble,   config::kStartMenuSkin, config::kClockFont,
    config::kTitleFont, config::kSmallClockFont, config::kButtons,       config::kSounds,
    config::kTaskPanel, config::kSoftKey};

namespace {

// Old themes keep every key before the first section header.
const wchar_t kFlat[] = L"";

struct ImageRow {
    const wchar_t* sourceKey;
    const wchar_t* section;
    const wchar_t* key;
};

const ImageRow kImages[] = {
    {L"Logo", config::kButtonImages, L"Start Menu Normal"},
    {L"Close", config::kButtonImages, L"Close Normal"},
    {L"TapHoldClose", config::kButtonImages, L"Close Pressed"},
    {L"OK", config::kButtonImages, L"OK Normal"},
    {L"TapHoldOK", config::kButtonImages, L"OK Pressed"},
    {L"Notification", config::kButtonImages, L"Notify Normal"},
    {L"VolumeOn", config::kButtonImages, L"Volume Normal"},
    {L"VolumeOff", config::kButtonImages, L"Mute Normal"},
    {L"Battery/Memory", config::kButtonImages, L"Battery/Memory Normal"},
    {L"Home", config::kButtonImages, L"Home Normal"},
    {L"Menu", config::kButtonImages, L"Menu Normal"},
    {L"Custom1", config::kButtonImages, L"Custom1 Normal"},
    {L"Custom2", config::kButtonImages, L"Custom2 Normal"},
    {L"Connected", config::kButtonImages, L"Connection Normal"},
    {L"Disconnected", config::kButtonImages, L"Disconnect Normal"},
    {L"Taskbar", config::kTopbar, L"Portrait"},
    {L"Menubar", config::kTodayMenubar, L"Portrait"},
    {L"SIPButton", config::kButtonImages, L"SIP Normal"},
};

struct FontRow {
    const wchar_t* sourceKey;
    const wchar_t* section;
};

const FontRow kFonts[] = {
    {L"ClockFont", config::kClockFont},
    {L"TitleFont", config::kTitleFont},
    {L"SmallClockFont", config::kSmallClockFont},
};

bool IsTrimmed(wchar_t c) {
    return c == L' ' || c == L'\r' || c == L'\n';
}

std::wstring Trim(const std::wstring& field) {
    size_t end = field.size();
    while (end > 0 && IsTrimmed(field[end - 1]))
        --end;
    size_t begin = 0;
    while (begin < end && field[begin] == L' ')
        ++begin;
    return field.substr(begin, end - begin);
}

std::vector<std::wstring> SplitFields(const std::wstring& text) {
    std::vector<std::wstring> fields;
    size_t start = 0;
    for (;;) {
        const size_t comma = text.find(L',', start);
        fields.push_back(Trim(text.substr(start, comma - start)));
        if (comma == std::wstring::npos)
            return fields;
        start = comma + 1;
    }
}

// One colour channel as the first format's reader takes it: the two hex digits are put behind
// "0x" and read as a decimal number, which stops at the "x". Every channel is therefore 0; the
// bar's own reader does the same, so old themes keep looking as they always did.
int ChannelOf(const std::wstring& hex, size_t at) {
    std::wstring text = L"0x";
    for (size_t i = at; i < at + 2 && i < hex.size(); ++i)
        text += hex[i];
    return static_cast<int>(LeadingLong(text.c_str()));
}

bool IsOn(const std::vector<std::wstring>& fields, size_t at) {
    return at < fields.size() && EqualsNoCase(fields[at].c_str(), L"t");
}

void DeleteConvertedSections(IniDocument& target) {
    for (size_t i = 0; i < kConvertedSectionCount; ++i)
        target.DeleteSection(kAppearanceSections[i]);
}

void CopyImages(const IniDocument& source, IniDocument& target) {
    const std::wstring folder = FolderOf(source.Path());
    for (const ImageRow& row : kImages) {
        std::wstring value = source.GetString(kFlat, row.sourceKey, L"", kMaxPath);
        if (!IsAbsolutePath(value))
            value = CutToBuffer(folder + value, kMaxPath);
        target.SetString(row.section, row.key, value.c_str());
        // The old menu bar picture was always stretched to the bar.
        if (EqualsNoCase(row.sourceKey, L"Menubar"))
            target.SetString(config::kTodayMenubar, L"Mode", L"scaled");
    }
}

void CopyFonts(const IniDocument& source, IniDocument& target) {
    for (const FontRow& row : kFonts) {
        const OlderFont font =
            ParseOlderFont(source.GetString(kFlat, row.sourceKey, L"", kOlderFontChars));
        target.SetString(row.section, L"Name", font.name.c_str());
        target.SetInt(row.section, L"Size", static_cast<int>(font.size));
        WriteColor(target, row.section, L"Color", font.color);
        target.SetString(row.section, L"Style", OlderFontStyle(font).c_str());
    }
}

void SetColorKey(IniDocument& target, const wchar_t* key, long value) {
    target.SetInt(config::kTopbar, key, static_cast<int>(value));
}

// The mode words differ in case from row to row; the bar reads them as written here.
void CopyBackground(const IniDocument& source, IniDocument& target,
                    const OlderThemeColors& colors) {
    const std::wstring mode = source.GetString(kFlat, L"BGMode", L"File");
    if (EqualsNoCase(mode.c_str(), L"File")) {
        target.SetString(config::kTopbar, L"Mode", L"Scaled");
    } else if (EqualsNoCase(mode.c_str(), L"2002")) {
        target.SetString(config::kTopbar, L"Mode", L"Gradient");
        target.SetBool(config::kTopbar, L"Use Theme Colors", true);
    } else if (EqualsNoCase(mode.c_str(), L"gradient")) {
        target.SetString(config::kTopbar, L"Mode", L"Gradient");
        SetColorKey(target, L"Left Color", source.GetInt(kFlat, L"LeftGrad", colors.themeColor0));
        SetColorKey(target, L"Right Color", source.GetInt(kFlat, L"RightGrad", colors.themeColor1));
    } else if (EqualsNoCase(mode.c_str(), L"solid")) {
        target.SetString(config::kTopbar, L"Mode", L"color");
        SetColorKey(target, L"Solid Color",
                    source.GetInt(kFlat, L"SolidColor", colors.activeCaption));
    }
}

} // namespace

OlderFont ParseOlderFont(const std::wstring& text) {
    const std::vector<std::wstring> fields = SplitFields(text);
    const auto field = [&](size_t at) { return at < fields.size() ? fields[at] : std::wstring(); };
    OlderFont font;
    font.name = field(0);
    font.size = LeadingLong(field(1).c_str());
    const std::wstring hex = field(2);
    font.color = MakeColor(ChannelOf(hex, 0), ChannelOf(hex, 2), ChannelOf(hex, 4));
    font.bold = IsOn(fields, 3);
    font.italic = IsOn(fields, 4);
    font.shadow = IsOn(fields, 5);
    return font;
}

std::wstring OlderFontStyle(const OlderFont& font) {
    const std::pair<bool, const wchar_t*> words[] = {
        {font.bold, L"bold"}, {font.italic, L"italic"}, {font.shadow, L"shadow"}};
    std::wstring style;
    for (const auto& word : words) {
        if (!word.first)
            continue;
        if (!style.empty())
            style += L',';
        style += word.second;
    }
    return style;
}

void ConvertOlderTheme(const IniDocument& source, IniDocument& target,
                       const OlderThemeColors& colors) {
    DeleteConvertedSections(target);
    target.SetBool(config::kSkinInfo, L"HiRes", false);
    CopyImages(source, target);
    target.SetBool(config::kButtonImages, L"Battery/Memory Custom",
                   source.GetBool(kFlat, L"CustomBatteryColor", false));
    CopyFonts(source, target);
    CopyBackground(source, target, colors);
}

} // namespace cv2
