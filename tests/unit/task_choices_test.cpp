// What the list picker offers from the running windows and processes.
#include "pages/behaviour/task_choices.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {
TopWindowInfo App(const wchar_t* title, unsigned long pid, const wchar_t* cls = L"AppClass") {
    TopWindowInfo w;
    w.title = title;
    w.className = cls;
    w.processId = pid;
    w.visible = true;
    return w;
}
} // namespace

TEST(TaskChoices, OffersVisibleUnownedTitledWindowsSorted) {
    std::vector<TopWindowInfo> windows = {App(L"Notes", 1), App(L"calendar", 2), App(L"", 3)};
    TopWindowInfo hidden = App(L"Hidden", 4);
    hidden.visible = false;
    TopWindowInfo dialog = App(L"Dialog", 5);
    dialog.owned = true;
    TopWindowInfo tool = App(L"Palette", 6);
    tool.toolWindow = true;
    windows.push_back(hidden);
    windows.push_back(dialog);
    windows.push_back(tool);
    EXPECT_EQ(WindowTitleChoices(windows), (std::vector<std::wstring>{L"calendar", L"Notes"}));
}

TEST(TaskChoices, LeavesOutTheShellTheBarAndThisEditor) {
    std::vector<TopWindowInfo> windows = {
        App(L"Taskbar", 1, L"HHTaskbar"), App(L"Bar", 1, L"corvane_fullbar"),
        App(L"Desktop", 1, L"DesktopExplorerWindow"),
        App(L"Corvane 2 Settings", 9, L"CorvaneSettings"), App(L"Word", 2)};
    EXPECT_EQ(WindowTitleChoices(windows), (std::vector<std::wstring>{L"Word"}));
}

TEST(TaskChoices, EachTitleIsOfferedOnce) {
    std::vector<TopWindowInfo> windows = {App(L"Inbox", 1), App(L"Inbox", 2), App(L"INBOX", 3)};
    EXPECT_EQ(WindowTitleChoices(windows).size(), 1u);
}

TEST(TaskChoices, ProcessNamesComeFromProcessesWithApplicationWindows) {
    std::vector<TopWindowInfo> windows = {App(L"Word", 10), App(L"Taskbar", 11, L"HHTaskbar")};
    std::vector<ProcessInfo> processes = {{10, L"\\Windows\\pword.exe"},
                                          {11, L"shell32.exe"},
                                          {12, L"device.exe"},
                                          {13, L"C:\\Apps\\tmail.exe"}};
    windows.push_back(App(L"Mail", 13));
    windows.push_back(App(L"Second Mail", 13));
    EXPECT_EQ(ProcessNameChoices(windows, processes),
              (std::vector<std::wstring>{L"pword.exe", L"tmail.exe"}));
}
