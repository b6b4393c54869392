// Fuzz target: reading any bytes as a theme package. The reader must refuse or read them without
// crashing, never unpack more than an entry declares (a folder nothing), and keep to the package
// limits.
#include <cstdint>
#include <cstdlib>

#include "archive/zip_reader.h"

namespace {

// Counts what an entry unpacks to.
class CountingSink : public cv2::ArchiveSink {
  public:
    bool Write(const unsigned char*, size_t count) override {
        bytes += count;
        return true;
    }
    uint64_t bytes = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cv2::MemorySource source(data, size);
    cv2::ZipReader reader;
    // Small limits keep each input quick while reaching every check.
    cv2::ZipLimits limits;
    limits.maxEntries = 64;
    limits.maxTotalSize = 1 << 20;
    if (!reader.Open(source, limits).Ok())
        return 0;
    if (reader.Entries().size() > limits.maxEntries)
        std::abort();
    uint64_t total = 0;
    for (const cv2::ZipEntry& e : reader.Entries()) {
        CountingSink sink;
        const cv2::ZipResult result = reader.Extract(e, sink);
        // A folder gives nothing, whatever size its record declares.
        const uint64_t expected = e.folder ? 0 : e.size;
        if (sink.bytes > expected || (result.Ok() && sink.bytes != expected))
            std::abort();
        total += sink.bytes;
    }
    if (total > limits.maxTotalSize)
        std::abort();
    return 0;
}
