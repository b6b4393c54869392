#include "ui/pickers/font_style.h"

#include <vector>

namespace cv2 {

const StyleWord kStyleWords[6] = {
    {kFontBold, L"bold"},           {kFontItalic, L"italic"}, {kFontUnderline, L"underline"},
    {kFontStrikeout, L"strikeout"}, {kFontShadow, L"shadow"}, {kFontGlow, L"glow"},
};

const int kFontSizes[13] = {6, 7, 8, 9, 10, 11, 12, 14, 16, 20, 24, 28, 36};

namespace {

bool IsWordBreak(wchar_t c) {
    return c == L',' || c == L' ';
}

uint32_t FlagOfWord(const std::wstring& word) {
    for (const StyleWord& w : kStyleWords) {
        if (EqualsNoCase(word.c_str(), w.word))
            return w.flag;
    }
    return 0;
}

} // namespace

uint32_t StyleFromWords(const wchar_t* text) {
    uint32_t style = 0;
    std::wstring word;
    for (const wchar_t* p = text ? text : L"";; ++p) {
        if (*p && !IsWordBreak(*p)) {
            word += *p;
            continue;
        }
        if (!word.empty())
            style |= FlagOfWord(word);
        word.clear();
        if (!*p)
            break;
    }
    return style;
}

std::wstring StyleToWords(uint32_t style) {
    std::wstring text;
    for (const StyleWord& w : kStyleWords) {
        if (!(style & w.flag))
            continue;
        if (!text.empty())
            text += L',';
        text += w.word;
    }
    return text;
}

FontKeys ReadFontKeys(const IniDocument& doc, const wchar_t* section, const wchar_t* defFace,
                      int defSize, ColorRef defColor, ColorRef defShadow, const wchar_t* defStyle) {
    FontKeys keys;
    keys.face = doc.GetString(section, L"Name", defFace ? defFace : L"", kFaceReadChars + 1);
    keys.size = static_cast<int>(doc.GetInt(section, L"Size", defSize));
    keys.color = ReadColor(doc, section, L"Color", defColor);
    keys.shadowColor = ReadColor(doc, section, L"Shadow", defShadow);
    // Looked up in lower case and written capitalised; the look-up ignores case, so both meet.
    const std::wstring words =
        doc.GetString(section, L"style", defStyle ? defStyle : L"", kStyleReadChars + 1);
    keys.style = StyleFromWords(words.c_str());
    return keys;
}

void WriteFontKeys(IniDocument& doc, const wchar_t* section, const FontKeys& keys) {
    doc.SetString(section, L"Name", keys.face.c_str());
    doc.SetInt(section, L"Size", keys.size);
    WriteColor(doc, section, L"Color", keys.color);
    WriteColor(doc, section, L"Shadow", keys.shadowColor);
    doc.SetString(section, L"Style", StyleToWords(keys.style).c_str());
}

} // namespace cv2
