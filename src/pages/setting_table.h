// A settings section described once: each key's name, type and default, in the order the keys
// are written, and optionally a font record written after them. A page keeps its values in a
// SettingValues made from its table; Load and Save walk the table, so a key's name, its default
// and its place in the file stand in one constant row, and anything else that needs to know the
// keys (expected files of tests, the theme health check's path keys) reads the same rows.
//
//   const SettingKey kKeys[] = {
//       {L"Image", SettingType::Path},
//       {L"Left", SettingType::Integer, L"3"},
//   };
//   const SettingSection kSection = SectionOf(L"Volume Bubble", kKeys);
//   SettingValues values(kSection);
//   values.Load(doc, colors);
//   values.SetText(0, typedPath);
//   values.Save(doc);
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/ini_document.h"
#include "ui/pickers/color_value.h"
#include "ui/pickers/font_style.h"

namespace cv2 {

enum class SettingType {
    Text,    // stored as it stands
    Path,    // a file path; cut to kSettingPathChars characters as a 260-character buffer would
    Integer, // decimal; text that is not a number reads as 0
    Boolean, // written "TRUE"/"FALSE"; "true" or "yes" in any case reads true
    Color,   // a colour value written as the decimal of the whole COLORREF
    Choice,  // one word of a list, compared without regard to case; any other word reads as the
             // default word, and the list's own spelling is written
};

// Longest path kept: a buffer of 260 with its terminator.
constexpr int kSettingPathChars = 259;

// Colours whose default the device decides; the row's `def` is then unused.
enum class DeviceDefault {
    None,
    SystemColor, // the platform's system colour of `deviceIndex`
    ThemeColor,  // the device's theme colour `deviceIndex` (0 to 7)
};

struct SettingKey {
    const wchar_t* key;
    SettingType type;
    const wchar_t* def = L""; // the default as it is stored: "", "3", "TRUE", "16777215", "color"
    DeviceDefault device = DeviceDefault::None;
    int deviceIndex = 0;
    const wchar_t* const* choices = nullptr; // Choice: the words, ending with a null
};

// The defaults of a font record.
struct FontDefault {
    const wchar_t* face;
    int size;
    ColorRef color;
    ColorRef shadowColor;
    const wchar_t* style; // in words, as stored
};

struct SettingSection {
    const wchar_t* name;
    const SettingKey* keys;
    size_t count;
    const FontDefault* font; // a font record written after the keys, or null
};

template <size_t N>
constexpr SettingSection SectionOf(const wchar_t* name, const SettingKey (&keys)[N],
                                   const FontDefault* font = nullptr) {
    return {name, keys, N, font};
}
// A section that holds nothing but a font record.
constexpr SettingSection FontSectionOf(const wchar_t* name, const FontDefault* font) {
    return {name, nullptr, 0, font};
}

// The device facts that defaults may need; the program asks the platform, tests give fixed
// colours.
class DeviceColors {
  public:
    virtual ~DeviceColors() = default;
    virtual ColorRef SystemColor(int index) const = 0;
    virtual ColorRef ThemeColor(int index) const = 0;
};

// The default of `key` as it would be stored.
std::wstring DefaultText(const SettingKey& key, const DeviceColors& colors);

// The values of one described section, one per row, each held as the text it is written as.
class SettingValues {
  public:
    explicit SettingValues(const SettingSection& section);

    // Reads every row (a missing key takes its default) and the font record.
    void Load(const IniDocument& doc, const DeviceColors& colors);
    // Writes every row in table order, then the font record.
    void Save(IniDocument& doc) const;
    // Every row at its default, as Load of a document without the section gives.
    void Reset(const DeviceColors& colors);

    const SettingSection& Section() const { return *m_section; }
    // The row of `key` (compared without regard to case); the row count when there is none.
    size_t RowOf(const wchar_t* key) const;

    // Rows are table indices; out of range reads empty, 0 or false and writes nothing.
    const std::wstring& Text(size_t row) const;
    long Int(size_t row) const;
    bool Bool(size_t row) const;
    ColorRef Color(size_t row) const;
    // Each setter stores what Load would have read from the value, as its row's type says.
    void SetText(size_t row, const std::wstring& text);
    void SetInt(size_t row, long value);
    void SetBool(size_t row, bool value);
    void SetColor(size_t row, ColorRef color);

    const FontKeys& Font() const { return m_font; }
    void SetFont(const FontKeys& font) { m_font = font; }

  private:
    const SettingSection* m_section;
    std::vector<std::wstring> m_values;
    FontKeys m_font;
};

// Every path key of `sections`, in table order: the keys the bar opens as files.
struct PathKey {
    const wchar_t* section;
    const wchar_t* key;
};
std::vector<PathKey> PathKeysOf(const std::vector<const SettingSection*>& sections);

} // namespace cv2
