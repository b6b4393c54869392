// The record layouts of the zip format that the reader and the writer share: signatures, fixed
// sizes and little-endian fields.
#pragma once

#include <cstdint>
#include <string>

namespace cv2 {
namespace zip {

constexpr uint32_t kLocalSignature = 0x04034b50;
constexpr uint32_t kCentralSignature = 0x02014b50;
constexpr uint32_t kEndSignature = 0x06054b50;
constexpr uint32_t kZip64EndSignature = 0x06064b50;
constexpr uint32_t kZip64LocatorSignature = 0x07064b50;

constexpr size_t kLocalSize = 30;
constexpr size_t kCentralSize = 46;
constexpr size_t kEndSize = 22;
constexpr size_t kZip64LocatorSize = 20;
constexpr size_t kZip64EndSize = 56;
constexpr size_t kMostCommentBytes = 0xFFFF;

constexpr uint16_t kFlagEncrypted = 0x0001;
constexpr uint16_t kFlagDescriptor = 0x0008;
constexpr uint16_t kFlagStrongEncryption = 0x0040;
constexpr uint16_t kFlagUtf8 = 0x0800;

constexpr uint16_t kStored = 0;
constexpr uint16_t kDeflated = 8;
constexpr uint16_t kAesEncrypted = 99;

// A 32-bit or 16-bit field at its largest says "see the 64-bit record".
constexpr uint32_t kSaturated32 = 0xFFFFFFFFu;
constexpr uint16_t kSaturated16 = 0xFFFF;

inline uint16_t Le16(const unsigned char* p) {
    return static_cast<uint16_t>(p[0] | (p[1] << 8));
}
inline uint32_t Le32(const unsigned char* p) {
    return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8) |
           (static_cast<uint32_t>(p[2]) << 16) | (static_cast<uint32_t>(p[3]) << 24);
}
inline uint64_t Le64(const unsigned char* p) {
    return static_cast<uint64_t>(Le32(p)) | (static_cast<uint64_t>(Le32(p + 4)) << 32);
}

inline void Put16(std::string& out, uint32_t v) {
    out += static_cast<char>(v & 0xFF);
    out += static_cast<char>((v >> 8) & 0xFF);
}
inline void Put32(std::string& out, uint32_t v) {
    Put16(out, v & 0xFFFF);
    Put16(out, v >> 16);
}

} // namespace zip
} // namespace cv2
