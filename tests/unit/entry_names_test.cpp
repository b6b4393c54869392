// The names a package may hold: what may be written inside a folder, in both encodings that
// zip tools use.
#include "archive/entry_names.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {

ZipProblem Check(const std::wstring& name) {
    CleanName clean;
    return CheckEntryName(name, 259, clean);
}

} // namespace

TEST(EntryNames, PlainRelativeNamesPassWithSlashes) {
    CleanName clean;
    ASSERT_EQ(CheckEntryName(L"Blue\\pics/a b.bmp", 259, clean), ZipProblem::None);
    EXPECT_EQ(clean.path, L"Blue/pics/a b.bmp");
    EXPECT_FALSE(clean.folder);
}

TEST(EntryNames, TrailingSeparatorMarksAFolder) {
    CleanName clean;
    ASSERT_EQ(CheckEntryName(L"Blue/pics/", 259, clean), ZipProblem::None);
    EXPECT_EQ(clean.path, L"Blue/pics");
    EXPECT_TRUE(clean.folder);
}

TEST(EntryNames, RootsDrivesAndSharesAreAbsolute) {
    EXPECT_EQ(Check(L"/a"), ZipProblem::AbsolutePath);
    EXPECT_EQ(Check(L"\\a"), ZipProblem::AbsolutePath);
    EXPECT_EQ(Check(L"\\\\server\\share\\a"), ZipProblem::AbsolutePath);
    EXPECT_EQ(Check(L"c:a"), ZipProblem::AbsolutePath);
    EXPECT_EQ(Check(L"D:/a"), ZipProblem::AbsolutePath);
    EXPECT_EQ(Check(L"a:b"), ZipProblem::AbsolutePath) << "drive a:, relative to its folder";
}

TEST(EntryNames, DotDotAnywhereLeavesTheFolder) {
    EXPECT_EQ(Check(L".."), ZipProblem::LeavesFolder);
    EXPECT_EQ(Check(L"a/../b"), ZipProblem::LeavesFolder);
    EXPECT_EQ(Check(L"a/.."), ZipProblem::LeavesFolder);
}

TEST(EntryNames, EmptyAndDotPartsAreUnfit) {
    EXPECT_EQ(Check(L""), ZipProblem::UnfitName);
    EXPECT_EQ(Check(L"a//b"), ZipProblem::UnfitName);
    EXPECT_EQ(Check(L"./a"), ZipProblem::UnfitName);
}

TEST(EntryNames, CharactersWindowsRefusesAreUnfit) {
    for (const wchar_t* name : {L"ab:c", L"a*", L"a?", L"a|b", L"a<b", L"a>b", L"a\"b", L"a\tb"})
        EXPECT_EQ(Check(name), ZipProblem::UnfitName) << name;
    EXPECT_EQ(Check(std::wstring(L"a\0b", 3)), ZipProblem::UnfitName);
}

TEST(EntryNames, PartsEndingInADotOrASpaceAreUnfit) {
    EXPECT_EQ(Check(L"a./b"), ZipProblem::UnfitName);
    EXPECT_EQ(Check(L"a/b "), ZipProblem::UnfitName);
}

TEST(EntryNames, DeviceNamesWithOrWithoutAnExtensionAreUnfit) {
    for (const wchar_t* name :
         {L"CON", L"con.txt", L"a/Nul", L"aux.skin", L"COM1", L"lpt9.bmp", L"prn .txt", L"CONOUT$"})
        EXPECT_EQ(Check(name), ZipProblem::UnfitName) << name;
    for (const wchar_t* name : {L"console", L"com10", L"COM0", L"lpt", L"nul_", L"icon.bmp"})
        EXPECT_EQ(Check(name), ZipProblem::None) << name;
}

TEST(EntryNames, LengthIsCountedInCharacters) {
    CleanName clean;
    EXPECT_EQ(CheckEntryName(std::wstring(10, L'\u00E9'), 10, clean), ZipProblem::None);
    EXPECT_EQ(CheckEntryName(std::wstring(11, L'a'), 10, clean), ZipProblem::NameTooLong);
}

TEST(EntryNames, Utf8AndDosCodePageDecodeToTheSameText) {
    EXPECT_EQ(DecodeEntryName("\xC3\xA9t\xC3\xA9", false), L"\u00E9t\u00E9");
    EXPECT_EQ(DecodeEntryName("\x82t\x82", false), L"\u00E9t\u00E9");
    EXPECT_EQ(DecodeEntryName("plain.bmp", true), L"plain.bmp");
}

TEST(EntryNames, FlaggedNameThatIsNotUtf8FallsBackToTheDosCodePage) {
    EXPECT_EQ(DecodeEntryName("\x82", true), L"\u00E9");
}

TEST(EntryNames, OverlongUtf8IsNotTakenAsUtf8) {
    EXPECT_EQ(DecodeEntryName("\xC0\xAF", false), L"\u2514\u00BB");
}

TEST(EntryNames, EncodingGivesAsciiAsItIsAndFlagsTheRest) {
    bool utf8 = true;
    EXPECT_EQ(EncodeEntryName(L"Blue/a.bmp", utf8), "Blue/a.bmp");
    EXPECT_FALSE(utf8);
    EXPECT_EQ(EncodeEntryName(L"\u00DC\u20AC", utf8), "\xC3\x9C\xE2\x82\xAC");
    EXPECT_TRUE(utf8);
}

TEST(EntryNames, EncodedNamesDecodeBackUnchanged) {
    const std::wstring name = L"Th\u00E8me \u0416/\u4E2D.bmp";
    bool utf8 = false;
    EXPECT_EQ(DecodeEntryName(EncodeEntryName(name, utf8), utf8), name);
}
