// The settings document's look-up index must give exactly the answers of a walk through every
// section and key: first match wins, case folds, and every change keeps it in step.
#include "store/ini_document.h"

#include <gtest/gtest.h>

#include <string>

using cv2::IniDocument;

namespace {

IniDocument Parsed(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

std::wstring Value(const IniDocument& doc, const wchar_t* section, const wchar_t* key) {
    return doc.GetString(section, key, L"<missing>");
}

// A section with more keys than are searched one by one, so its keys go through the index.
std::string LargeSection(const std::string& name, int keys) {
    std::string text = "[" + name + "]\n";
    for (int k = 0; k < keys; ++k)
        text += "Key" + std::to_string(k) + "=" + name + std::to_string(k) + "\n";
    return text;
}

} // namespace

TEST(IniIndex, DeletingTheFirstOfTwoSameNamedSectionsFindsTheSecond) {
    IniDocument doc = Parsed("[A]\nK=1\n[B]\nK=2\n[a]\nK=3\n");
    ASSERT_EQ(Value(doc, L"A", L"K"), L"1");
    doc.DeleteSection(L"A");
    EXPECT_EQ(Value(doc, L"A", L"K"), L"3");
    EXPECT_EQ(Value(doc, L"B", L"K"), L"2");
}

TEST(IniIndex, SectionsAfterADeletedOneAreStillFound) {
    IniDocument doc = Parsed("[A]\nK=1\n[B]\nK=2\n[C]\nK=3\n");
    ASSERT_EQ(Value(doc, L"C", L"K"), L"3");
    doc.DeleteSection(L"B");
    doc.SetString(L"C", L"K", L"changed");
    EXPECT_EQ(Value(doc, L"C", L"K"), L"changed");
    ASSERT_EQ(doc.Sections().size(), 2u);
    EXPECT_EQ(doc.Sections()[1].entries[0].value, L"changed");
}

TEST(IniIndex, FirstOfDuplicateKeysWinsInALargeSection) {
    IniDocument doc = Parsed(LargeSection("S", 20) + "KEY5=second\n");
    EXPECT_EQ(Value(doc, L"S", L"key5"), L"S5");
    doc.SetString(L"s", L"Key5", L"changed");
    EXPECT_EQ(doc.Sections()[0].entries[5].value, L"changed");
    EXPECT_EQ(doc.Sections()[0].entries[20].value, L"second");
}

TEST(IniIndex, SectionGrowingKeyByKeyFindsEveryKeyAndAddsNone) {
    IniDocument doc = Parsed("[Other]\nK=1\n");
    ASSERT_EQ(Value(doc, L"Other", L"K"), L"1"); // the index exists from here on
    for (int k = 0; k < 30; ++k)
        doc.SetString(L"Grow", (L"Key" + std::to_wstring(k)).c_str(), std::to_wstring(k).c_str());
    for (int k = 0; k < 30; ++k) {
        const std::wstring key = L"KEY" + std::to_wstring(k);
        EXPECT_EQ(Value(doc, L"grow", key.c_str()), std::to_wstring(k)) << k;
        doc.SetString(L"Grow", key.c_str(), L"again");
    }
    EXPECT_EQ(doc.GetSectionEntries(L"Grow").size(), 30u);
}

TEST(IniIndex, EmptiedLargeSectionForgetsItsKeys) {
    IniDocument doc = Parsed(LargeSection("S", 20));
    ASSERT_EQ(Value(doc, L"S", L"Key3"), L"S3");
    doc.EmptySection(L"S");
    EXPECT_EQ(Value(doc, L"S", L"Key3"), L"<missing>");
    // Refilled in another order and past the size searched directly: old places must not stick.
    for (int k = 11; k >= 0; --k)
        doc.SetString(L"S", (L"Key" + std::to_wstring(k)).c_str(),
                      (L"new" + std::to_wstring(k)).c_str());
    EXPECT_EQ(Value(doc, L"S", L"Key3"), L"new3");
    EXPECT_EQ(Value(doc, L"S", L"Key11"), L"new11");
    EXPECT_EQ(doc.GetSectionEntries(L"S").size(), 12u);
}

TEST(IniIndex, ParseAfterUseForgetsTheOldContent) {
    IniDocument doc = Parsed("[Old]\nK=1\n");
    ASSERT_EQ(Value(doc, L"Old", L"K"), L"1");
    const std::string text = "[New]\nK=2\n";
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    EXPECT_EQ(Value(doc, L"Old", L"K"), L"<missing>");
    EXPECT_EQ(Value(doc, L"New", L"K"), L"2");
}

TEST(IniIndex, LatinOneCapitalsFoldInIndexedKeys) {
    IniDocument doc = Parsed(LargeSection("S", 10) + "\xC4rger=yes\n");
    EXPECT_EQ(Value(doc, L"s", L"\x00E4RGER"), L"yes");
}

TEST(IniIndex, CopyKeepsItsOwnIndex) {
    IniDocument doc = Parsed(LargeSection("S", 12));
    ASSERT_EQ(Value(doc, L"S", L"Key1"), L"S1");
    IniDocument copy = doc;
    copy.SetString(L"S", L"Key1", L"copy");
    copy.SetString(L"T", L"Key", L"copy");
    EXPECT_EQ(Value(doc, L"S", L"Key1"), L"S1");
    EXPECT_EQ(Value(doc, L"T", L"Key"), L"<missing>");
    EXPECT_EQ(Value(copy, L"S", L"Key1"), L"copy");
    EXPECT_EQ(Value(copy, L"T", L"Key"), L"copy");
}

TEST(IniIndex, MergeOfManySectionsKeepsOrderAndOverwritesFirstMatches) {
    std::string source;
    for (int s = 0; s < 5000; ++s)
        source += "[S" + std::to_string(s) + "]\nK=" + std::to_string(s) + "\n";
    IniDocument from = Parsed(source);
    IniDocument into = Parsed("[s4999]\nK=old\nOther=kept\n[Mine]\nK=mine\n");
    into.MergeFrom(from, false);
    ASSERT_EQ(into.Sections().size(), 5001u);
    EXPECT_EQ(into.Sections()[0].name, L"s4999");
    EXPECT_EQ(Value(into, L"S4999", L"K"), L"4999");
    EXPECT_EQ(Value(into, L"S4999", L"Other"), L"kept");
    EXPECT_EQ(Value(into, L"Mine", L"K"), L"mine");
    EXPECT_EQ(into.Sections()[2].name, L"S0");
    EXPECT_EQ(into.Sections()[5000].name, L"S4998");
}
