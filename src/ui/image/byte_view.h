// Bounds-checked little-endian reading of a file held in memory. Every offset and length a file
// states goes through Has() before it is trusted; the getters never read outside the bytes and
// give 0 for anything beyond them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace cv2 {

class ByteView {
  public:
    ByteView() = default;
    ByteView(const unsigned char* data, size_t size) : m_data(data), m_size(data ? size : 0) {}

    size_t Size() const { return m_size; }
    const unsigned char* Data() const { return m_data; }

    // True when [offset, offset + length) lies inside the bytes (no overflow possible).
    bool Has(uint64_t offset, uint64_t length) const {
        return offset <= m_size && length <= m_size - offset;
    }
    // The part [offset, offset + length), or an empty view when it does not fit.
    ByteView Part(uint64_t offset, uint64_t length) const {
        if (!Has(offset, length))
            return ByteView();
        return ByteView(m_data + offset, static_cast<size_t>(length));
    }

    uint32_t U8(uint64_t offset) const { return Has(offset, 1) ? m_data[offset] : 0; }
    uint32_t U16(uint64_t offset) const {
        return Has(offset, 2) ? m_data[offset] | (m_data[offset + 1] << 8) : 0;
    }
    uint32_t U32(uint64_t offset) const {
        if (!Has(offset, 4))
            return 0;
        return static_cast<uint32_t>(m_data[offset]) |
               (static_cast<uint32_t>(m_data[offset + 1]) << 8) |
               (static_cast<uint32_t>(m_data[offset + 2]) << 16) |
               (static_cast<uint32_t>(m_data[offset + 3]) << 24);
    }
    int32_t S32(uint64_t offset) const { return static_cast<int32_t>(U32(offset)); }

  private:
    const unsigned char* m_data = nullptr;
    size_t m_size = 0;
};

} // namespace cv2
