// What is running: the top-level windows and the processes of the system, as plain records so
// that the choice of what to offer the user can be made (and tested) without a window station.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

struct TopWindowInfo {
    std::wstring title;
    std::wstring className;
    unsigned long processId = 0;
    bool visible = false;
    bool owned = false;      // has an owner window (a dialog or pop-up of another window)
    bool toolWindow = false; // a floating tool bar or similar, never shown as a task
};

struct ProcessInfo {
    unsigned long processId = 0;
    std::wstring exeFile; // as the process snapshot names it (a bare name or a path)
};

// Every top-level window, in z-order.
std::vector<TopWindowInfo> ListTopWindows();
// One snapshot of the running processes; empty when no snapshot can be taken.
std::vector<ProcessInfo> SnapshotProcesses();

} // namespace cv2
