// Installing a theme package against Debian's unzip, natively, in one run: a package of 200
// pictures of about 5 MB is installed into a fresh themes folder and unpacked by unzip into a
// fresh folder beside it, each several times, and the fastest times are printed with their
// ratio (unzip's time includes starting it). The heap the install holds at its peak is printed
// beside the package's and its largest picture's size, for that package and for one with a single
// 40 MB picture: memory follows one piece of one entry, not the archive. Build without sanitizers
// (see README).
#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "archive/zip_writer.h"
#include "platform/file_access.h"
#include "themes/theme_package.h"

namespace {

std::atomic<long long> g_live{0};
std::atomic<long long> g_peak{0};

double Now() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

// The smallest of several runs: the run least disturbed by the rest of the machine. `prepare`
// runs before each, untimed.
template <class P, class F> double Fastest(int runs, P prepare, F work) {
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        prepare();
        const double start = Now();
        work();
        best = std::min(best, Now() - start);
    }
    return best;
}

// Picture-like bytes: rows of a gradient with noise, which deflate to about half.
std::string Picture(size_t size, unsigned seed) {
    std::string bytes(size, '\0');
    for (size_t i = 0; i < size; ++i) {
        seed = seed * 1103515245u + 12345u;
        bytes[i] = static_cast<char>((i / 3 % 256) + ((seed >> 16) & 0x3F));
    }
    return bytes;
}

struct Package {
    std::string path;
    size_t bytes = 0;
    size_t largest = 0;
};

Package Write(const std::string& path, int pictures, size_t pictureSize) {
    cv2::ReplacingFile file(std::wstring(path.begin(), path.end()));
    cv2::ReplacingSink sink(file);
    cv2::ZipWriter zip(sink, cv2::DosTimeStamp(0));
    file.Open();
    const std::string skin = "[Skin Info]\r\nName=Bench\r\n";
    zip.AddFile(L"Bench/bench.skin", reinterpret_cast<const unsigned char*>(skin.data()),
                skin.size());
    for (int i = 0; i < pictures; ++i) {
        const std::string p = Picture(pictureSize, static_cast<unsigned>(i));
        zip.AddFile(L"Bench/p" + std::to_wstring(i) + L".bmp",
                    reinterpret_cast<const unsigned char*>(p.data()), p.size());
    }
    zip.Finish();
    file.Commit();
    Package made{path, 0, pictureSize};
    cv2::InputFile in;
    if (in.Open(std::wstring(path.begin(), path.end())))
        made.bytes = static_cast<size_t>(in.Size());
    return made;
}

std::wstring Wide(const std::string& s) {
    return std::wstring(s.begin(), s.end());
}

void Install(const Package& package, const std::string& themes) {
    const cv2::InstallResult r = cv2::InstallPackage(Wide(package.path), Wide(themes),
                                                     [](const std::wstring&) { return true; });
    if (r.problem != cv2::InstallProblem::None || r.installed.size() != 1) {
        std::printf("install failed\n");
        std::exit(1);
    }
}

void Unzip(const Package& package, const std::string& folder) {
    const std::string command = "/usr/bin/unzip -qo '" + package.path + "' -d '" + folder + "'";
    if (std::system(command.c_str()) != 0) {
        std::printf("unzip failed\n");
        std::exit(1);
    }
}

long long PeakDuringInstall(const Package& package, const std::string& themes) {
    cv2::RemoveFolderTree(Wide(themes));
    g_peak = g_live.load();
    const long long before = g_live;
    Install(package, themes);
    return g_peak - before;
}

} // namespace

void* operator new(size_t size) {
    void* p = std::malloc(size ? size : 1);
    if (!p)
        throw std::bad_alloc();
    const long long live = g_live += static_cast<long long>(malloc_usable_size(p));
    long long peak = g_peak;
    while (live > peak && !g_peak.compare_exchange_weak(peak, live)) {
    }
    return p;
}
void operator delete(void* p) noexcept {
    if (p)
        g_live -= static_cast<long long>(malloc_usable_size(p));
    std::free(p);
}
void operator delete(void* p, size_t) noexcept {
    operator delete(p);
}

int main() {
    const std::string base = "/tmp/cv2-package-bench";
    cv2::RemoveFolderTree(Wide(base));
    cv2::MakeFolder(Wide(base));
    const Package pictures = Write(base + "/pictures.zip", 200, 25 * 1024);
    const Package single = Write(base + "/single.zip", 1, 40u << 20);
    const int runs = 7;
    const std::string themes = base + "/Themes", unzipped = base + "/unzipped";
    const double ours = Fastest(
        runs, [&] { cv2::RemoveFolderTree(Wide(themes)); }, [&] { Install(pictures, themes); });
    const double unzip = Fastest(
        runs, [&] { cv2::RemoveFolderTree(Wide(unzipped)); }, [&] { Unzip(pictures, unzipped); });
    std::printf("package: %d pictures, %.2f MB\n", 200, pictures.bytes / 1048576.0);
    std::printf("install %.1f ms, unzip %.1f ms, ratio %.2f (fastest of %d)\n", ours * 1000,
                unzip * 1000, ours / unzip, runs);
    std::printf("heap at peak while installing (C++ allocations; zlib adds its fixed ~45 KB):\n");
    std::printf("  200 pictures: %lld KB (package %zu KB, largest picture %zu KB)\n",
                PeakDuringInstall(pictures, base + "/Themes") / 1024, pictures.bytes / 1024,
                pictures.largest / 1024);
    std::printf("  one picture:  %lld KB (package %zu KB, the picture %zu KB)\n",
                PeakDuringInstall(single, base + "/Themes") / 1024, single.bytes / 1024,
                single.largest / 1024);
    cv2::RemoveFolderTree(Wide(base));
    return 0;
}
