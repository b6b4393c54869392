#include "store/strings.h"

#include "store/language_strings.h"

namespace cv2 {
namespace {

const StringDefault kDefaults[] = {
#define CV_STRING(name, number, text) {name, text},
#include "string_table.h"
#undef CV_STRING
};

} // namespace

const StringDefault* StringDefaults(size_t* count) {
    *count = sizeof kDefaults / sizeof kDefaults[0];
    return kDefaults;
}

const wchar_t* DefaultText(StringId id) {
    for (const StringDefault& d : kDefaults) {
        if (d.id == id)
            return d.text;
    }
    return L"";
}

const wchar_t* Localized(StringId id) { return Strings().Get(id, DefaultText(id)); }

} // namespace cv2
