// The plug-in registry with real libraries: the sample plug-in and its misbehaving variants,
// loaded from real paths, and the services the pages use.
#include "pages/behaviour/plugins/plugin_registry.h"

#include <commctrl.h>

#include <gtest/gtest.h>

#include "pages/behaviour/button_order_values.h"
#include "plugin_test_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

class PluginRegistryTest : public ::testing::Test {
  protected:
    // Loads copies of the listed libraries, registered in this order under "P0", "P1", ...
    void LoadCopies(std::initializer_list<const wchar_t*> files) {
        std::vector<UserValue> values;
        int n = 0;
        for (const wchar_t* file : files) {
            paths.push_back(CopyPlugin(dir, file));
            values.push_back(TextValue(L"P" + std::to_wstring(n++), paths.back()));
        }
        registry.Load(values);
    }
    void TearDown() override { registry.Release(); }

    TempFolder dir;
    std::vector<std::wstring> paths;
    PluginRegistry registry;
};

std::vector<std::wstring> ComboTexts(HWND combo) {
    std::vector<std::wstring> texts;
    const int rows = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < rows; ++i) {
        wchar_t text[128] = {};
        SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        texts.push_back(text);
    }
    return texts;
}

HWND MakeCombo() {
    return CreateWindowExW(0, L"COMBOBOX", L"", CBS_DROPDOWN | WS_VSCROLL, 0, 0, 100, 100, nullptr,
                           nullptr, nullptr, nullptr);
}

} // namespace

TEST_F(PluginRegistryTest, SamplePluginOffersItsButtonsAndActions) {
    LoadCopies({L"SamplePlugin.dll"});
    ASSERT_EQ(1u, registry.Count());
    EXPECT_TRUE(registry.At(0).enabled);
    EXPECT_EQ(L"P0", registry.At(0).name);
    EXPECT_EQ(3u, registry.ButtonTotal());
    ASSERT_TRUE(registry.ButtonAt(1));
    EXPECT_STREQ(L"Sample Mail", registry.ButtonAt(1)->name);
    EXPECT_STREQ(L"Mail", registry.ButtonAt(1)->third);
    EXPECT_STREQ(L"mailcheck", registry.ButtonKey(1));
    EXPECT_TRUE(IsRectEmpty(&registry.ButtonAt(1)->rect));
    EXPECT_EQ(nullptr, registry.ButtonAt(3));
    EXPECT_STREQ(L"smp.torch", registry.ActionValue(L"Sample: Toggle Torch"));
}

TEST_F(PluginRegistryTest, LibraryIsInitialisedAskedAndReleased) {
    LoadCopies({L"SamplePlugin.dll"});
    registry.Release();
    EXPECT_EQ((std::vector<std::string>{"CRInit", "CRRegisterButtons 0", "CRRegisterButtons 1",
                                        "CRRegisterButtons 2", "CRRegisterActions 0",
                                        "CRRegisterActions 1", "CRRegisterActions 2", "CRDeInit"}),
              PluginCalls(paths[0]));
}

TEST_F(PluginRegistryTest, DisabledValueStillLoadsTheLibraryButIsNotEnabled) {
    const std::wstring path = CopyPlugin(dir, L"SamplePlugin.dll");
    registry.Load({TextValue(L"Sample", path + L",0")});
    ASSERT_EQ(1u, registry.Count());
    EXPECT_FALSE(registry.At(0).enabled);
    EXPECT_TRUE(registry.At(0).plugin->Loaded());
    EXPECT_EQ(3u, registry.ButtonTotal());
    EXPECT_STREQ(path.c_str(), registry.At(0).plugin->Path());
}

TEST_F(PluginRegistryTest, FileThatIsNoLibraryIsListedEmpty) {
    dir.Write(L"notes.dll", "This is not a library.\r\n");
    registry.Load({TextValue(L"Notes", dir.File(L"notes.dll")),
                   TextValue(L"Sample", CopyPlugin(dir, L"SamplePlugin.dll"))});
    ASSERT_EQ(2u, registry.Count());
    EXPECT_FALSE(registry.At(0).enabled);
    EXPECT_FALSE(registry.At(0).plugin->Loaded());
    EXPECT_TRUE(registry.At(0).plugin->Buttons().empty());
    EXPECT_EQ(3u, registry.ButtonTotal());
}

TEST_F(PluginRegistryTest, LibraryForAnotherProcessorIsListedEmpty) {
    LoadCopies({L"Plugin32.dll"});
    ASSERT_EQ(1u, registry.Count());
    EXPECT_FALSE(registry.At(0).plugin->Loaded());
    EXPECT_FALSE(registry.At(0).enabled);
    EXPECT_EQ(0u, registry.ButtonTotal());
    EXPECT_TRUE(PluginCalls(paths[0]).empty());
}

TEST_F(PluginRegistryTest, FailingInitialisationReleasesTheLibraryUnasked) {
    LoadCopies({L"FailingInitPlugin.dll"});
    ASSERT_EQ(1u, registry.Count());
    EXPECT_FALSE(registry.At(0).enabled);
    EXPECT_FALSE(registry.At(0).plugin->Loaded());
    EXPECT_EQ(0u, registry.ButtonTotal());
    registry.Release();
    EXPECT_EQ(std::vector<std::string>{"CRInit"}, PluginCalls(paths[0]));
}

TEST_F(PluginRegistryTest, MissingButtonRegistrationGivesNoButtonsButActions) {
    LoadCopies({L"NoButtonsPlugin.dll"});
    EXPECT_TRUE(registry.At(0).enabled);
    EXPECT_EQ(0u, registry.ButtonTotal());
    EXPECT_EQ(3u, registry.At(0).plugin->Actions().size());
    EXPECT_STREQ(L"Sample: Check Mail", registry.ActionName(L"SMP.MAIL"));
}

TEST_F(PluginRegistryTest, TenThousandButtonsAreAllTaken) {
    LoadCopies({L"ManyButtonsPlugin.dll", L"SamplePlugin.dll"});
    EXPECT_EQ(10003u, registry.ButtonTotal());
    EXPECT_STREQ(L"many9999", registry.ButtonKey(9999));
    EXPECT_STREQ(L"weather", registry.ButtonKey(10000));
    std::vector<OrderItem> items;
    registry.AppendOrderItems(items);
    ASSERT_EQ(10003u, items.size());
    EXPECT_EQ(12 + 10002, items.back().flag);
}

// A count no library could mean is not allocated as announced: the slots stop at the most the
// editor takes from one plug-in, and those past the named ones are absent.
TEST_F(PluginRegistryTest, AbsurdAnnouncedCountsAreCut) {
    LoadCopies({L"HugeCountPlugin.dll"});
    ASSERT_EQ(1u, registry.Count());
    EXPECT_TRUE(registry.At(0).enabled);
    EXPECT_EQ(size_t{Plugin::kMaxSlots}, registry.ButtonTotal());
    EXPECT_EQ(size_t{Plugin::kMaxSlots}, registry.At(0).plugin->Actions().size());
    EXPECT_STREQ(L"torch", registry.ButtonKey(2));
    EXPECT_EQ(nullptr, registry.ButtonAt(3));
    EXPECT_EQ(nullptr, registry.ButtonAt(Plugin::kMaxSlots - 1));
}

TEST_F(PluginRegistryTest, UnterminatedNamesAreCutToTheirBuffers) {
    LoadCopies({L"UnterminatedPlugin.dll"});
    ASSERT_TRUE(registry.ButtonAt(0));
    EXPECT_EQ(kPluginNameChars - 1, wcslen(registry.ButtonAt(0)->name));
    EXPECT_EQ(kPluginNameChars - 1, wcslen(registry.ButtonAt(0)->third));
    EXPECT_EQ(kPluginKeyChars - 1, wcslen(registry.ButtonKey(0)));
    const PluginAction& action = registry.At(0).plugin->Actions()[0];
    EXPECT_EQ(kPluginValueChars - 1, wcslen(action.value));
    EXPECT_EQ(kPluginNameChars - 1, wcslen(action.name));
}

TEST_F(PluginRegistryTest, AbsentSlotsAreSkippedByEveryLookup) {
    LoadCopies({L"GapsPlugin.dll"});
    EXPECT_EQ(3u, registry.ButtonTotal());
    EXPECT_EQ(nullptr, registry.ButtonAt(1));
    EXPECT_EQ(nullptr, registry.ButtonKey(1));
    EXPECT_EQ(nullptr, registry.ActionValue(L""));
    EXPECT_EQ(nullptr, registry.ActionName(L""));
    IniDocument theme;
    std::wstring normal, pressed;
    EXPECT_FALSE(registry.ReadButtonImages(theme, L"", normal, pressed));
    EXPECT_FALSE(registry.WriteButtonImages(theme, L"", L"a", L"b"));
    std::vector<OrderItem> items;
    registry.AppendOrderItems(items);
    EXPECT_FALSE(items[1].present);

    HWND combo = MakeCombo();
    registry.AddButtonNames(combo);
    EXPECT_EQ((std::vector<std::wstring>{L"Sample Weather", L"", L"Sample Torch"}),
              ComboTexts(combo));
    SendMessageW(combo, CB_RESETCONTENT, 0, 0);
    registry.AddActionNames(combo);
    EXPECT_EQ((std::vector<std::wstring>{L"Sample: Show Weather", L"Sample: Toggle Torch"}),
              ComboTexts(combo));
    DestroyWindow(combo);
}

TEST_F(PluginRegistryTest, EmptyNamesMatchNothing) {
    LoadCopies({L"EmptyNamesPlugin.dll"});
    EXPECT_EQ(3u, registry.ButtonTotal());
    ASSERT_TRUE(registry.ButtonAt(0));
    EXPECT_EQ(nullptr, registry.ActionValue(L""));
    EXPECT_EQ(nullptr, registry.ActionName(L""));
    IniDocument theme;
    EXPECT_FALSE(registry.WriteButtonImages(theme, L"", L"a", L"b"));
    std::vector<OrderItem> items;
    registry.AppendOrderItems(items);
    for (const OrderItem& item : items)
        EXPECT_FALSE(item.present);
}

TEST_F(PluginRegistryTest, ButtonsAndActionsAppendedInRegistryOrder) {
    LoadCopies({L"SamplePlugin.dll", L"GapsPlugin.dll"});
    HWND combo = MakeCombo();
    registry.AddButtonNames(combo);
    EXPECT_EQ(6u, ComboTexts(combo).size());
    EXPECT_EQ(L"Sample Weather", ComboTexts(combo)[3]);
    DestroyWindow(combo);
    // The first plug-in's action of a name wins.
    EXPECT_EQ(registry.At(0).plugin->Actions()[0].value,
              std::wstring(registry.ActionValue(L"sample: show weather")));
}

TEST_F(PluginRegistryTest, RegistrationNameFoundByPathInAnyCase) {
    const std::wstring path = CopyPlugin(dir, L"SamplePlugin.dll");
    std::wstring upper = path;
    CharUpperW(&upper[0]);
    registry.Load({TextValue(L"First", path), TextValue(L"Second", upper + L",0")});
    EXPECT_STREQ(L"First", registry.RegistrationName(upper.c_str()));
    EXPECT_EQ(nullptr, registry.RegistrationName(L"\\none.dll"));
}

TEST_F(PluginRegistryTest, ButtonImagesReadAndWrittenOnlyForPluginButtons) {
    LoadCopies({L"SamplePlugin.dll"});
    IniDocument theme;
    EXPECT_TRUE(registry.WriteButtonImages(theme, L"sample torch", L"\\t.png", L"\\tp.png"));
    EXPECT_EQ(L"\\t.png", theme.GetString(L"Button Images", L"sample torch Normal", L""));
    EXPECT_EQ(L"\\tp.png", theme.GetString(L"Button Images", L"sample torch Pressed", L""));
    std::wstring normal, pressed;
    EXPECT_TRUE(registry.ReadButtonImages(theme, L"Sample Torch", normal, pressed));
    EXPECT_EQ(L"\\t.png", normal);
    EXPECT_EQ(L"\\tp.png", pressed);
    EXPECT_FALSE(registry.WriteButtonImages(theme, L"Clock", L"\\c.png", L""));
    EXPECT_FALSE(theme.GetString(L"Button Images", L"Clock Normal", L"-") == L"\\c.png");
}

TEST_F(PluginRegistryTest, ButtonImageValuesCutToAPath) {
    LoadCopies({L"SamplePlugin.dll"});
    IniDocument theme;
    theme.SetString(L"Button Images", L"Sample Mail Normal", std::wstring(400, L'x').c_str());
    std::wstring normal, pressed;
    EXPECT_TRUE(registry.ReadButtonImages(theme, L"Sample Mail", normal, pressed));
    EXPECT_EQ(259u, normal.size());
    EXPECT_EQ(L"", pressed);
}

TEST_F(PluginRegistryTest, CheckListRowPerPluginCheckedWhenEnabled) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    registry.Load({TextValue(L"On", sample), TextValue(L"Off", sample + L",0"),
                   TextValue(L"Broken", dir.File(L"missing.dll"))});
    HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", LVS_REPORT, 0, 0, 100, 100, nullptr, nullptr,
                                nullptr, nullptr);
    ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
    LVCOLUMNW column = {};
    ListView_InsertColumn(list, 0, &column);
    registry.FillCheckList(list);
    ASSERT_EQ(3, ListView_GetItemCount(list));
    EXPECT_TRUE(ListView_GetCheckState(list, 0));
    EXPECT_FALSE(ListView_GetCheckState(list, 1));
    EXPECT_FALSE(ListView_GetCheckState(list, 2));
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = 1;
    ListView_GetItem(list, &item);
    EXPECT_EQ(reinterpret_cast<LPARAM>(registry.At(1).plugin.get()), item.lParam);
    DestroyWindow(list);
}

// Through the real registry: values of any type and size are listed.
class PluginRegistryFromRegistry : public PluginRegistryTest {
  protected:
    PluginsKeyScope key;
};

TEST_F(PluginRegistryFromRegistry, NoPluginsKeyGivesNoPlugins) {
    registry.LoadFromRegistry();
    EXPECT_EQ(0u, registry.Count());
    EXPECT_EQ(0u, registry.ButtonTotal());
}

TEST_F(PluginRegistryFromRegistry, ValuesListedInRegistryOrderWithTheirStates) {
    const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
    key.Set(L"Alpha", sample);
    key.Set(L"Beta", sample + L",0");
    registry.LoadFromRegistry();
    ASSERT_EQ(2u, registry.Count());
    EXPECT_TRUE(registry.At(0).enabled);
    EXPECT_FALSE(registry.At(1).enabled);
    EXPECT_EQ(6u, registry.ButtonTotal());
}

TEST_F(PluginRegistryFromRegistry, ValueOfTheWrongTypeIsListedWithoutALibrary) {
    key.SetDword(L"Number", 7);
    key.Set(L"Sample", CopyPlugin(dir, L"SamplePlugin.dll"));
    registry.LoadFromRegistry();
    ASSERT_EQ(2u, registry.Count());
    EXPECT_EQ(L"Number", registry.At(0).name);
    EXPECT_FALSE(registry.At(0).enabled);
    EXPECT_TRUE(registry.At(1).enabled);
}

TEST_F(PluginRegistryFromRegistry, TwoThousandCharacterValueEndsTheListThere) {
    key.Set(L"A Sample", CopyPlugin(dir, L"SamplePlugin.dll"));
    key.Set(L"Long", L"C:\\" + std::wstring(2000, L'a') + L".dll");
    key.Set(L"Z Sample", CopyPlugin(dir, L"SamplePlugin.dll"));
    registry.LoadFromRegistry();
    ASSERT_EQ(1u, registry.Count());
    EXPECT_EQ(L"A Sample", registry.At(0).name);
}

TEST_F(PluginRegistryFromRegistry, DataOfExactlyTheBufferSizeIsStillRead) {
    // 261 characters and the terminator: 524 bytes.
    key.Set(L"Fits", L"C:\\" + std::wstring(258, L'a'));
    registry.LoadFromRegistry();
    ASSERT_EQ(1u, registry.Count());
    EXPECT_EQ(kPluginPathChars - 1, wcslen(registry.At(0).plugin->Path()));
}

TEST_F(PluginRegistryFromRegistry, RegistrationNameLongerThanItsBufferEndsTheList) {
    key.Set(std::wstring(49, L'a'), CopyPlugin(dir, L"SamplePlugin.dll"));
    key.Set(std::wstring(50, L'b'), CopyPlugin(dir, L"SamplePlugin.dll"));
    registry.LoadFromRegistry();
    ASSERT_EQ(1u, registry.Count());
    EXPECT_EQ(std::wstring(49, L'a'), registry.At(0).name);
}

TEST_F(PluginRegistryFromRegistry, UnterminatedRegistryTextIsRead) {
    const std::wstring path = CopyPlugin(dir, L"SamplePlugin.dll");
    HKEY hkey = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_CURRENT_USER, kPluginsRegistryKey, 0, nullptr, 0,
                                             KEY_WRITE, nullptr, &hkey, nullptr));
    RegSetValueExW(hkey, L"Bare", 0, REG_SZ, reinterpret_cast<const BYTE*>(path.data()),
                   static_cast<DWORD>(path.size() * sizeof(wchar_t)));
    RegCloseKey(hkey);
    registry.LoadFromRegistry();
    ASSERT_EQ(1u, registry.Count());
    EXPECT_STREQ(path.c_str(), registry.At(0).plugin->Path());
    EXPECT_TRUE(registry.At(0).enabled);
}
