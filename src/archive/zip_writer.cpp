#include "archive/zip_writer.h"

#include <zlib.h>

#include "archive/entry_names.h"
#include "archive/zip_records.h"

namespace cv2 {

using namespace zip;

namespace {

// Version 2.0 of the format: deflate and folders, nothing newer.
constexpr uint16_t kVersion = 20;
constexpr uint32_t kDosFolder = 0x10; // DOS attributes, in the low byte
constexpr uint32_t kDosArchive = 0x20;

// The deflated form of the bytes, or nothing when deflating fails or gains nothing.
std::vector<unsigned char> Deflated(const unsigned char* data, size_t size) {
    std::vector<unsigned char> out;
    z_stream z{};
    if (size == 0 || size > 0xFFFFFFFFu ||
        deflateInit2(&z, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) !=
            Z_OK)
        return out;
    out.resize(deflateBound(&z, static_cast<uLong>(size)));
    z.next_in = const_cast<unsigned char*>(data);
    z.avail_in = static_cast<uInt>(size);
    z.next_out = out.data();
    z.avail_out = static_cast<uInt>(out.size());
    const bool done = deflate(&z, Z_FINISH) == Z_STREAM_END && z.total_out < size;
    out.resize(done ? z.total_out : 0);
    deflateEnd(&z);
    return out;
}

} // namespace

uint32_t DosTimeStamp(std::time_t when) {
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &when);
#else
    localtime_r(&when, &local);
#endif
    if (local.tm_year < 80)
        return (1u << 5 | 1u) << 16; // 1980-01-01 00:00
    const uint32_t date =
        static_cast<uint32_t>((local.tm_year - 80) << 9 | (local.tm_mon + 1) << 5 | local.tm_mday);
    const uint32_t time =
        static_cast<uint32_t>(local.tm_hour << 11 | local.tm_min << 5 | local.tm_sec / 2);
    return date << 16 | time;
}

ZipWriter::ZipWriter(ArchiveSink& sink, uint32_t dosTimeStamp)
    : m_sink(sink), m_stamp(dosTimeStamp) {}

// The fields a local header and a directory record share, from "version needed" to the
// name's length.
void ZipWriter::PutShared(std::string& out, const Written& e, uint32_t stamp) {
    Put16(out, kVersion);
    Put16(out, e.flags);
    Put16(out, e.method);
    Put32(out, stamp);
    Put32(out, e.crc);
    Put32(out, e.packedSize);
    Put32(out, e.size);
    Put16(out, static_cast<uint32_t>(e.name.size()));
}

bool ZipWriter::AddFolder(const std::wstring& name) {
    bool utf8 = false;
    Written e{EncodeEntryName(name + L"/", utf8), 0, kStored, 0, 0, 0, 0, true};
    e.flags = utf8 ? kFlagUtf8 : 0;
    return Add(e, nullptr);
}

bool ZipWriter::AddFile(const std::wstring& name, const unsigned char* data, size_t size) {
    if (size > 0xFFFFFFFFu) {
        m_failed = true; // would need the 64-bit records
        return false;
    }
    bool utf8 = false;
    Written e{EncodeEntryName(name, utf8), 0, kStored, 0, 0, static_cast<uint32_t>(size), 0, false};
    e.flags = utf8 ? kFlagUtf8 : 0;
    e.crc = static_cast<uint32_t>(crc32(crc32(0, nullptr, 0), data, static_cast<uInt>(size)));
    const std::vector<unsigned char> packed = Deflated(data, size);
    if (!packed.empty()) {
        e.method = kDeflated;
        e.packedSize = static_cast<uint32_t>(packed.size());
        return Add(e, packed.data());
    }
    e.packedSize = e.size;
    return Add(e, data);
}

bool ZipWriter::Add(Written e, const unsigned char* data) {
    if (m_failed || m_offset + kLocalSize + e.name.size() + e.packedSize > 0xFFFFFFFFu ||
        m_entries.size() >= 0xFFFF || e.name.size() > 0xFFFF) {
        m_failed = true;
        return false;
    }
    e.offset = static_cast<uint32_t>(m_offset);
    std::string header;
    Put32(header, kLocalSignature);
    PutShared(header, e, m_stamp);
    Put16(header, 0); // no extra fields
    header += e.name;
    if (!Put(header) || !Put(data, e.packedSize))
        return false;
    m_entries.push_back(std::move(e));
    return true;
}

bool ZipWriter::Finish() {
    const uint64_t directoryOffset = m_offset;
    std::string directory;
    for (const Written& e : m_entries) {
        Put32(directory, kCentralSignature);
        Put16(directory, kVersion); // made by: version 2.0 on a DOS-style file system
        PutShared(directory, e, m_stamp);
        Put16(directory, 0); // extra
        Put16(directory, 0); // comment
        Put16(directory, 0); // disk
        Put16(directory, 0); // internal attributes
        Put32(directory, e.folder ? kDosFolder : kDosArchive);
        Put32(directory, e.offset);
        directory += e.name;
    }
    if (m_failed || directoryOffset + directory.size() > 0xFFFFFFFFu) {
        m_failed = true;
        return false;
    }
    std::string end;
    Put32(end, kEndSignature);
    Put16(end, 0);
    Put16(end, 0);
    Put16(end, static_cast<uint32_t>(m_entries.size()));
    Put16(end, static_cast<uint32_t>(m_entries.size()));
    Put32(end, static_cast<uint32_t>(directory.size()));
    Put32(end, static_cast<uint32_t>(directoryOffset));
    Put16(end, 0); // no comment
    return Put(directory) && Put(end);
}

bool ZipWriter::Put(const std::string& bytes) {
    return Put(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

bool ZipWriter::Put(const unsigned char* data, size_t size) {
    if (m_failed || (size > 0 && !m_sink.Write(data, size))) {
        m_failed = true;
        return false;
    }
    m_offset += size;
    return true;
}

} // namespace cv2
