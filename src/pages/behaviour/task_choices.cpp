#include "pages/behaviour/task_choices.h"

#include <algorithm>

#include "pages/behaviour/rule_list.h"
#include "store/ini_document.h"

namespace cv2 {
namespace {

// Window classes of the shell and of the bar, which are never offered as tasks.
const wchar_t* const kShellClasses[] = {
    L"HHTaskbar",     L"Corvane_FullBar", L"DesktopExplorerWindow", L"Progman",
    L"Shell_TrayWnd", L"MS_SIPBUTTON",    L"SipWndClass",           L"CorvaneSettings",
};

bool IsShellClass(const std::wstring& className) {
    for (const wchar_t* shell : kShellClasses) {
        if (EqualsNoCase(className.c_str(), shell))
            return true;
    }
    return false;
}

std::wstring FileNameOf(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

// Sorts as the lists do and keeps one of each text that compares equal.
std::vector<std::wstring> SortedOnce(std::vector<std::wstring> texts) {
    std::stable_sort(texts.begin(), texts.end(), [](const std::wstring& a, const std::wstring& b) {
        return CompareListText(a, b) < 0;
    });
    texts.erase(std::unique(texts.begin(), texts.end(),
                            [](const std::wstring& a, const std::wstring& b) {
                                return CompareListText(a, b) == 0;
                            }),
                texts.end());
    return texts;
}

} // namespace

bool IsApplicationWindow(const TopWindowInfo& window) {
    return window.visible && !window.owned && !window.toolWindow && !window.title.empty() &&
           !IsShellClass(window.className);
}

std::vector<std::wstring> WindowTitleChoices(const std::vector<TopWindowInfo>& windows) {
    std::vector<std::wstring> titles;
    for (const TopWindowInfo& w : windows) {
        if (IsApplicationWindow(w))
            titles.push_back(w.title);
    }
    return SortedOnce(titles);
}

std::vector<std::wstring> ProcessNameChoices(const std::vector<TopWindowInfo>& windows,
                                             const std::vector<ProcessInfo>& processes) {
    std::vector<std::wstring> names;
    for (const ProcessInfo& p : processes) {
        const bool hasWindow =
            std::any_of(windows.begin(), windows.end(), [&p](const TopWindowInfo& w) {
                return w.processId == p.processId && IsApplicationWindow(w);
            });
        const std::wstring name = FileNameOf(p.exeFile);
        if (hasWindow && !name.empty())
            names.push_back(name);
    }
    return SortedOnce(names);
}

} // namespace cv2
