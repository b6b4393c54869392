// Helpers of the theme tests: documents from file text and the lines of one section.
#pragma once

#include <string>
#include <vector>

#include "store/ini_document.h"

namespace cv2test {

using Lines = std::vector<std::wstring>;

inline cv2::IniDocument ThemeText(const std::string& text, const std::wstring& path = L"") {
    cv2::IniDocument doc;
    if (!path.empty())
        doc.Load(path); // gives the document its path, even when no such file exists
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

// "key=value" of every entry of the section, in stored order.
inline Lines SectionLines(const cv2::IniDocument& doc, const wchar_t* section) {
    Lines lines;
    for (const auto& e : doc.GetSectionEntries(section))
        lines.push_back(std::wstring(e.first) + L"=" + e.second);
    return lines;
}

inline Lines SectionNames(const cv2::IniDocument& doc) {
    Lines names;
    for (const auto& s : doc.Sections())
        names.push_back(s.name);
    return names;
}

} // namespace cv2test
