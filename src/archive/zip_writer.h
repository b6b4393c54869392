// Writes zip archives that any unzip reads: stored or deflated entries (deflated only when that
// is smaller), each with its CRC-32 and sizes in its local header, then the central directory.
// Names that are not ASCII are stored as UTF-8 and flagged so. One entry is in memory at a time.
//
//     ReplacingFile file(path);
//     ReplacingSink sink(file);
//     ZipWriter zip(sink, DosTimeStamp(std::time(nullptr)));
//     ok = file.Open() && zip.AddFolder(L"Theme") && zip.AddFile(L"Theme/a.skin", ...) &&
//          zip.Finish() && file.Commit();
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

#include "archive/archive_io.h"

namespace cv2 {

// A time as zip stores it: DOS time in the low 16 bits, DOS date in the high 16 bits, in the
// machine's local time (years before 1980 become 1980).
uint32_t DosTimeStamp(std::time_t when);

class ZipWriter {
  public:
    ZipWriter(ArchiveSink& sink, uint32_t dosTimeStamp);

    // `name`'s parts are joined with '/'. False once anything could not be written; every
    // later call then fails too.
    bool AddFolder(const std::wstring& name);
    bool AddFile(const std::wstring& name, const unsigned char* data, size_t size);
    // Writes the central directory and the end record.
    bool Finish();

  private:
    struct Written {
        std::string name;
        uint16_t flags;
        uint16_t method;
        uint32_t crc;
        uint32_t packedSize;
        uint32_t size;
        uint32_t offset;
        bool folder;
    };
    static void PutShared(std::string& out, const Written& e, uint32_t stamp);
    bool Add(Written entry, const unsigned char* data);
    bool Put(const std::string& bytes);
    bool Put(const unsigned char* data, size_t size);

    ArchiveSink& m_sink;
    uint32_t m_stamp;
    uint64_t m_offset = 0;
    bool m_failed = false;
    std::vector<Written> m_entries;
};

} // namespace cv2
