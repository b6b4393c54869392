// A settings document made from file text, for tests of readers and writers of keys.
#pragma once

#include <string>

#include "store/ini_document.h"

namespace cv2test {

inline cv2::IniDocument ParsedIni(const std::string& text) {
    cv2::IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

} // namespace cv2test
