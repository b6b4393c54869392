// Timing pieces shared by the benchmarks.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

namespace cv2bench {

// Seconds on the performance counter.
inline double Now() {
    static LARGE_INTEGER frequency = {};
    if (!frequency.QuadPart)
        QueryPerformanceFrequency(&frequency);
    LARGE_INTEGER t;
    QueryPerformanceCounter(&t);
    return static_cast<double>(t.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// The middle value (the upper one of an even count); 0 for none.
inline double Median(std::vector<double> v) {
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace cv2bench
