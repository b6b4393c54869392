// Sections described as tables: reading with defaults, writing in table order, values kept as
// their type stores them.
#include "pages/setting_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "font_ini_text.h"

using namespace cv2;

using cv2test::ParsedIni;

namespace {

class FixedColors : public DeviceColors {
  public:
    ColorRef SystemColor(int index) const override { return 0x00010000u + index; }
    ColorRef ThemeColor(int index) const override { return 0x00020000u + index; }
};

const wchar_t* const kWords[] = {L"scaled", L"tiled", L"color", nullptr};
const FontDefault kFont = {L"Tahoma", 8, 0x00FFFFFF, 0, L"shadow"};

const SettingKey kKeys[] = {
    {L"Picture", SettingType::Path},
    {L"Left", SettingType::Integer, L"3"},
    {L"Shown", SettingType::Boolean, L"TRUE"},
    {L"Fill", SettingType::Color, L"", DeviceDefault::SystemColor, 2},
    {L"Edge", SettingType::Color, L"", DeviceDefault::ThemeColor, 1},
    {L"Mode", SettingType::Choice, L"color", DeviceDefault::None, 0, kWords},
    {L"Note", SettingType::Text, L"none"},
};
const SettingSection kSection = SectionOf(L"Bar", kKeys, &kFont);

std::vector<std::wstring> LinesOf(const IniDocument& doc) {
    std::vector<std::wstring> lines;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(L"Bar"))
        lines.push_back(std::wstring(e.first) + L"=" + e.second);
    return lines;
}

} // namespace

TEST(SettingTable, MissingSectionSavesEveryKeyAtItsDefaultInTableOrder) {
    SettingValues values(kSection);
    values.Load(IniDocument(), FixedColors());
    IniDocument out;
    values.Save(out);
    const std::vector<std::wstring> expected = {
        L"Picture=",    L"Left=3",         L"Shown=TRUE", L"Fill=65538",
        L"Edge=131073", L"Mode=color",     L"Note=none",  L"Name=Tahoma",
        L"Size=8",      L"Color=16777215", L"Shadow=0",   L"Style=shadow",
    };
    EXPECT_EQ(LinesOf(out), expected);
}

TEST(SettingTable, StoredValuesAreReadAsTheirTypeSays) {
    const IniDocument doc = ParsedIni("[bar]\npicture=\\a.png\nLEFT=12px\nShown=yes\n"
                                      "Fill=255\nMode=Tiled\nNote=as it is\n");
    SettingValues values(kSection);
    values.Load(doc, FixedColors());
    EXPECT_EQ(values.Text(0), L"\\a.png");
    EXPECT_EQ(values.Int(1), 12);
    EXPECT_EQ(values.Text(1), L"12");
    EXPECT_TRUE(values.Bool(2));
    EXPECT_EQ(values.Color(3), 255u);
    EXPECT_EQ(values.Color(4), 0x00020001u);
    EXPECT_EQ(values.Text(5), L"tiled");
    EXPECT_EQ(values.Text(6), L"as it is");
}

TEST(SettingTable, WordOutsideTheChoicesReadsAsTheDefaultWord) {
    SettingValues values(kSection);
    values.Load(ParsedIni("[Bar]\nMode=stretched\n"), FixedColors());
    EXPECT_EQ(values.Text(5), L"color");
}

TEST(SettingTable, SettingAWordOutsideTheChoicesKeepsTheValue) {
    SettingValues values(kSection);
    values.Load(ParsedIni("[Bar]\nMode=scaled\n"), FixedColors());
    values.SetText(5, L"stretched");
    EXPECT_EQ(values.Text(5), L"scaled");
}

TEST(SettingTable, NumberThatIsNotANumberReadsAsZero) {
    SettingValues values(kSection);
    values.Load(ParsedIni("[Bar]\nLeft=abc\nFill=\n"), FixedColors());
    EXPECT_EQ(values.Text(1), L"0");
    EXPECT_EQ(values.Color(3), 0u);
}

TEST(SettingTable, PathLongerThan259CharactersIsCut) {
    const std::string longPath(400, 'p');
    SettingValues values(kSection);
    values.Load(ParsedIni("[Bar]\nPicture=" + longPath + "\n"), FixedColors());
    EXPECT_EQ(values.Text(0).size(), 259u);
    values.SetText(0, std::wstring(300, L'q'));
    EXPECT_EQ(values.Text(0), std::wstring(259, L'q'));
}

TEST(SettingTable, SavingReplacesValuesInPlaceAndKeepsOtherKeys) {
    IniDocument doc = ParsedIni("[Bar]\nOther=1\nLeft=9\n");
    SettingValues values(kSection);
    values.Load(doc, FixedColors());
    values.SetInt(1, 4);
    values.SetBool(2, false);
    values.Save(doc);
    const std::vector<std::wstring> lines = LinesOf(doc);
    ASSERT_GE(lines.size(), 3u);
    EXPECT_EQ(lines[0], L"Other=1");
    EXPECT_EQ(lines[1], L"Left=4");
    EXPECT_EQ(doc.GetString(L"Bar", L"Shown", L""), L"FALSE");
}

TEST(SettingTable, FontRecordIsReadWithItsDefaultsAndWrittenAfterTheKeys) {
    SettingValues values(kSection);
    values.Load(ParsedIni("[Bar]\nSize=10\n"), FixedColors());
    EXPECT_EQ(values.Font().face, L"Tahoma");
    EXPECT_EQ(values.Font().size, 10);
    EXPECT_EQ(values.Font().color, 0x00FFFFFFu);
    EXPECT_EQ(values.Font().style, static_cast<uint32_t>(kFontShadow));
}

TEST(SettingTable, OutOfRangeRowsReadEmptyAndWriteNothing) {
    SettingValues values(kSection);
    values.Reset(FixedColors());
    values.SetText(99, L"x");
    EXPECT_EQ(values.Text(99), L"");
    EXPECT_EQ(values.Int(99), 0);
    EXPECT_EQ(values.RowOf(L"missing"), kSection.count);
    EXPECT_EQ(values.RowOf(L"MODE"), 5u);
}

TEST(SettingTable, PathKeysAreListedInTableOrder) {
    const SettingKey other[] = {{L"A", SettingType::Integer}, {L"B", SettingType::Path}};
    const SettingSection second = SectionOf(L"Second", other);
    const std::vector<PathKey> keys = PathKeysOf({&kSection, &second});
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_STREQ(keys[0].key, L"Picture");
    EXPECT_STREQ(keys[1].section, L"Second");
    EXPECT_STREQ(keys[1].key, L"B");
}
