// Symbolic names of the program's texts and their English defaults (see res/string_table.h).
#pragma once

#include <cstddef>

namespace cv2 {

enum StringId : unsigned {
#define CV_STRING(name, number, text) name = number,
#include "string_table.h"
#undef CV_STRING
};

struct StringDefault {
    StringId id;
    const wchar_t* text;
};

// The whole table, in declaration order.
const StringDefault* StringDefaults(size_t* count);

// The built-in English text of a string number; an empty text for an unknown number.
const wchar_t* DefaultText(StringId id);

// The text shown to the user: from the localisation module when it has the number, else the
// default. The result may live in the shared buffer of LanguageStrings (copy it before the next
// call if both are needed).
const wchar_t* Localized(StringId id);

} // namespace cv2
