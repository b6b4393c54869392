// Device folders of the kind people collect: many themes, and theme files from strangers that
// are huge, binary, deeply nested or oddly named. Tests point the program at them and check it
// neither crashes nor hangs. CV2_HOSTILE=full makes them at full size (minutes); the default is
// a size that keeps the test run short.
#pragma once

#include <string>
#include <vector>

namespace cv2test {

struct HostileScale {
    int themes;          // ordinary theme folders
    size_t bigSkinBytes; // one theme file of about this size
    int manySections;    // one theme file with this many sections
    int nestDepth;       // folders nested this deep inside one theme folder
};

// The full size with CV2_HOSTILE=full in the environment, else the quick size.
HostileScale HostileScaleFromEnvironment();

// Fills `device` (ending in a backslash) with "Themes\..." of every hostile kind and returns
// the theme files made, relative to `device`.
std::vector<std::wstring> MakeHostileThemes(const std::wstring& device, const HostileScale& scale);

// Removes "Themes\" of `device` again, long names and deep folders included.
void RemoveHostileThemes(const std::wstring& device);

} // namespace cv2test
