// Reading and writing the three rule sections of config.ini, and the dialog records of their
// entries.
#include "pages/behaviour/rule_format.h"

#include <gtest/gtest.h>

#include "platform/file_access.h"
#include "temp_folder.h"

using namespace cv2;

namespace {

IniDocument FromText(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

// `text` with each '\n' turned into the platform's line end.
std::string WithLineEnds(std::string text) {
    const std::string eol = TextLineEnd();
    for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at)) {
        text.replace(at, 1, eol);
        at += eol.size();
    }
    return text;
}

// Labels that differ from the English defaults, as a translation would.
RuleLabels Translated(const wchar_t* a, const wchar_t* b, const wchar_t* c) {
    RuleLabels labels;
    labels.byCode[0] = a;
    labels.byCode[1] = b;
    labels.byCode[2] = c ? c : L"";
    return labels;
}

const RuleLabels kEnglishTasks = Translated(L"Ignore", L"Minimize", L"Close");
const RuleLabels kEnglishSip = Translated(L"Hide", L"Show", nullptr);

std::vector<std::wstring> Texts(const RuleList& list) {
    std::vector<std::wstring> texts;
    for (const RuleEntry& e : list.Entries())
        texts.push_back(e.text);
    return texts;
}

RuleList Loaded(const IniDocument& doc, const RuleFormat& format, const RuleLabels& labels) {
    RuleList list;
    LoadRules(doc, format, labels, list);
    return list;
}

} // namespace

// Window rules ("Custom Tasks").

TEST(TaskManagement, MissingSectionShowsActiveSyncAndPhoneAndSavesThemAsIgnore) {
    IniDocument doc;
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"ActiveSync [Ignore]", L"Phone [Ignore]"}));
    EXPECT_EQ(list[0].data, 0);
    EXPECT_EQ(list[1].data, 0);
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.Serialize(),
              WithLineEnds("[Custom Tasks]\n\"ActiveSync\"=ignore\n\"Phone\"=ignore\n\n"));
}

TEST(TaskManagement, DefaultEntriesAreNotTranslated) {
    IniDocument doc;
    RuleList list =
        Loaded(doc, kCustomTasksFormat, Translated(L"Ignorer", L"R\u00e9duire", L"Fermer"));
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"ActiveSync [Ignore]", L"Phone [Ignore]"}));
}

TEST(TaskManagement, LoadedEntriesShowTheTranslatedActionLabel) {
    IniDocument doc = FromText("[Custom Tasks]\n\"Inbox\"=minimize\n");
    RuleList list =
        Loaded(doc, kCustomTasksFormat, Translated(L"Ignorer", L"R\u00e9duire", L"Fermer"));
    ASSERT_EQ(list.Size(), 1u);
    EXPECT_EQ(list[0].text, L"Inbox [R\u00e9duire]");
    EXPECT_EQ(list[0].data, 1);
}

TEST(TaskManagement, DeletingEveryEntryRemovesTheSectionAndTheDefaultsReturn) {
    IniDocument doc = FromText("[Custom Tasks]\n\"Inbox\"=close\n[Other]\na=1\n");
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    ASSERT_EQ(list.Size(), 1u);
    list.Remove(0);
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_FALSE(doc.HasSection(L"Custom Tasks"));
    EXPECT_EQ(Texts(Loaded(doc, kCustomTasksFormat, kEnglishTasks)),
              (std::vector<std::wstring>{L"ActiveSync [Ignore]", L"Phone [Ignore]"}));
}

TEST(TaskManagement, TitleHoldingABracketIsCutAtTheLastBracketOnly) {
    RuleList list;
    list.Add(L"Notes [draft] [Close]", 2);
    IniDocument doc;
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.GetString(L"Custom Tasks", L"\"Notes [draft]\"", L"<missing>"), L"close");
    RuleRecord record = RecordOfEntry(kCustomTasksFormat, list[0]);
    EXPECT_EQ(record.text, L"Notes [draft]");
    EXPECT_EQ(Texts(Loaded(doc, kCustomTasksFormat, kEnglishTasks)),
              (std::vector<std::wstring>{L"Notes [draft] [Close]"}));
}

TEST(TaskManagement, CloseInAnyCaseReadsAsCodeTwoAndIsWrittenLowerCase) {
    IniDocument doc = FromText("[Custom Tasks]\n\"A\"=Close\n\"B\"=CLOSE\n\"C\"=cLoSe\n");
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    ASSERT_EQ(list.Size(), 3u);
    for (const RuleEntry& e : list.Entries())
        EXPECT_EQ(e.data, 2) << std::string(e.text.begin(), e.text.end());
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.Serialize(),
              WithLineEnds("[Custom Tasks]\n\"A\"=close\n\"B\"=close\n\"C\"=close\n\n"));
}

TEST(TaskManagement, UnknownActionKeepsTheCodeOfTheEntryBefore) {
    IniDocument doc = FromText("[Custom Tasks]\n\"A\"=sleep\n\"B\"=minimize\n\"C\"=later\n");
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    EXPECT_EQ(Texts(list),
              (std::vector<std::wstring>{L"A [Ignore]", L"B [Minimize]", L"C [Minimize]"}));
}

TEST(TaskManagement, KeyLosesItsFirstAndLastCharacterWhateverTheyAre) {
    IniDocument doc = FromText("[Custom Tasks]\nxInboxy=ignore\n\"Q=close\n");
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"Inbox [Ignore]"}));
}

TEST(TaskManagement, EmptyTitlesAreNeitherShownNorSaved) {
    IniDocument doc = FromText("[Custom Tasks]\n\"\"=close\n\"Inbox\"=ignore\n");
    RuleList list = Loaded(doc, kCustomTasksFormat, kEnglishTasks);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"Inbox [Ignore]"}));
    list.Add(L" [Close]", 2);
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Custom Tasks]\n\"Inbox\"=ignore\n\n"));
}

TEST(TaskManagement, OnlyEmptyTitlesLeaveAnEmptySection) {
    RuleList list;
    list.Add(L" [Ignore]", 0);
    IniDocument doc;
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_TRUE(doc.HasSection(L"Custom Tasks"));
    EXPECT_TRUE(doc.GetSectionEntries(L"Custom Tasks").empty());
}

TEST(TaskManagement, CodesOtherThanIgnoreAndMinimizeAreWrittenAsClose) {
    RuleList list;
    list.Add(L"A [x]", 7);
    list.Add(L"B [x]", -1);
    IniDocument doc;
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.GetString(L"Custom Tasks", L"\"A\"", L""), L"close");
    EXPECT_EQ(doc.GetString(L"Custom Tasks", L"\"B\"", L""), L"close");
}

TEST(TaskManagement, SavingRewritesTheSectionInItsPlace) {
    IniDocument doc = FromText("[First]\na=1\n[Custom Tasks]\n\"Old\"=close\n[Last]\nb=2\n");
    RuleList list;
    list.Add(L"New [Minimize]", 1);
    SaveRules(doc, kCustomTasksFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[First]\na=1\n\n[Custom Tasks]\n\"New\"=minimize\n\n"
                                            "[Last]\nb=2\n\n"));
}

TEST(TaskManagement, TitleWithHashAndBlanksSurvivesTheFile) {
    cv2test::TempFolder folder;
    const std::wstring path = folder.Path() + L"config.ini";
    RuleList list;
    list.Add(L"  Call #2  [Close]", 2);
    IniDocument doc;
    SaveRules(doc, kCustomTasksFormat, list);
    ASSERT_TRUE(doc.Save(path.c_str()));
    IniDocument again(path.c_str());
    EXPECT_EQ(Texts(Loaded(again, kCustomTasksFormat, kEnglishTasks)),
              (std::vector<std::wstring>{L"  Call #2  [Close]"}));
}

TEST(TaskManagement, DialogRecordBecomesTitleAndLocalisedAction) {
    RuleRecord record = NewRecord(kCustomTasksFormat);
    EXPECT_FALSE(record.processMode);
    EXPECT_FALSE(record.showHideMode);
    record.text = L"Calendar";
    record.action = 1;
    RuleEntry entry = EntryOfRecord(kCustomTasksFormat, record,
                                    Translated(L"Ignorer", L"R\u00e9duire", L"Fermer"));
    EXPECT_EQ(entry.text, L"Calendar [R\u00e9duire]");
    EXPECT_EQ(entry.data, 1);
    record.action = 2;
    EXPECT_EQ(EntryOfRecord(kCustomTasksFormat, record, kEnglishTasks).text, L"Calendar [Close]");
}

TEST(TaskManagement, EntryGivesTheDialogItsTitleAndAction) {
    RuleRecord record = RecordOfEntry(kCustomTasksFormat, RuleEntry{L"Inbox [Minimize]", 1});
    EXPECT_EQ(record.text, L"Inbox");
    EXPECT_EQ(record.action, 1);
}

// Input panel rules ("Custom SIP").

TEST(SipPanel, AbsentSectionGivesAnEmptyListAndSavingMakesAnEmptySection) {
    IniDocument doc;
    RuleList list = Loaded(doc, kCustomSipFormat, kEnglishSip);
    EXPECT_TRUE(list.Empty());
    SaveRules(doc, kCustomSipFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Custom SIP]\n\n"));
}

TEST(SipPanel, ZeroOrEmptyReadsHideAndOneOrYesReadsShow) {
    IniDocument doc = FromText("[Custom SIP]\n\"A\"=0\n\"B\"=\n\"C\"=1\n\"D\"=yes\n\"E\"=007\n");
    RuleList list = Loaded(doc, kCustomSipFormat, kEnglishSip);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"A [Hide]", L"B [Hide]", L"C [Show]",
                                                      L"D [Show]", L"E [Hide]"}));
    EXPECT_EQ(list[0].data, 0);
    EXPECT_EQ(list[3].data, 1);
}

TEST(SipPanel, HideIsWrittenAsZeroAndShowAsOne) {
    IniDocument doc = FromText("[Custom SIP]\n\"A\"=\n\"B\"=yes\n");
    RuleList list = Loaded(doc, kCustomSipFormat, kEnglishSip);
    SaveRules(doc, kCustomSipFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Custom SIP]\n\"A\"=0\n\"B\"=1\n\n"));
}

TEST(SipPanel, EmptyTitlesAreSavedAsEmptyQuotes) {
    IniDocument doc = FromText("[Custom SIP]\n\"\"=1\n");
    RuleList list = Loaded(doc, kCustomSipFormat, kEnglishSip);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L" [Show]"}));
    SaveRules(doc, kCustomSipFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Custom SIP]\n\"\"=1\n\n"));
}

TEST(SipPanel, LoadedEntriesSayShowAndHideInEnglishWhileNewOnesAreTranslated) {
    const RuleLabels french = Translated(L"Masquer", L"Afficher", nullptr);
    IniDocument doc = FromText("[Custom SIP]\n\"Notes\"=1\n");
    RuleList list = Loaded(doc, kCustomSipFormat, french);
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"Notes [Show]"}));
    RuleRecord record = NewRecord(kCustomSipFormat);
    EXPECT_TRUE(record.showHideMode);
    EXPECT_FALSE(record.processMode);
    record.text = L"Mail";
    record.action = 0;
    RuleEntry entry = EntryOfRecord(kCustomSipFormat, record, french);
    EXPECT_EQ(entry.text, L"Mail [Masquer]");
    EXPECT_EQ(entry.data, 0);
    record.action = 1;
    entry = EntryOfRecord(kCustomSipFormat, record, french);
    EXPECT_EQ(entry.text, L"Mail [Afficher]");
    EXPECT_EQ(entry.data, 1);
}

TEST(SipPanel, EmptiedListKeepsItsSection) {
    IniDocument doc = FromText("[Custom SIP]\n\"Notes\"=1\n");
    SaveRules(doc, kCustomSipFormat, RuleList());
    EXPECT_TRUE(doc.HasSection(L"Custom SIP"));
    EXPECT_TRUE(doc.GetSectionEntries(L"Custom SIP").empty());
}

TEST(SipPanel, ShowEntryOpensTheDialogOnTheShowButton) {
    RuleRecord record = RecordOfEntry(kCustomSipFormat, RuleEntry{L"Word [x] [Show]", 1});
    EXPECT_EQ(record.text, L"Word [x]");
    EXPECT_EQ(record.action, 1);
}

// Applications left unskinned ("Dont Skin").

TEST(SkinnedApps, MissingSectionShowsRepligoAndSavingWritesItWithOne) {
    IniDocument doc;
    RuleList list = Loaded(doc, kDontSkinFormat, RuleLabels());
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"REPLIGO.EXE"}));
    SaveRules(doc, kDontSkinFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Dont Skin]\nREPLIGO.EXE=1\n\n"));
}

TEST(SkinnedApps, ProcessNameTypedInLowerCaseIsStoredInUpperCase) {
    RuleRecord record = NewRecord(kDontSkinFormat);
    EXPECT_TRUE(record.processMode);
    record.text = L"tmail.exe";
    RuleList list;
    const RuleEntry entry = EntryOfRecord(kDontSkinFormat, record, RuleLabels());
    list.Add(entry.text, entry.data);
    EXPECT_EQ(list[0].text, L"TMAIL.EXE");
    IniDocument doc;
    SaveRules(doc, kDontSkinFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Dont Skin]\nTMAIL.EXE=1\n\n"));
}

TEST(SkinnedApps, DeletingAllEntriesRemovesTheSectionSoRepligoReturns) {
    IniDocument doc = FromText("[Dont Skin]\nTMAIL.EXE=1\n");
    RuleList list = Loaded(doc, kDontSkinFormat, RuleLabels());
    ASSERT_EQ(Texts(list), (std::vector<std::wstring>{L"TMAIL.EXE"}));
    list.Remove(0);
    SaveRules(doc, kDontSkinFormat, list);
    EXPECT_FALSE(doc.HasSection(L"Dont Skin"));
    EXPECT_EQ(Texts(Loaded(doc, kDontSkinFormat, RuleLabels())),
              (std::vector<std::wstring>{L"REPLIGO.EXE"}));
}

TEST(SkinnedApps, KeysAreListedAsTheyStandWhateverTheirValue) {
    IniDocument doc = FromText("[Dont Skin]\nwordpad.exe=0\nPIMG.EXE=whatever\n");
    RuleList list = Loaded(doc, kDontSkinFormat, RuleLabels());
    EXPECT_EQ(Texts(list), (std::vector<std::wstring>{L"PIMG.EXE", L"wordpad.exe"}));
    SaveRules(doc, kDontSkinFormat, list);
    EXPECT_EQ(doc.Serialize(), WithLineEnds("[Dont Skin]\nPIMG.EXE=1\nwordpad.exe=1\n\n"));
}

TEST(SkinnedApps, NamesAreWrittenWithoutQuotes) {
    RuleRecord record = RecordOfEntry(kDontSkinFormat, RuleEntry{L"A [B].EXE", 0});
    EXPECT_EQ(record.text, L"A [B].EXE");
    RuleList list;
    list.Add(L"A [B].EXE", 0);
    IniDocument doc;
    SaveRules(doc, kDontSkinFormat, list);
    EXPECT_EQ(doc.GetString(L"Dont Skin", L"A [B].EXE", L""), L"1");
}
