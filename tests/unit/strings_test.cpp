#include "store/language_strings.h"
#include "store/strings.h"

#include <gtest/gtest.h>

#include <set>

using namespace cv2;

TEST(LanguageStrings, WithoutModuleGetReturnsTheDefaultPointer) {
    LanguageStrings strings(L"no-such-language-module.dll");
    ASSERT_FALSE(strings.HasModule());
    const wchar_t* def = L"Corvane 2 Settings";
    EXPECT_EQ(strings.Get(1, def), def);
}

TEST(LanguageStrings, ProcessInstanceFallsBackToTableDefaults) {
    // No language.dll lies beside the tests, so every text is its English default.
    EXPECT_EQ(Localized(IDS_APP_TITLE), DefaultText(IDS_APP_TITLE));
    EXPECT_STREQ(Localized(IDS_APP_TITLE), L"Corvane 2 Settings");
}

TEST(StringTable, NumbersAreUnique) {
    size_t count = 0;
    const StringDefault* table = StringDefaults(&count);
    std::set<unsigned> seen;
    for (size_t i = 0; i < count; ++i)
        EXPECT_TRUE(seen.insert(table[i].id).second) << "string " << table[i].id << " twice";
}

TEST(StringTable, UnknownNumberHasEmptyDefault) {
    EXPECT_STREQ(DefaultText(static_cast<StringId>(65000)), L"");
}
