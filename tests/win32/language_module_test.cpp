// The localisation module, with the pseudo-locale build of the string table.
#include "store/language_strings.h"
#include "store/strings.h"

#include <gtest/gtest.h>

#include <string>

#include "pseudo_locale.h"

using namespace cv2;
using cv2test::PseudoModulePath;

namespace {

// "[text ~~]": the text, a blank, at least two tildes, the closing bracket.
bool IsPseudoText(const std::wstring& module, const std::wstring& text) {
    const std::wstring start = L"[" + text + L" ~~";
    if (module.compare(0, start.size(), start) != 0 || module.back() != L']')
        return false;
    return module.find_first_not_of(L'~', start.size()) == module.size() - 1;
}

} // namespace

TEST(LanguageModule, TextsComeFromTheModuleWhenItIsThere) {
    LanguageStrings strings(PseudoModulePath().c_str());
    ASSERT_TRUE(strings.HasModule()) << "pseudo-locale module not found";
    EXPECT_STREQ(strings.Get(IDS_APP_TITLE, DefaultText(IDS_APP_TITLE)),
                 L"[Corvane 2 Settings ~~~~~~~~~]");
}

TEST(LanguageModule, TwoHitsShareTheBufferHoldingTheSecondText) {
    LanguageStrings strings(PseudoModulePath().c_str());
    ASSERT_TRUE(strings.HasModule());
    const wchar_t* first = strings.Get(IDS_CANCEL_CAPTION, L"a");
    const wchar_t* second = strings.Get(IDS_APP_TITLE, L"b");
    EXPECT_EQ(first, second);
    EXPECT_STREQ(first, L"[Corvane 2 Settings ~~~~~~~~~]");
}

TEST(LanguageModule, NumberMissingFromModuleGivesTheDefaultPointer) {
    LanguageStrings strings(PseudoModulePath().c_str());
    ASSERT_TRUE(strings.HasModule());
    const wchar_t* def = L"not in the module";
    EXPECT_EQ(strings.Get(64999, def), def);
}

TEST(LanguageModule, EveryTableTextIsInTheModule) {
    LanguageStrings strings(PseudoModulePath().c_str());
    ASSERT_TRUE(strings.HasModule());
    size_t count = 0;
    const StringDefault* table = StringDefaults(&count);
    for (size_t i = 0; i < count; ++i) {
        EXPECT_TRUE(IsPseudoText(strings.Get(table[i].id, L""), table[i].text)) << table[i].id;
    }
}
