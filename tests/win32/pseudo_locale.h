// The pseudo-locale localisation module the build makes for the tests: every text of the string
// table in brackets, made longer by a run of tildes, as many translations run longer than English.
#pragma once

#include <cstdlib>
#include <cstring>
#include <string>

namespace cv2test {

// Where the module is, from CV2_PSEUDO_LANGUAGE; empty when it is not set.
inline std::wstring PseudoModulePath() {
    const char* path = std::getenv("CV2_PSEUDO_LANGUAGE");
    return path ? std::wstring(path, path + std::strlen(path)) : std::wstring();
}

} // namespace cv2test
