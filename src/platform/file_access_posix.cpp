#include "platform/file_access.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/write_fault.h"
#include "store/paths.h"
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

// A host file name back as wide text. Bytes that are not valid UTF-8 are taken one by one as
// Latin-1 characters; such a name then does not lead back to its file, and the file is skipped
// by whoever tries to open it.
std::wstring WideName(const char* name) {
    std::wstring wide;
    const unsigned char* p = reinterpret_cast<const unsigned char*>(name);
    while (*p) {
        const unsigned lead = *p;
        const int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
        unsigned value = extra == 3 ? lead & 0x07 : extra == 2 ? lead & 0x0F : lead & 0x1F;
        int i = 1;
        for (; extra > 0 && i <= extra && (p[i] & 0xC0) == 0x80; ++i)
            value = (value << 6) | (p[i] & 0x3F);
        if (extra == 0 || i <= extra) {
            wide += static_cast<wchar_t>(lead);
            ++p;
        } else {
            wide += static_cast<wchar_t>(value);
            p += extra + 1;
        }
    }
    return wide;
}

enum class EntryKind { Folder, File, Other };

// Symbolic links are not followed: a link is removed as a link, never what it points to.
EntryKind KindOf(const std::string& hostPath, bool followLinks) {
    struct stat st;
    const int got = followLinks ? ::stat(hostPath.c_str(), &st) : ::lstat(hostPath.c_str(), &st);
    if (got != 0)
        return EntryKind::Other;
    return S_ISDIR(st.st_mode) ? EntryKind::Folder : EntryKind::File;
}

struct FolderEntry {
    std::wstring name;
    EntryKind kind;
};

// Every entry of the folder but "." and "..", read completely before anyone changes the folder.
std::vector<FolderEntry> Entries(const std::wstring& folder, bool followLinks) {
    std::vector<FolderEntry> entries;
    const std::string host = HostPath(FolderWithSlash(folder));
    DIR* dir = ::opendir(host.c_str());
    if (!dir)
        return entries;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            entries.push_back({WideName(entry->d_name), KindOf(host + name, followLinks)});
    }
    ::closedir(dir);
    return entries;
}

} // namespace

std::vector<std::wstring> ListSubfolders(const std::wstring& folder) {
    std::vector<std::wstring> names;
    for (const FolderEntry& e : Entries(folder, true)) {
        if (e.kind == EntryKind::Folder)
            names.push_back(e.name);
    }
    return names;
}

std::vector<std::wstring> ListFiles(const std::wstring& folder, const std::wstring& pattern) {
    std::vector<std::wstring> names;
    for (const FolderEntry& e : Entries(folder, true)) {
        if (e.kind == EntryKind::File && MatchesPattern(e.name, pattern))
            names.push_back(e.name);
    }
    return names;
}

bool RemoveFolderTree(const std::wstring& folder) {
    const std::wstring base = FolderWithSlash(folder);
    for (const FolderEntry& e : Entries(folder, false)) {
        if (e.kind == EntryKind::Folder)
            RemoveFolderTree(base + e.name);
        else
            ::unlink(HostPath(base + e.name).c_str());
    }
    return ::rmdir(HostPath(folder).c_str()) == 0;
}

uint32_t FileAttributes(const std::wstring& path) {
    uint32_t injected = 0;
    if (InjectedAttributesOf(path, injected))
        return injected;
    struct stat st;
    if (::stat(HostPath(path).c_str(), &st) != 0)
        return kNoFileAttributes;
    if (S_ISDIR(st.st_mode))
        return kAttributeFolder;
    // The Windows value of a plain file without other attributes.
    return 0x80;
}

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

bool RemoveFile(const std::wstring& path) {
    return ::unlink(HostPath(path).c_str()) == 0;
}

const char* TextLineEnd() {
    return "\n";
}

} // namespace cv2
