#include "store/ini_document.h"

#include <gtest/gtest.h>

#include "platform/file_access.h"
#include "temp_folder.h"

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

// The expected file text with the platform's line ends.
std::string Lines(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\n')
            out += cv2::TextLineEnd();
        else
            out += c;
    }
    return out;
}

} // namespace

TEST(IniDocument, HashStartsCommentAndBlanksAreTrimmed) {
    IniDocument doc = Parsed("[S]\nKey = Value # note\n");
    EXPECT_EQ(Value(doc, L"S", L"Key"), L"Value");
}

TEST(IniDocument, QuotedHashStaysInValue) {
    IniDocument doc = Parsed("[S]\nTitle=\"A # B\"\n");
    EXPECT_EQ(Value(doc, L"S", L"Title"), L"\"A # B\"");
}

TEST(IniDocument, LeadingBlankMakesSemicolonAKey) {
    IniDocument doc = Parsed("[S]\n ;x=1\n");
    EXPECT_EQ(Value(doc, L"S", L";x"), L"1");
}

TEST(IniDocument, SemicolonAtLineStartIsComment) {
    IniDocument doc = Parsed("[S]\n;x=1\n");
    EXPECT_EQ(Value(doc, L"S", L";x"), L"<missing>");
    EXPECT_TRUE(doc.GetSectionEntries(L"S").empty());
}

TEST(IniDocument, KeyBeforeAnyHeaderLandsInEmptyNamedSection) {
    IniDocument doc = Parsed("a=1\n[S]\nb=2\n");
    EXPECT_EQ(Value(doc, L"", L"a"), L"1");
    EXPECT_EQ(doc.Serialize(), Lines("[]\na=1\n\n[S]\nb=2\n\n"));
}

TEST(IniDocument, LastValueWithoutLineBreakIsKeptWhole) {
    IniDocument doc = Parsed("[S]\na=1\nlast=value");
    EXPECT_EQ(Value(doc, L"S", L"last"), L"value");
}

TEST(IniDocument, LastKeyWithEmptyValueWithoutLineBreakIsKept) {
    IniDocument doc = Parsed("[S]\nlast=");
    EXPECT_EQ(Value(doc, L"S", L"last"), L"");
}

TEST(IniDocument, GetBoolReadsTrueAndYesInAnyCaseOnly) {
    IniDocument doc = Parsed("[S]\na=Yes\nb=1\nc=TRUE\nd=true \ne=no\n");
    EXPECT_TRUE(doc.GetBool(L"S", L"a", false));
    EXPECT_FALSE(doc.GetBool(L"S", L"b", true));
    EXPECT_TRUE(doc.GetBool(L"S", L"c", false));
    EXPECT_TRUE(doc.GetBool(L"S", L"d", false)); // trailing blank was cleaned
    EXPECT_FALSE(doc.GetBool(L"S", L"e", true));
    EXPECT_TRUE(doc.GetBool(L"S", L"missing", true));
    EXPECT_FALSE(doc.GetBool(L"Missing", L"a", false));
}

TEST(IniDocument, SetBoolWritesUpperCaseWords) {
    IniDocument doc;
    doc.SetBool(L"S", L"on", true);
    doc.SetBool(L"S", L"off", false);
    EXPECT_EQ(Value(doc, L"S", L"on"), L"TRUE");
    EXPECT_EQ(Value(doc, L"S", L"off"), L"FALSE");
}

TEST(IniDocument, SetStringOnDuplicateKeyChangesOnlyTheFirst) {
    IniDocument doc = Parsed("[S]\nk=1\nk=2\n");
    doc.SetString(L"S", L"K", L"x");
    auto entries = doc.GetSectionEntries(L"S");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_STREQ(entries[0].second, L"x");
    EXPECT_STREQ(entries[1].second, L"2");
}

TEST(IniDocument, GetStringCutsToBufferSize) {
    IniDocument doc = Parsed("[S]\nk=abcdefgh\n");
    wchar_t buffer[8];
    for (wchar_t& c : buffer)
        c = L'#';
    doc.GetString(L"S", L"k", buffer, 5, L"");
    EXPECT_STREQ(buffer, L"abcd");
    EXPECT_EQ(buffer[5], L'#'); // nothing written past the buffer size
}

TEST(IniDocument, GetStringGivesDefaultForMissingKey) {
    IniDocument doc = Parsed("[S]\nk=v\n");
    wchar_t buffer[16];
    doc.GetString(L"S", L"other", buffer, 16, L"dflt");
    EXPECT_STREQ(buffer, L"dflt");
}

TEST(IniDocument, LookupsIgnoreCaseAndFirstMatchWins) {
    IniDocument doc = Parsed("[Settings]\nTheme File=a\n[SETTINGS]\ntheme file=b\n");
    EXPECT_EQ(Value(doc, L"settings", L"THEME FILE"), L"a");
    EXPECT_EQ(doc.Sections().size(), 2u); // duplicates are never merged
}

TEST(IniDocument, GetIntReadsLeadingNumber) {
    IniDocument doc = Parsed("[S]\na=42abc\nb=abc\nc=-7\nd= 12\ne=99999999999\n");
    EXPECT_EQ(doc.GetInt(L"S", L"a", 5), 42);
    EXPECT_EQ(doc.GetInt(L"S", L"b", 5), 0);
    EXPECT_EQ(doc.GetInt(L"S", L"c", 5), -7);
    EXPECT_EQ(doc.GetInt(L"S", L"d", 5), 12);
    EXPECT_EQ(doc.GetInt(L"S", L"e", 5), 2147483647);
    EXPECT_EQ(doc.GetInt(L"S", L"missing", 5), 5);
}

TEST(IniDocument, SetIntWritesDecimal) {
    IniDocument doc;
    doc.SetInt(L"S", L"n", -15);
    doc.SetInt(L"S", L"c", 0xFFEFDE);
    EXPECT_EQ(Value(doc, L"S", L"n"), L"-15");
    EXPECT_EQ(Value(doc, L"S", L"c"), L"16773086");
}

TEST(IniDocument, SettersAppendMissingSectionAndKeyAtTheEnd) {
    IniDocument doc = Parsed("[A]\nx=1\n[B]\ny=2\n");
    doc.SetString(L"A", L"z", L"3");
    doc.SetString(L"C", L"w", L"4");
    EXPECT_EQ(doc.Serialize(), Lines("[A]\nx=1\nz=3\n\n[B]\ny=2\n\n[C]\nw=4\n\n"));
}

TEST(IniDocument, UnterminatedHeaderMakesNoSection) {
    IniDocument doc = Parsed("[A]\nx=1\n[Broken\ny=2\n");
    EXPECT_FALSE(doc.HasSection(L"Broken"));
    EXPECT_EQ(Value(doc, L"A", L"y"), L"2");
}

TEST(IniDocument, TextAfterHeaderIsReadAsANewLine) {
    IniDocument doc = Parsed("[A] dropped\n[B] k=v\n");
    EXPECT_TRUE(doc.GetSectionEntries(L"A").empty());
    EXPECT_EQ(Value(doc, L"B", L"k"), L"v");
}

TEST(IniDocument, FurtherEqualsSignsBelongToTheValue) {
    IniDocument doc = Parsed("[S]\nk=a=b=c\n");
    EXPECT_EQ(Value(doc, L"S", L"k"), L"a=b=c");
}

TEST(IniDocument, KeyLineWithoutEqualsIsDropped) {
    IniDocument doc = Parsed("[S]\njust words\nk=v\n");
    auto entries = doc.GetSectionEntries(L"S");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_STREQ(entries[0].first, L"k");
}

TEST(IniDocument, CarriageReturnLineEndsAreRead) {
    IniDocument doc = Parsed("[S]\r\na=1\r\nb=2\r\n");
    EXPECT_EQ(Value(doc, L"S", L"a"), L"1");
    EXPECT_EQ(Value(doc, L"S", L"b"), L"2");
}

TEST(IniDocument, TabsAreNotTrimmed) {
    IniDocument doc = Parsed("[S]\nk=\tv\t\n");
    EXPECT_EQ(Value(doc, L"S", L"k"), L"\tv\t");
}

TEST(IniDocument, EmptyKeyIsDropped) {
    IniDocument doc = Parsed("[S]\n =v\n#c=1\n");
    EXPECT_TRUE(doc.GetSectionEntries(L"S").empty());
}

TEST(IniDocument, TextEndsAtNulByte) {
    const char text[] = "[S]\na=1\n\0b=2\n";
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text), sizeof text - 1);
    EXPECT_EQ(Value(doc, L"S", L"b"), L"<missing>");
    EXPECT_EQ(Value(doc, L"S", L"a"), L"1");
}

TEST(IniDocument, DeleteSectionRemovesOnlyTheFirstOfThatName) {
    IniDocument doc = Parsed("[A]\nx=1\n[B]\ny=2\n[A]\nz=3\n");
    doc.DeleteSection(L"a");
    ASSERT_EQ(doc.Sections().size(), 2u);
    EXPECT_EQ(doc.Sections()[0].name, L"B");
    EXPECT_EQ(Value(doc, L"A", L"z"), L"3");
}

TEST(IniDocument, SectionEntriesOfMissingSectionAreEmpty) {
    IniDocument doc = Parsed("[A]\n");
    EXPECT_TRUE(doc.GetSectionEntries(L"A").empty());
    EXPECT_TRUE(doc.GetSectionEntries(L"Nope").empty());
    EXPECT_TRUE(doc.HasSection(L"a"));
    EXPECT_FALSE(doc.HasSection(L"Nope"));
}

TEST(IniDocument, SaveNormalisesCommentsSpacingAndBlankLines) {
    IniDocument doc = Parsed("; header\n\n[S]\n  Key  =  Value  \n\n\n[T]\n");
    EXPECT_EQ(doc.Serialize(), Lines("[S]\nKey=Value\n\n[T]\n\n"));
}

TEST(IniDocument, LoadOfMissingFileIsEmptyAndFalse) {
    cv2test::TempFolder dir;
    IniDocument doc = Parsed("[S]\nk=v\n");
    EXPECT_FALSE(doc.Load(dir.File(L"missing.ini")));
    EXPECT_TRUE(doc.Sections().empty());
    EXPECT_EQ(doc.Path(), dir.File(L"missing.ini"));
}

TEST(IniDocument, SaveWritesPlatformLineEndsAndLoadReadsThemBack) {
    cv2test::TempFolder dir;
    IniDocument doc;
    doc.SetString(L"Settings", L"Theme File", L"\\Themes\\x.skin");
    ASSERT_TRUE(doc.Save(dir.File(L"config.ini").c_str()));
    EXPECT_EQ(dir.Read(L"config.ini"), Lines("[Settings]\nTheme File=\\Themes\\x.skin\n\n"));
    IniDocument again(dir.File(L"config.ini").c_str());
    EXPECT_EQ(Value(again, L"Settings", L"Theme File"), L"\\Themes\\x.skin");
}

TEST(IniDocument, EightBitTextRoundTripsByteForByte) {
    cv2test::TempFolder dir;
    std::string value;
    for (int b = 0x21; b <= 0xFF; ++b) {
        if (b != '#' && b != '"' && b != '=')
            value += static_cast<char>(b);
    }
    const std::string text = Lines("[S\xE9]\nk\xFC=" + value + "\n\n");
    dir.Write(L"in.ini", text);
    IniDocument doc(dir.File(L"in.ini").c_str());
    ASSERT_TRUE(doc.Save(dir.File(L"out.ini").c_str()));
    EXPECT_EQ(dir.Read(L"out.ini"), text);
}

TEST(IniDocument, FailedSaveKeepsTheOldFileAndReturnsFalse) {
    cv2test::TempFolder dir;
    dir.Write(L"config.ini", "[Old]\na=1\n");
    IniDocument doc;
    doc.SetString(L"New", L"b", L"2");
    // A target inside a folder that does not exist cannot be written.
    EXPECT_FALSE(doc.Save(dir.File(L"nofolder\\config.ini").c_str()));
    EXPECT_EQ(dir.Read(L"config.ini"), "[Old]\na=1\n");
}

TEST(IniDocument, SaveLeavesNoTemporaryFileBehind) {
    cv2test::TempFolder dir;
    IniDocument doc;
    doc.SetString(L"S", L"k", L"v");
    ASSERT_TRUE(doc.Save(dir.File(L"config.ini").c_str()));
    EXPECT_FALSE(cv2::FileExists(dir.File(L"config.ini.tmp~")));
}

TEST(IniDocument, MergeResolvesRelativeValuesAgainstTheSourceFolder) {
    cv2test::TempFolder dir;
    dir.Write(L"bar.png", "x");
    dir.Write(L"theme.skin", "[Topbar]\nImage=bar.png\nMissing=none.png\nAbs=\\abs.png\nN=5\n");
    IniDocument theme(dir.File(L"theme.skin").c_str());
    IniDocument edited;
    edited.SetString(L"Topbar", L"Image", L"old");
    edited.MergeFrom(theme, true);
    EXPECT_EQ(Value(edited, L"Topbar", L"Image"), dir.File(L"bar.png"));
    EXPECT_EQ(Value(edited, L"Topbar", L"Missing"), L"none.png");
    EXPECT_EQ(Value(edited, L"Topbar", L"Abs"), L"\\abs.png");
    EXPECT_EQ(Value(edited, L"Topbar", L"N"), L"5");
}

TEST(IniDocument, MergeWithoutResolutionCopiesValuesAsTheyAre) {
    cv2test::TempFolder dir;
    dir.Write(L"bar.png", "x");
    dir.Write(L"theme.skin", "[Topbar]\nImage=bar.png\n");
    IniDocument theme(dir.File(L"theme.skin").c_str());
    IniDocument edited;
    edited.MergeFrom(theme, false);
    EXPECT_EQ(Value(edited, L"Topbar", L"Image"), L"bar.png");
}

TEST(IniDocument, MakePathsRelativeStripsTheFolderOfExistingFiles) {
    cv2test::TempFolder dir;
    dir.Write(L"bar.png", "x");
    IniDocument doc;
    doc.SetString(L"Topbar", L"Image", dir.File(L"bar.png").c_str());
    doc.SetString(L"Topbar", L"Gone", dir.File(L"gone.png").c_str());
    doc.SetString(L"Topbar", L"Elsewhere", L"\\Windows\\x.png");
    doc.MakePathsRelative(dir.Path());
    EXPECT_EQ(Value(doc, L"Topbar", L"Image"), L"bar.png");
    EXPECT_EQ(Value(doc, L"Topbar", L"Gone"), dir.File(L"gone.png"));
    EXPECT_EQ(Value(doc, L"Topbar", L"Elsewhere"), L"\\Windows\\x.png");
}

TEST(IniDocument, DeleteSectionsTakesTheFirstMatchOncePerName) {
    IniDocument doc = Parsed("[A]\n[b]\n[B]\n[a]\n[C]\n[B]\n");
    doc.DeleteSections({L"a", L"B", L"b", L"missing"});
    EXPECT_EQ(doc.Serialize(), Lines("[a]\n\n[C]\n\n[B]\n\n"));
}

TEST(IniDocument, LookUpsAfterDeleteSectionsSeeTheRemainingSections) {
    std::string text;
    for (int i = 0; i < 20; ++i)
        text += "[S" + std::to_string(i) + "]\nk=" + std::to_string(i) + "\n";
    IniDocument doc = Parsed(text);
    EXPECT_EQ(Value(doc, L"S5", L"k"), L"5");
    doc.DeleteSections({L"S1", L"S5"});
    EXPECT_EQ(Value(doc, L"S5", L"k"), L"<missing>");
    EXPECT_EQ(Value(doc, L"S6", L"k"), L"6");
    doc.SetString(L"S5", L"k", L"new");
    EXPECT_EQ(Value(doc, L"S5", L"k"), L"new");
}
