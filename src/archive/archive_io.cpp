#include "archive/archive_io.h"

#include <cstring>

namespace cv2 {

bool MemorySource::ReadAt(uint64_t offset, unsigned char* out, size_t count) {
    if (offset > m_size || count > m_size - offset)
        return false;
    if (count > 0)
        std::memcpy(out, m_data + offset, count);
    return true;
}

} // namespace cv2
