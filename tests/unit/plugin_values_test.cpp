// What a registry value of the plug-in list says and what is written back for it.
#include "pages/behaviour/plugins/plugin_values.h"

#include <gtest/gtest.h>

#include <string>

using namespace cv2;

TEST(PluginValue, PathWithoutSuffixIsEnabled) {
    const PluginRegistration p = ParsePluginValue(L"Weather", true, L"\\Windows\\weather.dll");
    EXPECT_EQ(L"Weather", p.name);
    EXPECT_EQ(L"\\Windows\\weather.dll", p.path);
    EXPECT_FALSE(p.disabled);
}

TEST(PluginValue, DataEndingInCommaZeroIsDisabledAndCutThere) {
    const PluginRegistration p = ParsePluginValue(L"Weather", true, L"\\Windows\\weather.dll,0");
    EXPECT_EQ(L"\\Windows\\weather.dll", p.path);
    EXPECT_TRUE(p.disabled);
}

TEST(PluginValue, CommaZeroAnywhereCutsThePath) {
    const PluginRegistration p = ParsePluginValue(L"x", true, L"\\a,0b\\c.dll");
    EXPECT_EQ(L"\\a", p.path);
    EXPECT_TRUE(p.disabled);
}

TEST(PluginValue, NoOtherSuffixIsRecognised) {
    const PluginRegistration p = ParsePluginValue(L"x", true, L"\\a.dll,1");
    EXPECT_EQ(L"\\a.dll,1", p.path);
    EXPECT_FALSE(p.disabled);
}

TEST(PluginValue, ValueOfAnotherTypeHasAnEmptyPath) {
    const PluginRegistration p = ParsePluginValue(L"Number", false, L"");
    EXPECT_EQ(L"Number", p.name);
    EXPECT_TRUE(p.path.empty());
    EXPECT_FALSE(p.disabled);
}

TEST(PluginValue, TwoThousandCharactersAreCutToThePathBuffer) {
    const PluginRegistration p = ParsePluginValue(L"Long", true, std::wstring(2000, L'a'));
    EXPECT_EQ(kPluginPathChars - 1, p.path.size());
}

// The suffix of a long value lies past the data buffer, so it is not seen.
TEST(PluginValue, SuffixBeyondTheDataBufferIsNotSeen) {
    const PluginRegistration p = ParsePluginValue(L"Long", true, std::wstring(600, L'a') + L",0");
    EXPECT_FALSE(p.disabled);
}

TEST(PluginValue, WrittenBackWithSuffixOnlyWhenNotEnabled) {
    EXPECT_EQ(L"\\p.dll", PluginValueText(L"\\p.dll", true));
    EXPECT_EQ(L"\\p.dll,0", PluginValueText(L"\\p.dll", false));
}

TEST(PluginValue, CopyToBufferCutsAndEnds) {
    wchar_t buffer[5] = {L'x', L'x', L'x', L'x', L'x'};
    CopyToBuffer(buffer, 5, L"abcdefgh");
    EXPECT_STREQ(L"abcd", buffer);
    CopyToBuffer(buffer, 5, nullptr);
    EXPECT_STREQ(L"", buffer);
}

TEST(PluginValues, ValuesFitTheBuffersTheListIsReadWith) {
    EXPECT_TRUE(cv2::FitsPluginBuffers(std::wstring(49, L'n'), 524));
    EXPECT_FALSE(cv2::FitsPluginBuffers(std::wstring(50, L'n'), 10));
    EXPECT_FALSE(cv2::FitsPluginBuffers(L"Plugin", 525));
}
