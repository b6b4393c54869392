// Fuzz target: the INI parser and everything that reads or writes the parsed document.
#include <cstdint>
#include <string>

#include "store/ini_document.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cv2::IniDocument doc;
    doc.Parse(data, size);
    for (const auto& section : doc.Sections()) {
        for (const auto& entry : section.entries) {
            wchar_t buffer[8];
            doc.GetString(section.name.c_str(), entry.key.c_str(), buffer, 8, L"");
            doc.GetInt(section.name.c_str(), entry.key.c_str(), 0);
            doc.GetBool(section.name.c_str(), entry.key.c_str(), false);
        }
    }
    // Write and read back. (Not an identity: a key cleaned to start with ';' or '[' reads back as
    // a comment or a header, as it does for the bar.)
    const std::string text = doc.Serialize();
    cv2::IniDocument again;
    again.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    again.Serialize();
    return 0;
}
