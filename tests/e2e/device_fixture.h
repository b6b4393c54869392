// A scratch device folder holding a copy of the real CV2Settings.exe, with the test bar
// started on demand. Tests drive the program from this separate process.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cv2test {

class DeviceFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Path of a file in the scratch device folder.
    std::wstring File(const std::wstring& name) const { return m_dir + name; }
    void WriteText(const std::wstring& name, const std::string& bytes) const;
    std::string ReadText(const std::wstring& name) const;
    bool Exists(const std::wstring& name) const;

    // Starts the test bar, logging to bar.log (outside the device folder), and waits for it.
    void StartBar();
    void StopBar();
    std::string BarLog() const;

    // Runs the program with these arguments and waits for it to exit; returns its exit code.
    DWORD RunEditor(const std::wstring& arguments, DWORD timeoutMs = 30000);
    // The same, with what the program writes to standard error in `errors`.
    DWORD RunEditor(const std::wstring& arguments, std::string& errors, DWORD timeoutMs = 30000);

    // Starts the interactive editor with these arguments and waits for its main window
    // ("CorvaneSettings").
    HWND StartEditor(const std::wstring& arguments = L"");
    // Waits for the editor started by StartEditor to end; false on time-out (it is then killed).
    bool WaitEditorExit(DWORD timeoutMs = 20000);
    bool EditorRunning() const;
    // Opens the page menu with a tap on the header strip and picks item `index` with the keys.
    void SelectPage(int index);
    // Taps the right end of the header strip; the page menu window, or null if none opened.
    HWND TapHeader();
    // The page menu window while it is open, else null.
    static HWND OpenMenu();
    // The names of the main window's pages in menu order, from the same page list the program
    // uses (the other process's menu cannot be read from here).
    static std::vector<std::wstring> MainPageNames();
    // "prefix-NN-name" with the name's letters and digits only, for screenshot files.
    static std::wstring ScreenshotName(const std::wstring& prefix, int index,
                                       const std::wstring& name);
    // Presses My Theme's "Customize" once it is enabled (the custom theme is selected) and waits
    // for the theme editor; its dialog, or null when none opened.
    HWND OpenThemeEditor();
    // Picks page `index` of the theme editor's page menu with a tap on its header strip and the
    // keys (which pass over the menu's separator by themselves).
    static void SelectEditorPage(HWND editor, int index);
    // Where the editor page titled `title` stands in the page menu; -1 for none.
    static int EditorPageIndex(const wchar_t* title);
    // Presses the menu bar's Apply (synchronous: config.ini is written when it returns).
    void Apply();
    // Presses Cancel (or Escape when `escape`) and answers the confirmation with Yes or No.
    void Cancel(bool answerYes, bool escape = false);
    // Top-level windows of a class in this window station.
    static int CountWindows(const wchar_t* className);
    // The first visible child of the main window of that class; null if none.
    HWND VisibleChild(const wchar_t* className, int nth = 0) const;
    // The shown page's control of that id (hidden pages may have controls of the same id).
    HWND ShownControl(int id) const;
    // The lines of one section of config.ini as written, from its header to the blank line
    // after it; "<missing>" when there is no such section.
    std::string SectionText(const std::string& name) const;

    // Waits until `condition` holds, up to `timeoutMs`; returns whether it held.
    template <class F> static bool WaitFor(F condition, DWORD timeoutMs = 10000) {
        for (DWORD waited = 0; waited < timeoutMs; waited += 20) {
            if (condition())
                return true;
            Sleep(20);
        }
        return condition();
    }

    // The text with the platform's line ends.
    static std::string Lines(const std::string& text);

    std::wstring m_dir;     // scratch device folder, ends in a backslash
    std::wstring m_logPath; // the test bar's log
    PROCESS_INFORMATION m_bar{};
    PROCESS_INFORMATION m_editor{};
    HWND m_main = nullptr; // the editor's main window
};

} // namespace cv2test
