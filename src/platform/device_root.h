// The top of the file browser's folder tree, "My Device".
//
// The device has one folder tree rooted at "\": "My Device" is that folder, it shows the files
// and sub-folders of "\", and paths read "\Windows\Start Menu". Desktop Windows has no such root
// ("\" only means the root of the current drive), so here the drives stand in for the root's
// sub-folders: "My Device" holds "C:", "D:", ..., shows no files of its own, and paths start with
// the drive letter ("C:\Windows"). The browser builds paths from the names in the tree either
// way; only what lies directly under "My Device" comes from here.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

// The names of the folders directly under "My Device": the drives ("C:") on the desktop.
std::vector<std::wstring> MyDeviceFolders();

// The folder whose files "My Device" itself shows: "\" on the device; empty on the desktop,
// where "My Device" has no files.
std::wstring MyDeviceFiles();

// A path whose shell icon stands for "My Device": "\" on the device, the system drive's root
// on the desktop.
std::wstring MyDeviceIconPath();

} // namespace cv2
