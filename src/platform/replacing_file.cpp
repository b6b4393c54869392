// The replacing write and temporary folders, built on the two file-access forms' primitives.
#include "platform/file_access.h"

#include "platform/write_fault.h"
#include "store/paths.h"

namespace cv2 {

ReplacingFile::ReplacingFile(const std::wstring& path) : m_path(path), m_temp(path + L".tmp~") {}

ReplacingFile::~ReplacingFile() {
    Discard();
}

// A temporary file left by an earlier write that was cut short is written over.
bool ReplacingFile::Open() {
    m_open = m_file.Create(m_temp, true);
    m_failure = m_file.Failure();
    return m_open; // when it could not be made, whatever is at the temporary path stays
}

bool ReplacingFile::Write(const unsigned char* data, size_t count) {
    if (!m_open)
        return false;
    if (count == 0 || m_file.Write(data, count))
        return true;
    m_failure = m_file.Failure();
    Discard();
    return false;
}

bool ReplacingFile::Commit() {
    if (!m_open)
        return false;
    m_open = false;
    bool ok = m_file.Close(true);
    m_failure = m_file.Failure();
    ok = ok && RunWriteStep(
                   WriteStep::Replace, m_failure, [&] { return ReplaceFileWith(m_temp, m_path); },
                   [] { return LastFileError(); });
    if (!ok)
        RemoveFile(m_temp);
    return ok;
}

const WriteFailure& ReplacingFile::Failure() const {
    return m_failure;
}

void ReplacingFile::Discard() {
    if (!m_open)
        return;
    m_open = false;
    m_file.Close(false);
    RemoveFile(m_temp);
}

bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes, WriteFailure* failure) {
    ReplacingFile file(path);
    const bool ok = file.Open() && file.Write(bytes.data(), bytes.size()) && file.Commit();
    if (failure)
        *failure = file.Failure();
    return ok;
}

std::wstring MakeTempFolder(const std::wstring& parent, const std::wstring& prefix) {
    constexpr int kMostTries = 1000;
    const std::wstring base = FolderWithSlash(parent) + prefix;
    for (int n = 1; n <= kMostTries; ++n) {
        const std::wstring path = base + std::to_wstring(n);
        if (MakeFolder(path))
            return path + L"\\";
        if (FileAttributes(path) == kNoFileAttributes)
            return std::wstring(); // not taken, yet it cannot be made: the parent is unusable
    }
    return std::wstring();
}

} // namespace cv2
