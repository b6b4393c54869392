// Reads zip archives from strangers: every record is bounds-checked, every limit is checked on
// the whole archive before a single entry is unpacked, and every entry's CRC-32 while it is.
// Entries are unpacked piece by piece, so memory stays small whatever their size.
//
//     FileSource source;
//     ZipReader reader;
//     if (!source.Open(path) || !reader.Open(source).Ok()) ...
//     for (const ZipEntry& e : reader.Entries()) reader.Extract(e, sink);
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "archive/archive_io.h"
#include "archive/zip_problem.h"

namespace cv2 {

// What an archive may hold. The defaults are those of theme packages.
struct ZipLimits {
    size_t maxEntries = 5000;
    uint64_t maxTotalSize = 64ull << 20; // unpacked, all entries together
    uint32_t maxRatio = 200;             // unpacked size over packed size, per entry
    // Entries that unpack to no more than this are not held to maxRatio: a theme's flat-colour
    // bitmaps deflate far beyond 200 to 1 (a 480x640 one of a single colour by about 1,000 to
    // 1), and the total size still bounds what such entries can write.
    uint32_t ratioCheckedAbove = 4u << 20;
    size_t maxNameChars = 259;
};

struct ZipEntry {
    std::wstring name; // parts joined with '/', no trailing separator
    bool folder = false;
    uint16_t method = 0; // stored or deflated
    uint32_t crc = 0;
    uint32_t packedSize = 0;
    uint32_t size = 0;
    uint64_t headerOffset = 0; // of its local header
    uint64_t dataOffset = 0;   // of its packed bytes
};

class ZipReader {
  public:
    ZipReader();
    ~ZipReader();
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    // Reads the central directory and every local header of `source` (which must outlive the
    // reader) and checks them: the limits, the names, the records against each other. Nothing
    // is unpacked. On a problem the entries are empty.
    ZipResult Open(ArchiveSource& source, const ZipLimits& limits = ZipLimits());
    const std::vector<ZipEntry>& Entries() const { return m_entries; }

    // Unpacks one entry of the opened archive into `sink`, piece by piece, and checks that it
    // gives exactly its size and that its CRC-32 matches. A folder gives nothing.
    ZipResult Extract(const ZipEntry& entry, ArchiveSink& sink);

  private:
    struct Directory;
    ZipResult ReadEnd(const ZipLimits& limits, Directory& dir);
    ZipResult ReadDirectory(const ZipLimits& limits, const Directory& dir);
    ZipResult ReadLocalHeaders(const std::vector<std::string>& rawNames, uint64_t directoryOffset);
    ZipResult CopyStored(const ZipEntry& entry, ArchiveSink& sink, uint32_t& crc);
    ZipResult Inflate(const ZipEntry& entry, ArchiveSink& sink, uint32_t& crc);

    ArchiveSource* m_source = nullptr;
    std::vector<ZipEntry> m_entries;
    std::vector<unsigned char> m_in;  // packed bytes, one piece at a time
    std::vector<unsigned char> m_out; // unpacked bytes, one piece at a time
};

} // namespace cv2
