// Builds zip archives byte by byte for tests, including the malformed and hostile ones that no
// ordinary tool would write: wrong checksums, lying sizes, encryption flags, 64-bit records.
#pragma once

#include <zlib.h>

#include <cstdint>
#include <string>
#include <vector>

#include "archive/zip_records.h"

namespace cv2test {

struct BuiltEntry {
    std::string name; // the stored bytes of the name
    std::string data; // what the entry unpacks to
    bool deflate = false;
    bool descriptor = false; // sizes and CRC-32 after the data, zeros in the local header
    uint16_t flags = 0;
    uint16_t method = 0xFFFF;        // unless set: stored or deflated, from `deflate`
    int64_t crc = -1;                // unless set: the right one
    int64_t size = -1;               // unless set: the real unpacked size
    std::string packed;              // unless set: the data, deflated when `deflate`
    uint32_t versionMadeBy = 0x031E; // Unix, as zip on Linux writes
};

using cv2::zip::Put16;
using cv2::zip::Put32;

inline void Put64(std::string& out, uint64_t v) {
    Put32(out, static_cast<uint32_t>(v));
    Put32(out, static_cast<uint32_t>(v >> 32));
}

// A file entry of `name` holding `data`.
inline BuiltEntry Entry(const std::string& name, const std::string& data, bool deflate = false) {
    BuiltEntry e;
    e.name = name;
    e.data = data;
    e.deflate = deflate;
    return e;
}

inline std::string RawDeflate(const std::string& data) {
    z_stream z{};
    deflateInit2(&z, 9, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    std::string out(deflateBound(&z, static_cast<uLong>(data.size())), '\0');
    z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    z.avail_in = static_cast<uInt>(data.size());
    z.next_out = reinterpret_cast<Bytef*>(&out[0]);
    z.avail_out = static_cast<uInt>(out.size());
    deflate(&z, Z_FINISH);
    out.resize(z.total_out);
    deflateEnd(&z);
    return out;
}

inline uint32_t Crc32Of(const std::string& data) {
    return static_cast<uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(data.data()), static_cast<uInt>(data.size())));
}

// The archive: local headers and data in order, then the central directory and the end record.
// `declaredEntries` overrides the end record's count when not negative.
inline std::string BuildZip(const std::vector<BuiltEntry>& entries, long declaredEntries = -1) {
    std::string zip, directory;
    for (const BuiltEntry& e : entries) {
        const std::string packed = !e.packed.empty() ? e.packed
                                   : e.deflate       ? RawDeflate(e.data)
                                                     : e.data;
        const uint16_t method = e.method != 0xFFFF ? e.method : e.deflate ? 8 : 0;
        const uint32_t crc = e.crc >= 0 ? static_cast<uint32_t>(e.crc) : Crc32Of(e.data);
        const uint32_t size =
            e.size >= 0 ? static_cast<uint32_t>(e.size) : static_cast<uint32_t>(e.data.size());
        const uint16_t flags = static_cast<uint16_t>(e.flags | (e.descriptor ? 8 : 0));
        const uint32_t offset = static_cast<uint32_t>(zip.size());
        Put32(zip, 0x04034b50);
        Put16(zip, 20);
        Put16(zip, flags);
        Put16(zip, method);
        Put32(zip, 0x21 << 16);
        Put32(zip, e.descriptor ? 0 : crc);
        Put32(zip, e.descriptor ? 0 : static_cast<uint32_t>(packed.size()));
        Put32(zip, e.descriptor ? 0 : size);
        Put16(zip, static_cast<uint32_t>(e.name.size()));
        Put16(zip, 0);
        zip += e.name + packed;
        if (e.descriptor) {
            Put32(zip, 0x08074b50);
            Put32(zip, crc);
            Put32(zip, static_cast<uint32_t>(packed.size()));
            Put32(zip, size);
        }
        Put32(directory, 0x02014b50);
        Put16(directory, e.versionMadeBy);
        Put16(directory, 20);
        Put16(directory, flags);
        Put16(directory, method);
        Put32(directory, 0x21 << 16);
        Put32(directory, crc);
        Put32(directory, static_cast<uint32_t>(packed.size()));
        Put32(directory, size);
        Put16(directory, static_cast<uint32_t>(e.name.size()));
        Put16(directory, 0);
        Put16(directory, 0);
        Put16(directory, 0);
        Put16(directory, 0);
        Put32(directory, 0);
        Put32(directory, offset);
        directory += e.name;
    }
    const uint32_t count = declaredEntries >= 0 ? static_cast<uint32_t>(declaredEntries)
                                                : static_cast<uint32_t>(entries.size());
    const uint32_t directoryOffset = static_cast<uint32_t>(zip.size());
    zip += directory;
    Put32(zip, 0x06054b50);
    Put16(zip, 0);
    Put16(zip, 0);
    Put16(zip, count & 0xFFFF);
    Put16(zip, count & 0xFFFF);
    Put32(zip, static_cast<uint32_t>(directory.size()));
    Put32(zip, directoryOffset);
    Put16(zip, 0);
    return zip;
}

// The same archive in the 64-bit form: a 64-bit end record and its locator before the end
// record, whose fields then say "see the 64-bit record". `entries` goes into the 64-bit record.
inline std::string WithZip64End(const std::string& zip, uint64_t entries) {
    const size_t endAt = zip.size() - 22;
    const uint32_t directorySize =
        static_cast<uint8_t>(zip[endAt + 12]) | static_cast<uint8_t>(zip[endAt + 13]) << 8 |
        static_cast<uint8_t>(zip[endAt + 14]) << 16 |
        static_cast<uint32_t>(static_cast<uint8_t>(zip[endAt + 15])) << 24;
    const uint32_t directoryOffset =
        static_cast<uint8_t>(zip[endAt + 16]) | static_cast<uint8_t>(zip[endAt + 17]) << 8 |
        static_cast<uint8_t>(zip[endAt + 18]) << 16 |
        static_cast<uint32_t>(static_cast<uint8_t>(zip[endAt + 19])) << 24;
    std::string out = zip.substr(0, endAt);
    const uint64_t recordAt = out.size();
    Put32(out, 0x06064b50);
    Put64(out, 44);
    Put16(out, 45);
    Put16(out, 45);
    Put32(out, 0);
    Put32(out, 0);
    Put64(out, entries);
    Put64(out, entries);
    Put64(out, directorySize);
    Put64(out, directoryOffset);
    Put32(out, 0x07064b50);
    Put32(out, 0);
    Put64(out, recordAt);
    Put32(out, 1);
    Put32(out, 0x06054b50);
    Put16(out, 0);
    Put16(out, 0);
    Put16(out, 0xFFFF);
    Put16(out, 0xFFFF);
    Put32(out, 0xFFFFFFFF);
    Put32(out, 0xFFFFFFFF);
    Put16(out, 0);
    return out;
}

} // namespace cv2test
