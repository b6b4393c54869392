// What the list picker offers: the running applications, by window title or by process name.
#pragma once

#include <string>
#include <vector>

#include "platform/running_tasks.h"

namespace cv2 {

// True for the window of a running application: visible, unowned, not a tool window, titled,
// and not one of the shell's own windows (task bar, desktop, input panel, this editor).
bool IsApplicationWindow(const TopWindowInfo& window);

// The titles of the application windows, sorted, each once.
std::vector<std::wstring> WindowTitleChoices(const std::vector<TopWindowInfo>& windows);

// The file names (without folder) of the processes that own application windows, sorted, each
// once without regard to case.
std::vector<std::wstring> ProcessNameChoices(const std::vector<TopWindowInfo>& windows,
                                             const std::vector<ProcessInfo>& processes);

} // namespace cv2
