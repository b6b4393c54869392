#include "platform/file_access.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/write_fault.h"
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

bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes, WriteFailure* failure) {
    WriteFailure local;
    WriteFailure& f = failure ? *failure : local;
    f = WriteFailure{};
    const std::string target = HostPath(path);
    const std::string temp = target + ".tmp~";
    const auto lastError = [] { return static_cast<unsigned long>(errno); };
    FILE* file = nullptr;
    if (!RunWriteStep(
            WriteStep::CreateTemporary, f,
            [&] { return (file = std::fopen(temp.c_str(), "wb")) != nullptr; }, lastError))
        return false; // nothing of ours to clean up: whatever is at the temporary path stays
    bool ok = RunWriteStep(
        WriteStep::Write, f,
        [&] {
            return bytes.empty() ||
                   std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
        },
        lastError);
    ok = ok && RunWriteStep(
                   WriteStep::Flush, f, [&] { return std::fflush(file) == 0; }, lastError);
    const bool closed = std::fclose(file) == 0; // closed whatever happened before
    ok = ok && RunWriteStep(
                   WriteStep::Close, f, [&] { return closed; }, lastError);
    ok = ok && RunWriteStep(
                   WriteStep::Replace, f,
                   [&] { return std::rename(temp.c_str(), target.c_str()) == 0; }, lastError);
    if (!ok)
        std::remove(temp.c_str());
    return ok;
}

bool FileExists(const std::wstring& path) {
    struct stat st;
    return ::stat(HostPath(path).c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool RemoveFile(const std::wstring& path) { return ::unlink(HostPath(path).c_str()) == 0; }

const char* TextLineEnd() { return "\n"; }

} // namespace cv2
