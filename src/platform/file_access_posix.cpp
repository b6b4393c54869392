#include "platform/file_access.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
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

InputFile::~InputFile() {
    if (m_handle >= 0)
        ::close(static_cast<int>(m_handle));
}

bool InputFile::Open(const std::wstring& path) {
    if (m_handle >= 0)
        ::close(static_cast<int>(m_handle));
    m_size = 0;
    const int fd = ::open(HostPath(path).c_str(), O_RDONLY | O_CLOEXEC);
    m_handle = fd;
    struct stat st;
    if (fd < 0 || ::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode))
        return false;
    m_size = static_cast<uint64_t>(st.st_size);
    return true;
}

bool InputFile::ReadAt(uint64_t offset, unsigned char* out, size_t count) {
    if (m_handle < 0 || offset > m_size || count > m_size - offset)
        return false;
    while (count > 0) {
        const ssize_t got =
            ::pread(static_cast<int>(m_handle), out, count, static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        out += got;
        offset += static_cast<uint64_t>(got);
        count -= static_cast<size_t>(got);
    }
    return true;
}

OutputFile::~OutputFile() {
    if (m_handle >= 0)
        ::close(static_cast<int>(m_handle));
}

bool OutputFile::Create(const std::wstring& path, bool replaceExisting) {
    m_failure = WriteFailure{};
    const std::string host = HostPath(path);
    const int mode = O_WRONLY | O_CREAT | O_CLOEXEC | (replaceExisting ? O_TRUNC : O_EXCL);
    return RunWriteStep(
        WriteStep::CreateTemporary, m_failure,
        [&] { return (m_handle = ::open(host.c_str(), mode, 0666)) >= 0; }, LastFileError);
}

bool OutputFile::Write(const unsigned char* data, size_t count) {
    return RunWriteStep(
        WriteStep::Write, m_failure,
        [&] {
            while (count > 0 && m_handle >= 0) {
                const ssize_t put = ::write(static_cast<int>(m_handle), data, count);
                if (put < 0 && errno == EINTR)
                    continue;
                if (put <= 0)
                    return false;
                data += put;
                count -= static_cast<size_t>(put);
            }
            return m_handle >= 0;
        },
        LastFileError);
}

bool OutputFile::Close(bool flush) {
    if (m_handle < 0)
        return false;
    // Every write() has already handed its bytes to the system, as fflush would; like the
    // earlier stdio form, no fsync is asked for.
    (void)flush;
    bool ok = RunWriteStep(
        WriteStep::Flush, m_failure, [] { return true; }, LastFileError);
    const bool closed = ::close(static_cast<int>(m_handle)) == 0; // closed whatever happened
    m_handle = -1;
    ok = ok && RunWriteStep(
                   WriteStep::Close, m_failure, [&] { return closed; }, LastFileError);
    return ok;
}

bool ReplaceFileWith(const std::wstring& temp, const std::wstring& path) {
    return std::rename(HostPath(temp).c_str(), HostPath(path).c_str()) == 0;
}

unsigned long LastFileError() {
    return static_cast<unsigned long>(errno);
}

bool MakeFolder(const std::wstring& path) {
    return ::mkdir(HostPath(path).c_str(), 0777) == 0;
}

// rename() would put a folder over an empty one; a taken name is refused first.
bool MoveFolder(const std::wstring& from, const std::wstring& to) {
    struct stat st;
    const std::string target = HostPath(to);
    if (::lstat(target.c_str(), &st) == 0)
        return false;
    return std::rename(HostPath(from).c_str(), target.c_str()) == 0;
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
