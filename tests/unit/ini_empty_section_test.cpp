// Emptying a section, the way list pages start rewriting theirs.
#include "store/ini_document.h"

#include <gtest/gtest.h>

using cv2::IniDocument;

namespace {
IniDocument Doc(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}
} // namespace

TEST(IniDocument, EmptySectionKeepsItsPlaceAndDropsItsKeys) {
    IniDocument doc = Doc("[A]\nx=1\n[B]\ny=2\nz=3\n[C]\nw=4\n");
    doc.EmptySection(L"b");
    ASSERT_EQ(doc.Sections().size(), 3u);
    EXPECT_EQ(doc.Sections()[1].name, L"B");
    EXPECT_TRUE(doc.Sections()[1].entries.empty());
    EXPECT_EQ(doc.GetString(L"C", L"w", L""), L"4");
}

TEST(IniDocument, EmptySectionAddsAMissingSectionAtTheEnd) {
    IniDocument doc = Doc("[A]\nx=1\n");
    doc.EmptySection(L"New");
    ASSERT_EQ(doc.Sections().size(), 2u);
    EXPECT_EQ(doc.Sections()[1].name, L"New");
    EXPECT_TRUE(doc.HasSection(L"New"));
}
