#include "store/language_strings.h"

#include "platform/string_module.h"

namespace cv2 {

LanguageStrings::LanguageStrings(const wchar_t* moduleName)
    : m_module(OpenStringModule(moduleName)), m_buffer{} {}

LanguageStrings::~LanguageStrings() {
    if (m_module)
        CloseStringModule(m_module);
}

const wchar_t* LanguageStrings::Get(unsigned id, const wchar_t* def) {
    if (m_module && LoadModuleString(m_module, id, m_buffer, kBufferChars) > 0)
        return m_buffer;
    return def;
}

LanguageStrings& Strings() {
    static LanguageStrings instance;
    return instance;
}

} // namespace cv2
