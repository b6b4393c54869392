// Parsing only one section of a document: what a reader of a theme's "Skin Info" needs from a
// file of hundreds of keys.
#include "store/ini_document.h"

#include <gtest/gtest.h>

#include <string>

using cv2::IniDocument;

namespace {

IniDocument OnlySection(const std::string& text, const wchar_t* section) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size(), section);
    return doc;
}

} // namespace

TEST(IniOneSection, KeepsTheSectionAskedForAndNothingElse) {
    const IniDocument doc = OnlySection(
        "a=1\n[Topbar]\nMode=tiled\n[Skin Info]\nName=Blue\n[Sounds]\nx=y\n", L"Skin Info");
    ASSERT_EQ(doc.Sections().size(), 1u);
    EXPECT_EQ(doc.GetString(L"Skin Info", L"Name", L"-"), L"Blue");
    EXPECT_FALSE(doc.HasSection(L"Topbar"));
    EXPECT_FALSE(doc.HasSection(L"Sounds"));
    EXPECT_FALSE(doc.HasSection(L""));
}

TEST(IniOneSection, TheFirstSectionOfThatNameAnswersAsInAWholeParse) {
    const IniDocument doc =
        OnlySection("[skin info]\nName=First\nName=Second\n[Skin Info]\nName=Later\nAuthor=Ann\n",
                    L"Skin Info");
    EXPECT_EQ(doc.GetString(L"Skin Info", L"Name", L"-"), L"First");
    EXPECT_EQ(doc.GetString(L"Skin Info", L"Author", L"-"), L"-");
}

TEST(IniOneSection, MissingSectionLeavesTheDocumentEmpty) {
    const IniDocument doc = OnlySection("Logo=logo.bmp\n[Topbar]\nMode=tiled\n", L"Skin Info");
    EXPECT_TRUE(doc.Sections().empty());
    EXPECT_FALSE(doc.HasSection(L"Skin Info"));
}

TEST(IniOneSection, SectionAtTheEndKeepsALastValueWithoutLineBreak) {
    const IniDocument doc = OnlySection("[Topbar]\nMode=x\n[Skin Info]\nHiRes=yes", L"Skin Info");
    EXPECT_TRUE(doc.GetBool(L"Skin Info", L"HiRes", false));
}

TEST(IniOneSection, TheNamelessSectionIsTheKeysBeforeAnyHeader) {
    const IniDocument doc = OnlySection("a=1\n[S]\nb=2\n[]\nc=3\n", L"");
    EXPECT_EQ(doc.GetString(L"", L"a", L"-"), L"1");
    EXPECT_EQ(doc.GetString(L"", L"c", L"-"), L"-");
}
