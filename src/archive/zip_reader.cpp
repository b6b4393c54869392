#include "archive/zip_reader.h"

#include <zlib.h>

#include <algorithm>
#include <unordered_set>

#include "archive/entry_names.h"
#include "archive/zip_records.h"
#include "store/ini_document.h"

namespace cv2 {

using namespace zip;

namespace {

constexpr size_t kPiece = 64 * 1024;
// A directory larger than this cannot be one of a package within the limits: 5,000 entries with
// the longest names and generous extra fields stay far below it.
constexpr uint64_t kMostDirectoryBytes = 8ull << 20;
// The longest name bytes that can still decode to a name within the length limit (four bytes
// per character in UTF-8).
constexpr size_t kBytesPerChar = 4;

ZipResult Problem(ZipProblem problem, const std::wstring& entry = std::wstring()) {
    return ZipResult{problem, entry};
}

// Every folder above `path` ("a/b/c" gives "a" and "a/b").
std::vector<std::wstring> Ancestors(const std::wstring& path) {
    std::vector<std::wstring> folders;
    for (size_t slash = path.find(L'/'); slash != std::wstring::npos;
         slash = path.find(L'/', slash + 1))
        folders.push_back(path.substr(0, slash));
    return folders;
}

// Finds two entries that would land on one file: the same name in another case, or a file where
// another entry needs a folder.
class NameClashes {
  public:
    bool Add(const std::wstring& path, bool folder) {
        const std::wstring key = Folded(path.c_str());
        for (const std::wstring& above : Ancestors(key)) {
            if (m_files.count(above))
                return false;
            m_folders.insert(above);
        }
        if (folder) {
            m_folders.insert(key);
            return m_files.count(key) == 0;
        }
        return m_folders.count(key) == 0 && m_files.insert(key).second;
    }

  private:
    std::unordered_set<std::wstring> m_files;
    std::unordered_set<std::wstring> m_folders;
};

// Ends an inflate stream however the unpacking ends.
struct InflateStream {
    z_stream z{};
    bool ready = false;
    InflateStream() { ready = inflateInit2(&z, -MAX_WBITS) == Z_OK; }
    ~InflateStream() {
        if (ready)
            inflateEnd(&z);
    }
};

uint32_t Crc(uint32_t crc, const unsigned char* data, size_t size) {
    return static_cast<uint32_t>(crc32(crc, data, static_cast<uInt>(size)));
}

} // namespace

// Where the central directory lies, from the end record.
struct ZipReader::Directory {
    uint64_t endOffset = 0;
    uint64_t offset = 0;
    uint64_t size = 0;
    uint32_t entries = 0;
};

ZipReader::ZipReader() = default;
ZipReader::~ZipReader() = default;

ZipResult ZipReader::Open(ArchiveSource& source, const ZipLimits& limits) {
    m_source = &source;
    m_entries.clear();
    Directory dir;
    ZipResult result = ReadEnd(limits, dir);
    if (result.Ok())
        result = ReadDirectory(limits, dir);
    if (!result.Ok())
        m_entries.clear();
    return result;
}

// The end record is the last one whose comment fits in the file. A file cut short has lost it;
// one that still begins like an archive is then taken as truncated rather than as no archive.
ZipResult ZipReader::ReadEnd(const ZipLimits& limits, Directory& dir) {
    const uint64_t size = m_source->Size();
    const size_t tailSize =
        static_cast<size_t>(std::min<uint64_t>(size, kEndSize + kMostCommentBytes));
    std::vector<unsigned char> tail(tailSize);
    if (!m_source->ReadAt(size - tailSize, tail.data(), tailSize))
        return Problem(ZipProblem::Truncated);
    const uint64_t tailStart = size - tailSize;
    size_t at = tailSize < kEndSize ? 0 : tailSize - kEndSize + 1;
    bool found = false;
    while (at > 0 && !found) {
        --at;
        found =
            Le32(&tail[at]) == kEndSignature && at + kEndSize + Le16(&tail[at + 20]) <= tailSize;
    }
    if (!found) {
        unsigned char start[4] = {};
        const bool looksLikeArchive =
            m_source->ReadAt(0, start, sizeof start) && Le32(start) == kLocalSignature;
        return Problem(looksLikeArchive ? ZipProblem::Truncated : ZipProblem::NotAnArchive);
    }
    const unsigned char* end = &tail[at];
    dir.endOffset = tailStart + at;
    dir.entries = Le16(end + 10);
    dir.size = Le32(end + 12);
    dir.offset = Le32(end + 16);
    // The 64-bit records: refused, but an archive of too many entries is told as such.
    unsigned char locator[kZip64LocatorSize];
    if (dir.endOffset >= kZip64LocatorSize &&
        m_source->ReadAt(dir.endOffset - kZip64LocatorSize, locator, sizeof locator) &&
        Le32(locator) == kZip64LocatorSignature) {
        unsigned char record[kZip64EndSize];
        if (m_source->ReadAt(Le64(locator + 8), record, sizeof record) &&
            Le32(record) == kZip64EndSignature && Le64(record + 32) > limits.maxEntries)
            return Problem(ZipProblem::TooManyEntries);
        return Problem(ZipProblem::Zip64);
    }
    if (dir.entries == kSaturated16 || dir.size == kSaturated32 || dir.offset == kSaturated32)
        return Problem(ZipProblem::Zip64);
    if (dir.entries > limits.maxEntries)
        return Problem(ZipProblem::TooManyEntries);
    // Archives split over several disks are not read.
    if (Le16(end + 4) != 0 || Le16(end + 6) != 0 || Le16(end + 8) != dir.entries)
        return Problem(ZipProblem::Damaged);
    if (dir.offset > dir.endOffset || dir.size > dir.endOffset - dir.offset ||
        dir.size > kMostDirectoryBytes)
        return Problem(ZipProblem::Damaged);
    return Problem(ZipProblem::None);
}

ZipResult ZipReader::ReadDirectory(const ZipLimits& limits, const Directory& dir) {
    std::vector<unsigned char> bytes(static_cast<size_t>(dir.size));
    if (!m_source->ReadAt(dir.offset, bytes.data(), bytes.size()))
        return Problem(ZipProblem::Truncated);
    std::vector<std::string> rawNames;
    NameClashes clashes;
    uint64_t total = 0;
    size_t at = 0;
    for (uint32_t i = 0; i < dir.entries; ++i) {
        if (bytes.size() - at < kCentralSize || Le32(&bytes[at]) != kCentralSignature)
            return Problem(ZipProblem::Damaged);
        const unsigned char* h = &bytes[at];
        const size_t nameBytes = Le16(h + 28);
        const size_t recordSize = kCentralSize + nameBytes + Le16(h + 30) + Le16(h + 32);
        if (bytes.size() - at < recordSize)
            return Problem(ZipProblem::Damaged);
        const std::string raw(reinterpret_cast<const char*>(h + kCentralSize), nameBytes);
        const uint16_t flags = Le16(h + 8);
        ZipEntry e;
        e.method = Le16(h + 10);
        e.crc = Le32(h + 16);
        e.packedSize = Le32(h + 20);
        e.size = Le32(h + 24);
        e.headerOffset = Le32(h + 42);
        const std::wstring shown = DecodeEntryName(raw, (flags & kFlagUtf8) != 0);
        at += recordSize;

        if ((flags & (kFlagEncrypted | kFlagStrongEncryption)) || e.method == kAesEncrypted)
            return Problem(ZipProblem::Encrypted, shown);
        if (e.packedSize == kSaturated32 || e.size == kSaturated32 ||
            e.headerOffset == kSaturated32 || Le16(h + 34) == kSaturated16)
            return Problem(ZipProblem::Zip64, shown);
        if (e.method != kStored && e.method != kDeflated)
            return Problem(ZipProblem::UnknownMethod, shown);
        if (nameBytes > limits.maxNameChars * kBytesPerChar)
            return Problem(ZipProblem::NameTooLong, shown);
        CleanName clean;
        const ZipProblem nameProblem = CheckEntryName(shown, limits.maxNameChars, clean);
        if (nameProblem != ZipProblem::None)
            return Problem(nameProblem, shown);
        if (!clashes.Add(clean.path, clean.folder))
            return Problem(ZipProblem::DuplicateName, shown);
        e.name = clean.path;
        e.folder = clean.folder;
        if (e.method == kStored && e.packedSize != e.size)
            return Problem(ZipProblem::Damaged, shown);
        if (!e.folder && e.size > limits.ratioCheckedAbove &&
            static_cast<uint64_t>(e.size) > static_cast<uint64_t>(limits.maxRatio) * e.packedSize)
            return Problem(ZipProblem::RatioTooHigh, shown);
        total += e.size;
        if (total > limits.maxTotalSize)
            return Problem(ZipProblem::TooLarge, shown);
        m_entries.push_back(std::move(e));
        rawNames.push_back(raw);
    }
    return ReadLocalHeaders(rawNames, dir.offset);
}

// Each entry's local header must agree with the directory, and the entries' bytes must lie one
// after the other before the directory: overlapping entries are how some archives unpack the
// same bytes again and again.
ZipResult ZipReader::ReadLocalHeaders(const std::vector<std::string>& rawNames,
                                      uint64_t directoryOffset) {
    std::vector<size_t> order(m_entries.size());
    for (size_t i = 0; i < m_entries.size(); ++i) {
        ZipEntry& e = m_entries[i];
        order[i] = i;
        unsigned char h[kLocalSize];
        if (e.headerOffset > directoryOffset || directoryOffset - e.headerOffset < kLocalSize ||
            !m_source->ReadAt(e.headerOffset, h, sizeof h) || Le32(h) != kLocalSignature)
            return Problem(ZipProblem::Damaged, e.name);
        if (Le16(h + 6) & (kFlagEncrypted | kFlagStrongEncryption))
            return Problem(ZipProblem::Encrypted, e.name);
        const std::string& raw = rawNames[i];
        std::string localName(Le16(h + 26), '\0');
        if (localName.size() != raw.size() ||
            !m_source->ReadAt(e.headerOffset + kLocalSize,
                              reinterpret_cast<unsigned char*>(&localName[0]), localName.size()) ||
            localName != raw)
            return Problem(ZipProblem::Damaged, e.name);
        e.dataOffset = e.headerOffset + kLocalSize + localName.size() + Le16(h + 28);
        if (e.dataOffset > directoryOffset || directoryOffset - e.dataOffset < e.packedSize)
            return Problem(ZipProblem::Damaged, e.name);
    }
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        return m_entries[a].headerOffset < m_entries[b].headerOffset;
    });
    for (size_t k = 1; k < order.size(); ++k) {
        const ZipEntry& before = m_entries[order[k - 1]];
        if (before.dataOffset + before.packedSize > m_entries[order[k]].headerOffset)
            return Problem(ZipProblem::Damaged, m_entries[order[k]].name);
    }
    return Problem(ZipProblem::None);
}

ZipResult ZipReader::Extract(const ZipEntry& entry, ArchiveSink& sink) {
    if (!m_source)
        return Problem(ZipProblem::Damaged, entry.name);
    if (entry.folder)
        return Problem(ZipProblem::None);
    // The pieces are made on the first unpacking: most archives refused never need them.
    if (m_in.empty()) {
        m_in.resize(kPiece);
        m_out.resize(kPiece);
    }
    uint32_t crc = Crc(0, nullptr, 0);
    const ZipResult result =
        entry.method == kStored ? CopyStored(entry, sink, crc) : Inflate(entry, sink, crc);
    if (!result.Ok())
        return result;
    return Problem(crc == entry.crc ? ZipProblem::None : ZipProblem::BadChecksum, entry.name);
}

ZipResult ZipReader::CopyStored(const ZipEntry& entry, ArchiveSink& sink, uint32_t& crc) {
    for (uint64_t done = 0; done < entry.size;) {
        const size_t n = static_cast<size_t>(std::min<uint64_t>(kPiece, entry.size - done));
        if (!m_source->ReadAt(entry.dataOffset + done, m_in.data(), n))
            return Problem(ZipProblem::Truncated, entry.name);
        crc = Crc(crc, m_in.data(), n);
        if (!sink.Write(m_in.data(), n))
            return Problem(ZipProblem::WriteFailed, entry.name);
        done += n;
    }
    return Problem(ZipProblem::None);
}

// Unpacks no more than the entry's size: a stream that would give more is damaged, and is
// stopped there rather than unpacked to the end.
ZipResult ZipReader::Inflate(const ZipEntry& entry, ArchiveSink& sink, uint32_t& crc) {
    InflateStream stream;
    if (!stream.ready)
        return Problem(ZipProblem::WriteFailed, entry.name);
    z_stream& z = stream.z;
    uint64_t read = 0;
    uint64_t produced = 0;
    for (;;) {
        if (z.avail_in == 0 && read < entry.packedSize) {
            const size_t n =
                static_cast<size_t>(std::min<uint64_t>(kPiece, entry.packedSize - read));
            if (!m_source->ReadAt(entry.dataOffset + read, m_in.data(), n))
                return Problem(ZipProblem::Truncated, entry.name);
            read += n;
            z.next_in = m_in.data();
            z.avail_in = static_cast<uInt>(n);
        }
        z.next_out = m_out.data();
        z.avail_out = static_cast<uInt>(m_out.size());
        // Z_BUF_ERROR: no progress is possible, the packed bytes ended before the stream did.
        const int status = inflate(&z, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END)
            return Problem(ZipProblem::Damaged, entry.name);
        const size_t got = m_out.size() - z.avail_out;
        produced += got;
        if (produced > entry.size)
            return Problem(ZipProblem::Damaged, entry.name);
        crc = Crc(crc, m_out.data(), got);
        if (got > 0 && !sink.Write(m_out.data(), got))
            return Problem(ZipProblem::WriteFailed, entry.name);
        if (status == Z_STREAM_END)
            break;
    }
    return Problem(produced == entry.size ? ZipProblem::None : ZipProblem::Damaged, entry.name);
}

} // namespace cv2
