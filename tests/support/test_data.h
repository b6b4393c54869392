// Files of the source tree's tests/data folder, read by the Windows test layers through the
// drive under which Wine shows the machine's root.
#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace cv2test {

// The whole file `name` (a path below tests/data, with "/"); empty when it cannot be read.
inline std::string TestDataText(const std::string& name) {
    std::string folder = __FILE__;
    folder = folder.substr(0, folder.find_last_of("/\\") + 1) + "../data/";
    std::string path = folder + name;
    if (!path.empty() && path[0] == '/')
        path = "Z:" + path;
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

} // namespace cv2test
