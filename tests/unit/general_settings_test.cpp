// The switches of General Settings: defaults, sections, the shortcut and registry rows.
#include "pages/behaviour/check_list_rows.h"
#include "pages/behaviour/general_startup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {

// Stores that remember what was asked of them.
struct FakeStores : OutsideStores {
    bool shortcut = false;
    bool hasValue = false;
    unsigned long value = 0;
    bool registryWorks = true;
    int creates = 0;
    int deletes = 0;
    int writes = 0;

    bool ShortcutExists() override { return shortcut; }
    bool CreateShortcut() override {
        ++creates;
        shortcut = true;
        return true;
    }
    bool DeleteShortcut() override {
        ++deletes;
        shortcut = false;
        return true;
    }
    bool ReadSoundHookValue(unsigned long& v) override {
        if (!hasValue)
            return false;
        v = value;
        return true;
    }
    bool WriteSoundHookValue(unsigned long v) override {
        if (!registryWorks)
            return false;
        ++writes;
        hasValue = true;
        value = v;
        return true;
    }
};

std::vector<int> CheckedRows(const std::vector<bool>& states) {
    std::vector<int> rows;
    for (size_t i = 0; i < states.size(); ++i) {
        if (states[i])
            rows.push_back(static_cast<int>(i));
    }
    return rows;
}

std::vector<bool> AllRows(bool on) {
    return std::vector<bool>(GeneralSettingsRows().count, on);
}

} // namespace

TEST(GeneralSettings, HasNineteenRowsWithTheirLabelNumbers) {
    const CheckTable table = GeneralSettingsRows();
    std::vector<unsigned> ids;
    for (size_t i = 0; i < table.count; ++i)
        ids.push_back(table.rows[i].label);
    EXPECT_EQ(ids, (std::vector<unsigned>{118, 119, 120, 121, 122, 123, 124, 125, 126, 127, 128,
                                          129, 130, 307, 308, 309, 310, 311, 314}));
}

TEST(GeneralSettings, EmptyConfigWithoutShortcutOrRegistryChecksTheDefaultRows) {
    IniDocument doc;
    FakeStores stores;
    EXPECT_EQ(CheckedRows(ReadCheckRows(GeneralSettingsRows(), doc, &stores)),
              (std::vector<int>{1, 4, 5, 6, 7, 10, 14, 16}));
}

TEST(GeneralSettings, YesAndTrueReadAsCheckedAndAreWrittenBackAsTRUE) {
    IniDocument doc;
    doc.SetString(L"General Settings", L"Goto Today", L"yes");
    doc.SetString(L"General Settings", L"Vibrate", L"True");
    FakeStores stores;
    const std::vector<bool> states = ReadCheckRows(GeneralSettingsRows(), doc, &stores);
    EXPECT_TRUE(states[2]);
    EXPECT_TRUE(states[15]);
    WriteCheckRows(GeneralSettingsRows(), states, doc, &stores);
    EXPECT_EQ(doc.GetString(L"General Settings", L"Goto Today", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"General Settings", L"Vibrate", L""), L"TRUE");
}

TEST(GeneralSettings, OtherValuesReadAsUnchecked) {
    IniDocument doc;
    doc.SetString(L"TopBar Settings", L"Show Tasks", L"1");
    EXPECT_FALSE(ReadCheckRows(GeneralSettingsRows(), doc, nullptr)[1]);
}

TEST(GeneralSettings, ShowTasksAndAnimateBatteryLiveInTopBarSettingsAllOthersInGeneralSettings) {
    IniDocument doc;
    FakeStores stores;
    WriteCheckRows(GeneralSettingsRows(), AllRows(true), doc, &stores);
    std::vector<std::wstring> topBar, general;
    for (const auto& e : doc.GetSectionEntries(L"TopBar Settings"))
        topBar.push_back(e.first);
    for (const auto& e : doc.GetSectionEntries(L"General Settings"))
        general.push_back(e.first);
    EXPECT_EQ(topBar, (std::vector<std::wstring>{L"Show Tasks", L"Animate Battery Meter"}));
    EXPECT_EQ(general, (std::vector<std::wstring>{
                           L"Goto Today", L"Smart Minimize", L"Gradient on Today", L"ClearType",
                           L"Close By Icon", L"Right Handed Landscape", L"Standard Hold",
                           L"Hide Desktop Title", L"Hide Disconnected",
                           L"Show Multiple Notifications", L"Notify Reminder", L"Vibrate",
                           L"Close Battery", L"Show Original Notification", L"Skip Today"}));
    EXPECT_EQ(doc.Sections().size(), 2u);
}

TEST(GeneralSettings, SaveWritesEveryIniSwitchAsTRUEOrFALSE) {
    IniDocument doc;
    std::vector<bool> states = AllRows(false);
    states[3] = true;
    WriteCheckRows(GeneralSettingsRows(), states, doc, nullptr);
    EXPECT_EQ(doc.GetString(L"General Settings", L"Smart Minimize", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"General Settings", L"ClearType", L""), L"FALSE");
    EXPECT_EQ(doc.GetString(L"TopBar Settings", L"Show Tasks", L""), L"FALSE");
}

TEST(GeneralSettings, ExistingShortcutReadsCheckedAndIsNotTouchedWhenSavedChecked) {
    IniDocument doc;
    FakeStores stores;
    stores.shortcut = true;
    const std::vector<bool> states = ReadCheckRows(GeneralSettingsRows(), doc, &stores);
    EXPECT_TRUE(states[0]);
    WriteCheckRows(GeneralSettingsRows(), states, doc, &stores);
    EXPECT_EQ(stores.creates, 0);
    EXPECT_EQ(stores.deletes, 0);
}

TEST(GeneralSettings, UncheckingTheShortcutRowDeletesTheShortcut) {
    IniDocument doc;
    FakeStores stores;
    stores.shortcut = true;
    WriteCheckRows(GeneralSettingsRows(), AllRows(false), doc, &stores);
    EXPECT_EQ(stores.deletes, 1);
    EXPECT_FALSE(stores.shortcut);
}

TEST(GeneralSettings, CheckingTheShortcutRowCreatesAMissingShortcut) {
    IniDocument doc;
    FakeStores stores;
    std::vector<bool> states = AllRows(false);
    states[0] = true;
    WriteCheckRows(GeneralSettingsRows(), states, doc, &stores);
    EXPECT_EQ(stores.creates, 1);
    EXPECT_EQ(stores.deletes, 0);
}

TEST(GeneralSettings, UncheckedShortcutRowWithoutShortcutDoesNothing) {
    IniDocument doc;
    FakeStores stores;
    WriteCheckRows(GeneralSettingsRows(), AllRows(false), doc, &stores);
    EXPECT_EQ(stores.creates + stores.deletes, 0);
}

TEST(GeneralSettings, AnyNonZeroRegistryValueReadsChecked) {
    IniDocument doc;
    FakeStores stores;
    stores.hasValue = true;
    stores.value = 7;
    EXPECT_TRUE(ReadCheckRows(GeneralSettingsRows(), doc, &stores)[12]);
    stores.value = 0;
    EXPECT_FALSE(ReadCheckRows(GeneralSettingsRows(), doc, &stores)[12]);
}

TEST(GeneralSettings, SoundHookRowIsWrittenAsOneOrZero) {
    IniDocument doc;
    FakeStores stores;
    std::vector<bool> states = AllRows(false);
    states[12] = true;
    WriteCheckRows(GeneralSettingsRows(), states, doc, &stores);
    EXPECT_EQ(stores.value, 1u);
    states[12] = false;
    WriteCheckRows(GeneralSettingsRows(), states, doc, &stores);
    EXPECT_EQ(stores.value, 0u);
    EXPECT_EQ(stores.writes, 2);
}

TEST(GeneralSettings, FailingRegistryIsSkippedAndTheRestIsSaved) {
    IniDocument doc;
    FakeStores stores;
    stores.registryWorks = false;
    stores.shortcut = true;
    WriteCheckRows(GeneralSettingsRows(), AllRows(false), doc, &stores);
    EXPECT_FALSE(stores.hasValue);
    EXPECT_EQ(stores.deletes, 1);
    EXPECT_EQ(doc.GetString(L"General Settings", L"Skip Today", L""), L"FALSE");
}

TEST(GeneralSettings, SwitchesStayOutOfConfigIniForShortcutAndRegistryRows) {
    IniDocument doc;
    FakeStores stores;
    WriteCheckRows(GeneralSettingsRows(), AllRows(true), doc, &stores);
    size_t keys = 0;
    for (const auto& section : doc.Sections())
        keys += section.entries.size();
    EXPECT_EQ(keys, 17u);
}

TEST(StartupShortcut, IsCorvaneLnkInTheStartupFolder) {
    EXPECT_EQ(StartupShortcutPath(L"\\Windows\\StartUp"), L"\\Windows\\StartUp\\Corvane.lnk");
    EXPECT_EQ(StartupShortcutPath(L"C:\\Startup\\"), L"C:\\Startup\\Corvane.lnk");
}

TEST(StartupShortcut, UnknownStartupFolderGivesNoPath) {
    EXPECT_EQ(StartupShortcutPath(L""), L"");
}

TEST(StartupShortcut, StartsTheBarBesideTheSettingsProgramWithBoot) {
    EXPECT_EQ(StartupShortcutTarget(L"\\Program Files\\Corvane 2\\"),
              L"\"\\Program Files\\Corvane 2\\Corvane2.exe\" /boot");
}

TEST(StartupShortcut, SettingsFolderIsCutTo259Characters) {
    const std::wstring folder(300, L'a');
    EXPECT_EQ(StartupShortcutTarget(folder),
              L"\"" + std::wstring(259, L'a') + L"Corvane2.exe\" /boot");
}
