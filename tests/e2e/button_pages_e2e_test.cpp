// Button Assignments, Button Order and Plugins in the real editor, with real plug-ins
// registered in the user's registry and the phone flag set by the device's phone state key.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>

#include "device_fixture.h"
#include "ids_behaviour.h"
#include "plugin_test_support.h"

namespace cv2test {
namespace {

// The Actions section Apply writes when config.ini is empty, in the bar's key order.
const char kDefaultActions[] =
    "[Actions]\nButton 0 Action=2\nButton 0 Hold=5\nButton 3 Action=7\nButton 3 Hold=5\n"
    "Button 4 Action=2\nButton 4 Hold=1\nButton 5 Action=3\nButton 5 Hold=1\n"
    "Button 6 Action=10\nButton 7 Action=10\nButton 6 Hold=6\nButton 7 Hold=6\n"
    "Button 8 Action=8\nButton 8 Hold=9\nButton 9 Action=11\nButton 9 Hold=1\n"
    "Button 10 Action=5\nButton 10 Hold=2\nButton 11 Action=1\nButton 11 Hold=1\n"
    "Button 12 Action=1\nButton 12 Hold=1\nButton 14 Action=16\nButton 15 Action=16\n"
    "Button 14 Hold=1\nButton 15 Hold=1\nButton 16 Action=30\nButton 16 Hold=1\n\n";

class ButtonPagesE2E : public DeviceFixture {
  protected:
    // Copies a built plug-in into the scratch device folder; returns its path there.
    std::wstring Plugin(const wchar_t* file, const wchar_t* as = nullptr) {
        const std::wstring path = File(as ? as : file);
        CopyFileW(BuiltPlugin(file).c_str(), path.c_str(), FALSE);
        return path;
    }
    void OpenPage(const wchar_t* name) {
        const std::vector<std::wstring> names = MainPageNames();
        const auto at = std::find(names.begin(), names.end(), name);
        ASSERT_NE(at, names.end()) << "no such page";
        SelectPage(static_cast<int>(at - names.begin()));
    }
    static std::vector<std::wstring> ComboRows(HWND combo) {
        std::vector<std::wstring> rows;
        const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t text[256] = {};
            SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(text));
            rows.push_back(text);
        }
        return rows;
    }
    static std::wstring Text(HWND window) {
        wchar_t text[512] = {};
        SendMessageW(window, WM_GETTEXT, 512, reinterpret_cast<LPARAM>(text));
        return text;
    }
    std::wstring Stored(const std::wstring& name) const {
        for (const cv2::UserValue& v : m_plugins.Values()) {
            if (v.name == name)
                return v.text;
        }
        return L"<missing>";
    }
    // Where one line stands in a section's text; npos when missing.
    static size_t At(const std::string& section, const std::string& line) {
        return section.find(Lines(line + "\n"));
    }

    // What Apply on an empty config.ini writes: the Actions section whole and in the bar's key
    // order, the two switches of General Settings in their order, and Topbar Settings.
    void ExpectDefaultsWritten(const std::string& order) const {
        EXPECT_EQ(Lines(kDefaultActions), SectionText("Actions"));
        const std::string general = SectionText("General Settings");
        const size_t notifications = general.find("Show Notifications=TRUE\r\n");
        const size_t startMenu = general.find("Use Start Menu=TRUE\r\n");
        EXPECT_NE(std::string::npos, notifications) << general;
        EXPECT_NE(std::string::npos, startMenu) << general;
        EXPECT_LT(notifications, startMenu);
        // General Settings makes the section first, spelt its own way; ours come last in it.
        const std::string topbar = SectionText("TopBar Settings");
        const std::string ours = Lines("Show Title=TRUE\nOrder=" + order + "\n\n");
        ASSERT_GE(topbar.size(), ours.size()) << topbar;
        EXPECT_EQ(ours, topbar.substr(topbar.size() - ours.size()));
    }

    PluginsKeyScope m_plugins;
};

} // namespace

TEST_F(ButtonPagesE2E, ApplyOnAnEmptyConfigWritesTheButtonDefaultsWithoutAPhone) {
    PhoneScope phone(false);
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    Apply();
    ExpectDefaultsWritten("notify,connection,volume,clock,menu,battery,close");
}

TEST_F(ButtonPagesE2E, ApplyOnAnEmptyConfigWritesTheButtonDefaultsWithAPhone) {
    PhoneScope phone(true);
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    Apply();
    ExpectDefaultsWritten("signal,notify,connection,volume,clock,menu,battery,close");
}

TEST_F(ButtonPagesE2E, RegisteredPluginShowsItsButtonsAndActions) {
    m_plugins.Set(L"Sample", Plugin(L"SamplePlugin.dll"));
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    OpenPage(L"Button Assignments");
    const std::vector<std::wstring> buttons = ComboRows(ShownControl(IDC_ASSIGN_BUTTON));
    ASSERT_EQ(15u, buttons.size());
    EXPECT_EQ(L"Sample Weather", buttons[12]);
    EXPECT_EQ(L"Sample Torch", buttons[14]);
    for (int id : {IDC_ASSIGN_TAP, IDC_ASSIGN_HOLD}) {
        const std::vector<std::wstring> actions = ComboRows(ShownControl(id));
        ASSERT_EQ(35u, actions.size());
        EXPECT_EQ(L"Sample: Show Weather", actions[32]);
        EXPECT_EQ(L"Sample: Toggle Torch", actions[34]);
    }
}

TEST_F(ButtonPagesE2E, PluginIsInitialisedOnceAndReleasedAtExit) {
    const std::wstring sample = Plugin(L"SamplePlugin.dll");
    m_plugins.Set(L"Sample", sample);
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    const std::vector<std::string> running = PluginCalls(sample);
    ASSERT_FALSE(running.empty());
    EXPECT_EQ("CRInit", running.front());
    EXPECT_EQ(0, std::count(running.begin(), running.end(), "CRDeInit"));
    Cancel(true);
    ASSERT_TRUE(WaitEditorExit());
    const std::vector<std::string> calls = PluginCalls(sample);
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(1, std::count(calls.begin(), calls.end(), "CRInit"));
    EXPECT_EQ("CRDeInit", calls.back());
}

TEST_F(ButtonPagesE2E, StoredPluginActionIsShownByItsNameAndSavedByItsValue) {
    m_plugins.Set(L"Sample", Plugin(L"SamplePlugin.dll"));
    WriteText(L"config.ini", "[Actions]\nButton 0 Action=smp.weather\nButton 0 Hold=SMP.MAIL\n");
    ASSERT_TRUE(StartEditor());
    OpenPage(L"Button Assignments");
    EXPECT_EQ(L"Sample: Show Weather", Text(ShownControl(IDC_ASSIGN_TAP)));
    EXPECT_EQ(L"Sample: Check Mail", Text(ShownControl(IDC_ASSIGN_HOLD)));
    Apply();
    const std::string actions = SectionText("Actions");
    EXPECT_NE(std::string::npos, At(actions, "Button 0 Action=smp.weather")) << actions;
    EXPECT_NE(std::string::npos, At(actions, "Button 0 Hold=smp.mail")) << actions;
}

TEST_F(ButtonPagesE2E, PluginButtonKeepsItsPlaceInTheOrder) {
    m_plugins.Set(L"Sample", Plugin(L"SamplePlugin.dll"));
    WriteText(L"config.ini", "[Topbar Settings]\nOrder=Clock,Torch,Volume,Close\n");
    ASSERT_TRUE(StartEditor());
    OpenPage(L"Button Order");
    HWND list = ShownControl(IDC_ORDER_LIST);
    ASSERT_TRUE(list);
    // Notification is shown by its own switch, which is on, so it joins at the end.
    EXPECT_EQ(5, SendMessageW(list, LB_GETCOUNT, 0, 0));
    Apply();
    EXPECT_NE(std::string::npos,
              At(SectionText("Topbar Settings"), "Order=clock,torch,volume,close,notify"))
        << SectionText("Topbar Settings");
}

TEST_F(ButtonPagesE2E, PluginsPageWritesBackEachPluginsState) {
    // The registry lists values by name here, so the names sort in the rows' order.
    m_plugins.Set(L"A On", Plugin(L"SamplePlugin.dll"));
    m_plugins.Set(L"B Off", Plugin(L"SamplePlugin.dll", L"Second.dll") + L",0");
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    OpenPage(L"Plugins");
    HWND list = ShownControl(IDC_PLUGIN_LIST);
    ASSERT_TRUE(list);
    ASSERT_EQ(2, ListView_GetItemCount(list));
    EXPECT_TRUE(ListView_GetCheckState(list, 0));
    EXPECT_FALSE(ListView_GetCheckState(list, 1));
    // Space on the first row turns it off, as on the device's keypad.
    PostMessageW(list, WM_KEYDOWN, VK_HOME, 0);
    PostMessageW(list, WM_KEYDOWN, VK_SPACE, 0);
    PostMessageW(list, WM_KEYUP, VK_SPACE, 0);
    ASSERT_TRUE(WaitFor([&] { return !ListView_GetCheckState(list, 0); }, 5000));
    Apply();
    EXPECT_EQ(File(L"SamplePlugin.dll") + L",0", Stored(L"A On"));
    EXPECT_EQ(File(L"Second.dll") + L",0", Stored(L"B Off"));
}

TEST_F(ButtonPagesE2E, HostilePluginsNeitherStopTheEditorNorHideFromTheList) {
    // The over-long value comes last by name and by insertion: the list ends there.
    WriteText(L"notes.dll", "This is a text file, not a library.\r\n");
    m_plugins.Set(L"Text", File(L"notes.dll"));
    m_plugins.Set(L"32-bit", Plugin(L"Plugin32.dll"));
    m_plugins.Set(L"Failing", Plugin(L"FailingInitPlugin.dll"));
    m_plugins.Set(L"Many", Plugin(L"ManyButtonsPlugin.dll"));
    m_plugins.Set(L"Unterminated", Plugin(L"UnterminatedPlugin.dll"));
    m_plugins.SetDword(L"Number", 42);
    m_plugins.Set(L"ZZ Long", L"C:\\" + std::wstring(2000, L'x') + L".dll");
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    OpenPage(L"Plugins");
    HWND list = ShownControl(IDC_PLUGIN_LIST);
    ASSERT_TRUE(list);
    EXPECT_EQ(6, ListView_GetItemCount(list));
    OpenPage(L"Button Assignments");
    // The twelve buttons, the many plug-in's and the unterminated plug-in's three.
    EXPECT_EQ(12 + 10000 + 3, SendMessageW(ShownControl(IDC_ASSIGN_BUTTON), CB_GETCOUNT, 0, 0));
    Apply();
    EXPECT_EQ(Lines(kDefaultActions), SectionText("Actions"));
    EXPECT_TRUE(EditorRunning());
    Cancel(true);
    EXPECT_TRUE(WaitEditorExit());
}

} // namespace cv2test
