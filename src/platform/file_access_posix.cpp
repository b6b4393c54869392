#include "platform/file_access.h"

#include <cstdio>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "store/text_codec.h"

namespace cv2 {
namespace {

// Device paths use '\'; the host file system wants '/'. Non-ASCII characters go out as UTF-8,
// which is what Linux file names are in practice.
std::string HostPath(const std::wstring& path) {
    std::wstring slashed = path;
    for (wchar_t& c : slashed) {
        if (c == L'\\')
            c = L'/';
    }
    return EncodeUtf8(slashed);
}

} // namespace

bool ReadWholeFile(const std::wstring& path, Bytes& out) {
    out.clear();
    FILE* f = std::fopen(HostPath(path).c_str(), "rb");
    if (!f)
        return false;
    unsigned char chunk[16384];
    size_t n;
    while ((n = std::fread(chunk, 1, sizeof chunk, f)) > 0)
        out.insert(out.end(), chunk, chunk + n);
    bool ok = !std::ferror(f);
    std::fclose(f);
    return ok;
}

bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes) {
    const std::string target = HostPath(path);
    const std::string temp = target + ".tmp~";
    FILE* f = std::fopen(temp.c_str(), "wb");
    if (!f)
        return false;
    bool ok = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
    ok = (std::fflush(f) == 0) && ok;
    ok = (std::fclose(f) == 0) && ok;
    if (ok && std::rename(temp.c_str(), target.c_str()) == 0)
        return true;
    std::remove(temp.c_str());
    return false;
}

bool FileExists(const std::wstring& path) {
    struct stat st;
    return ::stat(HostPath(path).c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool RemoveFile(const std::wstring& path) { return ::unlink(HostPath(path).c_str()) == 0; }

const char* TextLineEnd() { return "\n"; }

} // namespace cv2
