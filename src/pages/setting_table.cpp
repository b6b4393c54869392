#include "pages/setting_table.h"

#include <limits>

#include "store/paths.h"

namespace cv2 {
namespace {

const std::wstring kEmpty;
// Read values whole; Normalised cuts them as their type says.
constexpr int kWholeValue = std::numeric_limits<int>::max();

std::wstring IntText(long value) {
    return std::to_wstring(static_cast<int>(value));
}

std::wstring ColorText(ColorRef color) {
    return std::to_wstring(static_cast<int32_t>(color));
}

// The list's spelling of `word`, or null when the list does not hold it.
const wchar_t* MatchChoice(const SettingKey& key, const wchar_t* word) {
    for (const wchar_t* const* choice = key.choices; choice && *choice; ++choice)
        if (EqualsNoCase(*choice, word))
            return *choice;
    return nullptr;
}

// `text` as it is stored for a row of `key`'s type; `def` is the row's default as stored.
std::wstring Normalised(const SettingKey& key, const std::wstring& text, const std::wstring& def) {
    switch (key.type) {
    case SettingType::Path:
        return CutToBuffer(text, kSettingPathChars + 1);
    case SettingType::Integer:
        return IntText(LeadingLong(text.c_str()));
    case SettingType::Boolean:
        return IsTrueWord(text.c_str()) ? L"TRUE" : L"FALSE";
    case SettingType::Color:
        return ColorText(static_cast<ColorRef>(LeadingLong(text.c_str())));
    case SettingType::Choice: {
        const wchar_t* word = MatchChoice(key, text.c_str());
        return word ? word : def;
    }
    case SettingType::Text:
        break;
    }
    return text;
}

} // namespace

std::wstring DefaultText(const SettingKey& key, const DeviceColors& colors) {
    switch (key.device) {
    case DeviceDefault::SystemColor:
        return ColorText(colors.SystemColor(key.deviceIndex));
    case DeviceDefault::ThemeColor:
        return ColorText(colors.ThemeColor(key.deviceIndex));
    case DeviceDefault::None:
        break;
    }
    return key.def ? key.def : L"";
}

SettingValues::SettingValues(const SettingSection& section)
    : m_section(&section), m_values(section.count) {}

void SettingValues::Load(const IniDocument& doc, const DeviceColors& colors) {
    const SettingSection& s = *m_section;
    for (size_t row = 0; row < s.count; ++row) {
        const SettingKey& key = s.keys[row];
        const std::wstring def = DefaultText(key, colors);
        const std::wstring stored = doc.GetString(s.name, key.key, def.c_str(), kWholeValue);
        m_values[row] = Normalised(key, stored, def);
    }
    if (s.font)
        m_font = ReadFontKeys(doc, s.name, s.font->face, s.font->size, s.font->color,
                              s.font->shadowColor, s.font->style);
}

void SettingValues::Reset(const DeviceColors& colors) {
    Load(IniDocument(), colors);
}

void SettingValues::Save(IniDocument& doc) const {
    const SettingSection& s = *m_section;
    for (size_t row = 0; row < s.count; ++row)
        doc.SetString(s.name, s.keys[row].key, m_values[row].c_str());
    if (s.font)
        WriteFontKeys(doc, s.name, m_font);
}

size_t SettingValues::RowOf(const wchar_t* key) const {
    for (size_t row = 0; row < m_section->count; ++row)
        if (EqualsNoCase(m_section->keys[row].key, key))
            return row;
    return m_section->count;
}

const std::wstring& SettingValues::Text(size_t row) const {
    return row < m_values.size() ? m_values[row] : kEmpty;
}

long SettingValues::Int(size_t row) const {
    return LeadingLong(Text(row).c_str());
}

bool SettingValues::Bool(size_t row) const {
    return IsTrueWord(Text(row).c_str());
}

ColorRef SettingValues::Color(size_t row) const {
    return static_cast<ColorRef>(Int(row));
}

void SettingValues::SetText(size_t row, const std::wstring& text) {
    if (row >= m_values.size())
        return;
    const SettingKey& key = m_section->keys[row];
    // A word outside a choice list keeps the row's value rather than taking the default.
    m_values[row] = Normalised(key, text, m_values[row]);
}

void SettingValues::SetInt(size_t row, long value) {
    SetText(row, IntText(value));
}

void SettingValues::SetBool(size_t row, bool value) {
    SetText(row, value ? L"TRUE" : L"FALSE");
}

void SettingValues::SetColor(size_t row, ColorRef color) {
    SetText(row, ColorText(color));
}

std::vector<PathKey> PathKeysOf(const std::vector<const SettingSection*>& sections) {
    std::vector<PathKey> keys;
    for (const SettingSection* s : sections)
        for (size_t row = 0; s && row < s->count; ++row)
            if (s->keys[row].type == SettingType::Path)
                keys.push_back({s->name, s->keys[row].key});
    return keys;
}

} // namespace cv2
