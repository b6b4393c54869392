// Driving the real program from the benchmark's own process, as a user would: starting it in a
// scratch device folder, waiting for its windows to be painted, opening the theme editor and
// switching pages through the page menu. Every wait ends once the program has answered and has
// nothing left to paint; none of Wine's waits for a window manager is counted (the private prefix
// lets Wine manage no window).
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace cv2bench {

// The folder of this benchmark's executable, with a trailing backslash.
std::wstring ThisFolder();

// A scratch device folder: a copy of the program, the sample device's theme with its pictures,
// a config.ini whose custom theme uses those pictures (so the editor's previews have something
// to show), and `themes` generated theme folders of one ".skin" each.
class DeviceFolder {
  public:
    DeviceFolder(const std::wstring& program, const std::wstring& sampleDevice, int themes);
    ~DeviceFolder();
    DeviceFolder(const DeviceFolder&) = delete;
    DeviceFolder& operator=(const DeviceFolder&) = delete;

    std::wstring Program() const { return m_dir + L"CV2Settings.exe"; }
    std::wstring Themes() const { return m_dir + L"Themes\\"; }

  private:
    std::wstring m_dir;
};

// Seconds to list the sub-folders of `themes` and open and close every ".skin" in them: what
// any listing of the themes costs before it reads a byte.
double ListAndOpenSeconds(const std::wstring& themes);

// A started program, ended (terminated) on destruction.
class Started {
  public:
    Started(const std::wstring& program, const std::wstring& arguments = L"");
    ~Started();
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;

    bool Ok() const { return m_pi.hProcess != nullptr; }
    double StartTime() const { return m_start; }
    DWORD Id() const { return m_pi.dwProcessId; }
    // Peak private bytes so far, in MB.
    double PeakPrivateMb() const;

  private:
    PROCESS_INFORMATION m_pi = {};
    double m_start = 0;
};

// A visible top-level window of the class owned by the process, once it has nothing left to
// paint; null after 30 s.
HWND WaitPainted(const wchar_t* className, DWORD processId);

// Until the window, its visible children and any open menu are painted and the program has
// answered; false after 30 s.
bool WaitIdle(HWND window);

// Until the main window's theme list holds `rows` rows and has painted them; false after 30 s.
bool WaitListed(HWND main, LRESULT rows);

// Until `window` has a child of that id (the last page's control: every page is made); false
// after 30 s.
bool WaitChild(HWND window, int id);

// Selects the custom theme and presses Customize; the editor dialog once painted (null on
// failure), with the seconds from the press to its painted first page in `took`.
HWND OpenEditor(HWND main, DWORD processId, double& took);
// Cancels the editor and waits for it to close.
void CloseEditor(HWND editor);

// Taps the header strip of `host`, picks page `index` from the page menu with the keys and
// returns the seconds from the pick to the new page painted; negative on failure.
double SwitchPage(HWND host, int index);

// The display names of the main window's and the editor's pages, in menu order.
std::vector<std::wstring> MainPageNames();
std::vector<std::wstring> EditorPageNames();

// One measure over several starts, in seconds (or MB).
struct Samples {
    std::vector<double> values;
    double Median() const;
    double Lowest() const;
    double Highest() const;
};

// What the benchmarks of the real program take on their command line: the number of starts
// (9 unless given) and the program (the device folder's unless given), with the device folder
// whose sample theme the scratch folders copy.
struct Arguments {
    int starts = 9;
    std::wstring program;
    std::wstring device;
};
Arguments ReadArguments(int argc, char** argv);

// Starts the minimal program (beside this benchmark) once and adds the seconds to its first
// paint to `painted`, with its peak private memory when asked; false if it did not paint.
bool StartMinimal(Samples& painted, Samples* memory = nullptr);
// The first paint of the minimal program over `starts` starts, after one that warms Wine and the
// file cache; with its peak private memory when asked.
Samples MinimalFirstPaint(int starts, Samples* memory = nullptr);

} // namespace cv2bench
