// A font record: the live font made from a face, a point size and style flags, with the text
// colour and the colour of its shadow or glow. Pages keep one per font they edit; the grid
// control keeps one for its captions.
//
//   FontRecord caption;
//   caption.Create(L"Tahoma", 6, kFontGlow, true);  // sized for the screen's density
//   caption.shadowColor = 0xFFFFFF;                   // glow colour
//   caption.Draw(dc, text, &cell, DT_CENTER | DT_SINGLELINE | DT_END_ELLIPSIS, true);
#pragma once

#include <windows.h>

#include <cstdint>

#include "store/ini_document.h"
#include "ui/pickers/color_value.h"
#include "ui/pickers/font_metrics.h"
#include "ui/pickers/font_style.h"

namespace cv2 {

class FontRecord {
  public:
    FontRecord() = default;
    ~FontRecord();
    // A copy carries the same values and a font handle of its own.
    FontRecord(const FontRecord& other);
    FontRecord& operator=(const FontRecord& other);

    // (Re)creates the font for the vertical density of `dc` (the screen's when null). On
    // failure there is no font, the face is empty and size and style are 0. Flags that do not
    // shape the font (shadow, glow) are kept with it for drawing.
    bool Create(const wchar_t* face, int size, uint32_t style, bool clearType, HDC dc = nullptr);
    // The same for a screen of `dpiY` dots per inch vertically (a picture drawn for another
    // screen than this one).
    bool CreateAt(const wchar_t* face, int size, uint32_t style, bool clearType, int dpiY);
    // Copies the face, cut to capacity - 1 characters; returns the copied length.
    int GetFace(wchar_t* buffer, int capacity) const;

    // Reads the font keys of `section` (see font_style.h), creates the font without ClearType and
    // takes both colours.
    void Load(const IniDocument& doc, const wchar_t* section, const wchar_t* defFace, int defSize,
              ColorRef defColor, ColorRef defShadow, const wchar_t* defStyle);
    void Save(IniDocument& doc, const wchar_t* section) const;

    // Size of `text` as Draw puts it on the screen, margin and shadow or glow included. False
    // (and `size` untouched) when there is no font.
    bool Measure(const wchar_t* text, SIZE* size) const;
    // Draws `text` with DrawText `flags` in the record's colour over its shadow or glow.
    // DT_END_ELLIPSIS is done here, not by the platform. With DT_CALCRECT nothing is drawn and
    // `rect` receives the room the text needs. Returns DrawText's result.
    int Draw(HDC dc, const wchar_t* text, RECT* rect, UINT flags, bool transparent) const;

    HFONT Handle() const { return font; }

    HFONT font = nullptr; // owned; replaced by every Create
    int32_t size = 0;     // points
    uint32_t style = 0;   // FontStyle flags
    // Where the shadow falls; the settings keys do not carry it, so one pixel down-right unless
    // the owner says otherwise.
    int32_t shadowX = 1;
    int32_t shadowY = 1;
    ColorRef color = 0;       // text
    ColorRef shadowColor = 0; // shadow and glow
    uint32_t clearType = 0;   // nonzero: created with ClearType quality
    wchar_t face[kFaceChars + 1] = {};

  private:
    void Release();
    void CopyValues(const FontRecord& other);
    std::wstring Ellipsized(HDC dc, const wchar_t* text, const RECT& rect, UINT flags) const;
};

// The record a font picker edits, made from the keys a section stores, and back.
FontRecord FontRecordOf(const FontKeys& keys, bool clearType = false);
FontKeys FontKeysOf(const FontRecord& record);

} // namespace cv2
