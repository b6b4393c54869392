#include "ui/image/targa_reader.h"

#include "ui/image/byte_view.h"

namespace cv2 {
namespace {

constexpr size_t kHeaderSize = 18;
constexpr unsigned kTopLeftOrigin = 0x20;
constexpr unsigned kRunPacket = 0x80;

// The header fields the reader needs, by their offsets in the 18-byte header.
struct TargaHeader {
    unsigned idLength;     // 0
    unsigned colorMapType; // 1
    unsigned imageType;    // 2
    unsigned mapLength;    // 5, entries
    unsigned mapEntryBits; // 7
    unsigned width;        // 12
    unsigned height;       // 14
    unsigned depth;        // 16
    unsigned descriptor;   // 17
};

TargaHeader ReadHeader(const ByteView& file) {
    return {file.U8(0),   file.U8(1),   file.U8(2),  file.U16(5), file.U8(7),
            file.U16(12), file.U16(14), file.U8(16), file.U8(17)};
}

bool IsRunLength(unsigned type) {
    return type >= 9 && type <= 11;
}
bool IsAcceptedType(unsigned type) {
    return (type >= 1 && type <= 3) || IsRunLength(type);
}

// Copies one stored pixel (3 or 4 bytes, blue first) into a 4-byte work pixel.
void PutPixel(unsigned char* out, const unsigned char* in, unsigned bytesPerPixel) {
    out[0] = in[0];
    out[1] = in[1];
    out[2] = in[2];
    out[3] = bytesPerPixel == 4 ? in[3] : 255;
}

bool DecodeRaw(const ByteView& data, unsigned bytesPerPixel, PixelImage& image) {
    const size_t count = static_cast<size_t>(image.width) * image.height;
    if (!data.Has(0, static_cast<uint64_t>(count) * bytesPerPixel))
        return false;
    for (size_t i = 0; i < count; ++i)
        PutPixel(&image.pixels[i * 4], data.Data() + i * bytesPerPixel, bytesPerPixel);
    return true;
}

// Packets run across row ends as the stream runs; a packet reaching past the last pixel is cut.
bool DecodeRunLength(const ByteView& data, unsigned bytesPerPixel, PixelImage& image) {
    const size_t count = static_cast<size_t>(image.width) * image.height;
    size_t pos = 0;
    size_t done = 0;
    while (done < count) {
        if (!data.Has(pos, 1))
            return false;
        const unsigned packet = data.U8(pos++);
        const size_t length = (packet & 0x7F) + 1;
        const size_t stored = (packet & kRunPacket) ? 1 : length;
        if (!data.Has(pos, static_cast<uint64_t>(stored) * bytesPerPixel))
            return false;
        for (size_t i = 0; i < length && done < count; ++i, ++done) {
            const size_t source = (packet & kRunPacket) ? 0 : i;
            PutPixel(&image.pixels[done * 4], data.Data() + pos + source * bytesPerPixel,
                     bytesPerPixel);
        }
        pos += stored * bytesPerPixel;
    }
    return true;
}

// The most pixels run-length data of this many bytes can describe: every packet a run of 128.
bool RunLengthCanCover(size_t dataBytes, unsigned bytesPerPixel, uint64_t pixels) {
    return static_cast<uint64_t>(dataBytes / (1 + bytesPerPixel)) * 128 >= pixels;
}

} // namespace

PixelImage ReadTarga(const unsigned char* bytes, size_t size) {
    const ByteView file(bytes, size);
    if (!file.Has(0, kHeaderSize))
        return {};
    const TargaHeader h = ReadHeader(file);
    if (!IsAcceptedType(h.imageType) || h.width == 0 || h.height == 0 ||
        (h.depth != 24 && h.depth != 32))
        return {};
    // The pixels follow the image ID and, when there is one, the colour map.
    uint64_t start = kHeaderSize + h.idLength;
    if (h.colorMapType == 1)
        start += static_cast<uint64_t>(h.mapLength) * ((h.mapEntryBits + 7) / 8);
    if (!file.Has(start, 0))
        return {};
    const ByteView data = file.Part(start, file.Size() - start);
    const unsigned bytesPerPixel = h.depth / 8;
    const uint64_t pixels = static_cast<uint64_t>(h.width) * h.height;
    // Refuse before allocating what the data could never fill.
    if (IsRunLength(h.imageType) ? !RunLengthCanCover(data.Size(), bytesPerPixel, pixels)
                                 : !data.Has(0, pixels * bytesPerPixel))
        return {};
    PixelImage image = MakePixelImage(static_cast<int>(h.width), static_cast<int>(h.height));
    if (image.Empty())
        return {};
    const bool decoded = IsRunLength(h.imageType) ? DecodeRunLength(data, bytesPerPixel, image)
                                                  : DecodeRaw(data, bytesPerPixel, image);
    if (!decoded)
        return {};
    // Rows are stored bottom row first unless the descriptor says the origin is the top-left.
    if (!(h.descriptor & kTopLeftOrigin))
        FlipRows(image);
    image.hasAlpha = bytesPerPixel == 4 && KeepAlphaUnlessAllZero(image);
    return image;
}

} // namespace cv2
