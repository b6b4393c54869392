// The page host behaviour of the main window, with recording pages on a real SettingsApp.
#include "app_fixture.h"

#include <algorithm>
#include <cstring>

#include "screen_capture.h"
#include "store/scale.h"
#include "ui/page_host.h"

namespace cv2test {
namespace {

std::vector<std::string> g_log;

// A page that records every operation the host calls, as "<name>:<operation>".
class RecordingPage : public cv2::SettingsPage {
  public:
    explicit RecordingPage(const char* tag, bool takesCommand = false)
        : SettingsPage(std::wstring(tag, tag + std::strlen(tag)).c_str()), m_tag(tag),
          m_takesCommand(takesCommand) {}
    ~RecordingPage() override { Log("Deleted"); }
    void Create(HWND host) override {
        Log("Create");
        m_host = host;
    }
    void Show(bool visible) override { Log(visible ? "Show1" : "Show0"); }
    void Save(cv2::IniDocument* target) override {
        Log(target ? "SaveInto" : "Save");
        SaveTarget(target).SetString(L"Pages", GetName(), L"saved");
    }
    void Load(cv2::IniDocument* doc) override {
        SettingsPage::Load(doc);
        Log("Load");
    }
    void OnActivate() override { Log("Activate" + std::to_string(IsActive())); }
    void OnDeactivate() override { Log("Deactivate" + std::to_string(IsActive())); }
    void OnDestroy() override { Log("Destroy"); }
    bool OnCommand(WPARAM wParam, LPARAM) override {
        Log("Command" + std::to_string(LOWORD(wParam)));
        return m_takesCommand;
    }
    LRESULT OnNotify(WPARAM, LPARAM) override {
        Log("Notify");
        return 1;
    }
    void OnHostShown() override { Log("HostShown"); }
    void OnSize(const RECT& r) override {
        Log("Size" + std::to_string(r.left) + "," + std::to_string(r.top) + "," +
            std::to_string(r.right) + "," + std::to_string(r.bottom));
    }

  private:
    void Log(const std::string& what) { g_log.push_back(m_tag + ":" + what); }
    std::string m_tag;
    bool m_takesCommand;
    HWND m_host = nullptr;
};

class PageHostTest : public AppFixture {
  protected:
    void SetUp() override { g_log.clear(); }
    cv2::SettingsApp& MakeThree() {
        return MakeApp({new RecordingPage("A"), new RecordingPage("B"), new RecordingPage("C")});
    }
    // The window as the user first meets it: painted, and every page made after that.
    cv2::SettingsApp& MakeThreeShown() {
        MakeThree();
        EXPECT_TRUE(PumpUntilEveryPageIsMade());
        return *m_app;
    }
    bool PumpUntilEveryPageIsMade() {
        return PumpUntil([&] { return m_app->Host().CreatedCount() == m_app->Host().PageCount(); });
    }
    UINT MenuState(int item) {
        return GetMenuState(m_app->Host().Menu(), static_cast<UINT>(item), MF_BYCOMMAND);
    }
    std::vector<std::string> Take() {
        auto out = g_log;
        g_log.clear();
        return out;
    }
};

using Log = std::vector<std::string>;

TEST_F(PageHostTest, OnlyTheFirstPageIsMadeBeforeTheWindowShowsAndIsShownFirst) {
    MakeThree();
    const Log log = Take();
    ASSERT_GE(log.size(), 2u);
    EXPECT_EQ(Log(log.begin(), log.begin() + 2), (Log{"A:Create", "A:Load"}));
    EXPECT_EQ(std::count(log.begin(), log.end(), "B:Create"), 0);
    EXPECT_EQ(std::count(log.begin(), log.end(), "C:Create"), 0);
    EXPECT_TRUE(IsWindowVisible(Main()));
    EXPECT_EQ(m_app->Host().Current(), m_app->Host().Page(0));
    EXPECT_TRUE(m_app->Host().Page(0)->IsActive());
}

TEST_F(PageHostTest, AfterTheFirstPaintTheShownPageHearsOfItBeforeTheOthersAreMadeInOrder) {
    MakeThree();
    Take();
    ASSERT_TRUE(PumpUntilEveryPageIsMade());
    Log log = Take();
    log.erase(std::remove_if(log.begin(), log.end(),
                             [](const std::string& s) { return s.find(":Size") != s.npos; }),
              log.end());
    EXPECT_EQ(log, (Log{"A:HostShown", "B:Create", "B:Load", "C:Create", "C:Load", "B:HostShown",
                        "C:HostShown"}));
}

TEST_F(PageHostTest, ShowingALaterPageBeforeThePaintMakesThePagesUpToItInOrder) {
    MakeThree();
    Take();
    m_app->SelectPage(2);
    EXPECT_EQ(Take(), (Log{"B:Create", "B:Load", "C:Create", "C:Load", "A:Deactivate1",
                           "C:Activate1", "A:Show0", "B:Show0", "C:Show1"}));
}

TEST_F(PageHostTest, ApplyBeforeThePaintMakesEveryPageAndSavesThemAll) {
    MakeThree();
    Take();
    m_app->Apply();
    EXPECT_EQ(Take(),
              (Log{"B:Create", "B:Load", "C:Create", "C:Load", "A:Save", "B:Save", "C:Save"}));
    EXPECT_EQ(ConfigText(), std::string("[Pages]\r\nA=saved\r\nB=saved\r\nC=saved\r\n\r\n"));
}

TEST_F(PageHostTest, CommandsAndNotificationsReachOnlyPagesThatHaveControls) {
    MakeThree();
    Take();
    SendMessageW(Main(), WM_COMMAND, 1234, 0);
    NMHDR hdr = {Main(), 1, 0};
    SendMessageW(Main(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&hdr));
    EXPECT_EQ(Take(), (Log{"A:Command1234", "A:Notify"}));
}

TEST_F(PageHostTest, PageMenuHasOneItemPerPageWithIdIndexPlusOne) {
    MakeThree();
    HMENU menu = m_app->Host().Menu();
    ASSERT_EQ(GetMenuItemCount(menu), 3);
    for (int i = 0; i < 3; ++i) {
        wchar_t text[16] = {};
        GetMenuStringW(menu, static_cast<UINT>(i + 1), text, 16, MF_BYCOMMAND);
        EXPECT_EQ(std::wstring(text), std::wstring(1, static_cast<wchar_t>(L'A' + i)));
    }
}

TEST_F(PageHostTest, SwitchDeactivatesTheOldPageBeforeActivatingTheNew) {
    MakeThreeShown();
    Take();
    m_app->SelectPage(2);
    EXPECT_EQ(Take(), (Log{"A:Deactivate1", "C:Activate1", "A:Show0", "B:Show0", "C:Show1"}));
    EXPECT_FALSE(m_app->Host().Page(0)->IsActive());
    EXPECT_TRUE(m_app->Host().Page(2)->IsActive());
}

TEST_F(PageHostTest, SelectingPageMovesTheRadioMark) {
    MakeThree();
    m_app->SelectPage(1);
    EXPECT_TRUE(MenuState(2) & MF_CHECKED);
    EXPECT_FALSE(MenuState(1) & MF_CHECKED);
    EXPECT_FALSE(MenuState(3) & MF_CHECKED);
}

TEST_F(PageHostTest, SelectingTheCurrentPageAgainChangesNothingButTheRadioMark) {
    MakeThree();
    m_app->SelectPage(1);
    CheckMenuRadioItem(m_app->Host().Menu(), 1, 3, 3, MF_BYCOMMAND);
    Take();
    m_app->SelectPage(1);
    EXPECT_TRUE(Take().empty());
    EXPECT_TRUE(MenuState(2) & MF_CHECKED);
    EXPECT_FALSE(MenuState(3) & MF_CHECKED);
}

TEST_F(PageHostTest, PageNeverSelectedStillSavesOnApply) {
    MakeThreeShown();
    Take();
    m_app->Apply();
    EXPECT_EQ(Take(), (Log{"A:Save", "B:Save", "C:Save"}));
    EXPECT_EQ(ConfigText(), std::string("[Pages]\r\nA=saved\r\nB=saved\r\nC=saved\r\n\r\n"));
}

TEST_F(PageHostTest, NullPageIsSkippedEverywhere) {
    MakeApp({new RecordingPage("A"), nullptr, new RecordingPage("C")});
    m_app->SelectPage(1); // the null page: nothing happens
    EXPECT_EQ(m_app->Host().Current(), m_app->Host().Page(0));
    m_app->SelectPage(2);
    m_app->Apply();
    SendMessageW(Main(), WM_COMMAND, 999, 0);
    m_app.reset();
    const Log log = Take();
    EXPECT_NE(std::find(log.begin(), log.end(), "C:Save"), log.end());
    EXPECT_EQ(log.back(), "C:Deleted");
}

TEST_F(PageHostTest, CommandIsOfferedInOrderUntilAPageTakesIt) {
    MakeApp({new RecordingPage("A"), new RecordingPage("B", true), new RecordingPage("C")});
    ASSERT_TRUE(PumpUntilEveryPageIsMade());
    Take();
    SendMessageW(Main(), WM_COMMAND, 1234, 0);
    EXPECT_EQ(Take(), (Log{"A:Command1234", "B:Command1234"}));
}

TEST_F(PageHostTest, NotifyGoesToEveryPage) {
    MakeThreeShown();
    Take();
    NMHDR hdr = {Main(), 1, 0};
    SendMessageW(Main(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&hdr));
    EXPECT_EQ(Take(), (Log{"A:Notify", "B:Notify", "C:Notify"}));
}

TEST_F(PageHostTest, SizeGivesEveryPageTheClientRectangle) {
    MakeThreeShown();
    Take();
    SendMessageW(Main(), WM_SIZE, SIZE_RESTORED, MAKELPARAM(200, 150));
    EXPECT_EQ(Take(), (Log{"A:Size0,0,200,150", "B:Size0,0,200,150", "C:Size0,0,200,150"}));
}

TEST_F(PageHostTest, WindowDestroyCallsEveryPageOnDestroy) {
    MakeThreeShown();
    Take();
    DestroyWindow(Main());
    EXPECT_EQ(Take(), (Log{"A:Destroy", "B:Destroy", "C:Destroy"}));
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)); // the loop would end
}

// --- The header strip's tap rule -------------------------------------------------------------

int g_menusOpened = 0;
HHOOK g_hook = nullptr;

LRESULT CALLBACK CountMenus(int code, WPARAM wParam, LPARAM lParam) {
    if (code >= 0 && reinterpret_cast<CWPSTRUCT*>(lParam)->message == WM_INITMENUPOPUP)
        ++g_menusOpened;
    return CallNextHookEx(g_hook, code, wParam, lParam);
}

class HeaderTapTest : public PageHostTest {
  protected:
    void SetUp() override {
        PageHostTest::SetUp();
        g_menusOpened = 0;
        g_hook = SetWindowsHookExW(WH_CALLWNDPROC, CountMenus, nullptr, GetCurrentThreadId());
    }
    void TearDown() override {
        UnhookWindowsHookEx(g_hook);
        PageHostTest::TearDown();
    }
    // Taps the window at (x, y); a menu that opens is closed again (or used by `inMenu`).
    void Tap(
        int x, int y, void (*inMenu)() = [] { EndMenu(); }) {
        RunInsideModalLoop(inMenu);
        SendMessageW(Main(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        RunInsideModalLoop(nullptr);
    }
    int Width() {
        RECT r;
        GetClientRect(Main(), &r);
        return r.right;
    }
};

TEST_F(HeaderTapTest, TapOnRightHalfOfHeaderOpensThePageMenu) {
    MakeThree();
    Tap(Width() - 2, 2);
    EXPECT_EQ(g_menusOpened, 1);
}

TEST_F(HeaderTapTest, TapOnLeftHalfOfHeaderDoesNothing) {
    MakeThree();
    Tap(Width() / 2 - 1, 2);
    EXPECT_EQ(g_menusOpened, 0);
}

TEST_F(HeaderTapTest, TapBelowTheHeaderStripDoesNothing) {
    MakeThree();
    Tap(Width() - 2, cv2::Scale(20));
    EXPECT_EQ(g_menusOpened, 0);
    Tap(Width() - 2, cv2::Scale(20) - 1);
    EXPECT_EQ(g_menusOpened, 1);
}

TEST_F(HeaderTapTest, ChoosingAPageFromTheMenuSelectsIt) {
    MakeThree();
    Tap(Width() - 2, 2, [] {
        HWND focus = GetFocus();
        for (int i = 0; i < 3; ++i)
            PostMessageW(focus, WM_KEYDOWN, VK_DOWN, 0);
        PostMessageW(focus, WM_KEYDOWN, VK_RETURN, 0);
    });
    EXPECT_EQ(m_app->Host().Current(), m_app->Host().Page(2));
}

// --- Apply's own behaviour ------------------------------------------------------------------

TEST_F(PageHostTest, ApplyKeepsTheEditorOpen) {
    MakeThree();
    SendMessageW(Main(), WM_COMMAND, 40001, 0);
    EXPECT_TRUE(IsWindow(Main()));
    EXPECT_NE(ConfigText().find("A=saved"), std::string::npos);
}

TEST_F(PageHostTest, EditBoxesAskingTheButtonColourGetTheWindowBrushWhenEnabled) {
    MakeThree();
    HWND edit =
        CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 10, 10, Main(), nullptr, nullptr, nullptr);
    HWND label = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, Main(), nullptr,
                                 nullptr, nullptr);
    HDC dc = GetDC(Main());
    const LRESULT brush = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    auto ask = [&](HWND control) {
        return SendMessageW(Main(), 0x135, reinterpret_cast<WPARAM>(dc),
                            reinterpret_cast<LPARAM>(control));
    };
    EXPECT_EQ(ask(edit), brush);
    EnableWindow(edit, FALSE);
    EXPECT_NE(ask(edit), brush);
    EXPECT_NE(ask(label), brush);
    ReleaseDC(Main(), dc);
}

} // namespace
} // namespace cv2test
