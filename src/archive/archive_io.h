// Where the zip code reads an archive from and where it puts bytes: small seams, so the same
// reader works on a file, on bytes in memory (tests, fuzzing) and into a file or a counter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/file_access.h"

namespace cv2 {

// An archive's bytes, read at any offset.
class ArchiveSource {
  public:
    virtual ~ArchiveSource() = default;
    virtual uint64_t Size() const = 0;
    // Reads exactly `count` bytes at `offset`; false when the source ends first or fails.
    virtual bool ReadAt(uint64_t offset, unsigned char* out, size_t count) = 0;
};

// Bytes held by the caller, which must outlive the source.
class MemorySource : public ArchiveSource {
  public:
    MemorySource(const unsigned char* data, size_t size) : m_data(data), m_size(size) {}
    uint64_t Size() const override { return m_size; }
    bool ReadAt(uint64_t offset, unsigned char* out, size_t count) override;

  private:
    const unsigned char* m_data;
    size_t m_size;
};

// A file on disk, read piece by piece: only what is asked for is ever in memory.
class FileSource : public ArchiveSource {
  public:
    // False when the file cannot be opened.
    bool Open(const std::wstring& path) { return m_file.Open(path); }
    uint64_t Size() const override { return m_file.Size(); }
    bool ReadAt(uint64_t offset, unsigned char* out, size_t count) override {
        return m_file.ReadAt(offset, out, count);
    }

  private:
    InputFile m_file;
};

// Takes bytes in order, piece by piece.
class ArchiveSink {
  public:
    virtual ~ArchiveSink() = default;
    // False when the bytes could not be taken; nothing more is then written.
    virtual bool Write(const unsigned char* data, size_t count) = 0;
};

// Writes into an OutputFile the caller has created and closes.
class FileSink : public ArchiveSink {
  public:
    explicit FileSink(OutputFile& file) : m_file(file) {}
    bool Write(const unsigned char* data, size_t count) override {
        return count == 0 || m_file.Write(data, count);
    }

  private:
    OutputFile& m_file;
};

// Writes into a ReplacingFile, which the caller opens and commits.
class ReplacingSink : public ArchiveSink {
  public:
    explicit ReplacingSink(ReplacingFile& file) : m_file(file) {}
    bool Write(const unsigned char* data, size_t count) override {
        return m_file.Write(data, count);
    }

  private:
    ReplacingFile& m_file;
};

} // namespace cv2
