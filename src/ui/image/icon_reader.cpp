#include "ui/image/icon_reader.h"

#include "ui/image/byte_view.h"

namespace cv2 {
namespace {

constexpr size_t kDirectoryHeader = 6;
constexpr size_t kDirectoryEntry = 16;
constexpr size_t kBitmapHeader = 40;
constexpr unsigned kUncompressed = 0;

// Where one image's parts lie, from its bitmap header.
struct IconBitmap {
    bool ok = false;
    int width = 0;
    int height = 0; // of the picture: half the stored height
    unsigned bitCount = 0;
    ByteView palette; // 4 bytes per entry: blue, green, red, unused
    ByteView colour;  // rows bottom first, each padded to 4 bytes
    ByteView mask;    // 1 bit per pixel, set = transparent, rows bottom first, padded likewise
    size_t colourStride = 0;
    size_t maskStride = 0;
};

bool IsSupportedDepth(unsigned bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

size_t PaddedRow(uint64_t width, unsigned bits) {
    return ((width * bits + 31) / 32) * 4;
}

IconBitmap ParseBitmap(const ByteView& image) {
    IconBitmap bmp;
    const uint32_t headerSize = image.U32(0);
    if (headerSize < kBitmapHeader || !image.Has(0, headerSize))
        return bmp; // also rejects PNG-coded images, whose first bytes are not a header size
    const int32_t width = image.S32(4);
    const int32_t storedHeight = image.S32(8);
    bmp.bitCount = image.U16(14);
    const uint32_t compression = image.U32(16);
    const uint32_t colorsUsed = image.U32(32);
    if (compression != kUncompressed || !IsSupportedDepth(bmp.bitCount) ||
        !IsAcceptableSize(width, storedHeight / 2))
        return bmp;
    bmp.width = width;
    bmp.height = storedHeight / 2;
    uint64_t paletteCount = 0;
    if (bmp.bitCount <= 8)
        paletteCount = colorsUsed != 0 ? colorsUsed : (1u << bmp.bitCount);
    if (paletteCount > 256)
        return bmp;
    bmp.palette = image.Part(headerSize, paletteCount * 4);
    bmp.colourStride = PaddedRow(static_cast<uint64_t>(width), bmp.bitCount);
    bmp.maskStride = PaddedRow(static_cast<uint64_t>(width), 1);
    const uint64_t colourAt = headerSize + paletteCount * 4;
    const uint64_t colourBytes = static_cast<uint64_t>(bmp.colourStride) * bmp.height;
    const uint64_t maskBytes = static_cast<uint64_t>(bmp.maskStride) * bmp.height;
    if (!image.Has(headerSize, paletteCount * 4) || !image.Has(colourAt, colourBytes) ||
        !image.Has(colourAt + colourBytes, maskBytes))
        return bmp;
    bmp.colour = image.Part(colourAt, colourBytes);
    bmp.mask = image.Part(colourAt + colourBytes, maskBytes);
    bmp.ok = true;
    return bmp;
}

// An image stored as a PNG file: its size and bits per pixel from the header chunk, which must
// come first. Colour types: 0 grey, 2 red-green-blue, 3 palette, 4 grey-alpha, 6
// red-green-blue-alpha.
struct PngImage {
    bool ok = false;
    int width = 0;
    unsigned bitCount = 0;
};

constexpr unsigned char kPngSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr size_t kPngHeaderEnd = 8 + 8 + 13; // signature, chunk length and type, header data

uint32_t BigEndian32(const ByteView& bytes, uint64_t at) {
    return (bytes.U8(at) << 24) | (bytes.U8(at + 1) << 16) | (bytes.U8(at + 2) << 8) |
           bytes.U8(at + 3);
}

bool IsPng(const ByteView& image) {
    for (size_t i = 0; i < sizeof kPngSignature; ++i) {
        if (!image.Has(i, 1) || image.U8(i) != kPngSignature[i])
            return false;
    }
    return true;
}

unsigned PngChannels(uint32_t colourType) {
    switch (colourType) {
    case 0:
    case 3:
        return 1;
    case 2:
        return 3;
    case 4:
        return 2;
    case 6:
        return 4;
    }
    return 0;
}

PngImage ParsePng(const ByteView& image) {
    PngImage png;
    const uint32_t kHeaderType = ('I' << 24) | ('H' << 16) | ('D' << 8) | 'R';
    if (!IsPng(image) || !image.Has(0, kPngHeaderEnd) || BigEndian32(image, 8) != 13 ||
        BigEndian32(image, 12) != kHeaderType)
        return png;
    const uint32_t width = BigEndian32(image, 16);
    const uint32_t height = BigEndian32(image, 20);
    const unsigned channels = PngChannels(image.U8(25));
    if (channels == 0 || !IsAcceptableSize(width, height))
        return png;
    png.width = static_cast<int>(width);
    png.bitCount = image.U8(24) * channels;
    png.ok = true;
    return png;
}

// What the choice looks at of one image, bitmap or PNG.
IconCandidate Candidate(const ByteView& image) {
    if (IsPng(image)) {
        const PngImage png = ParsePng(image);
        return {png.width, static_cast<int>(png.bitCount), png.ok};
    }
    const IconBitmap bmp = ParseBitmap(image);
    return {bmp.width, static_cast<int>(bmp.bitCount), bmp.ok};
}

// The bytes of directory entry `index`'s image; empty when they do not lie inside the file.
ByteView EntryImage(const ByteView& file, size_t index) {
    const uint64_t entry = kDirectoryHeader + index * kDirectoryEntry;
    return file.Part(file.U32(entry + 12), file.U32(entry + 8));
}

// Blue, green, red of pixel x in a stored row.
void ReadColour(const IconBitmap& bmp, const unsigned char* row, int x, unsigned char* out) {
    const unsigned bits = bmp.bitCount;
    if (bits <= 8) {
        const unsigned perByte = 8 / bits;
        const unsigned shift = 8 - bits * (1 + x % perByte);
        const unsigned index = (row[x / perByte] >> shift) & ((1u << bits) - 1);
        const uint64_t at = static_cast<uint64_t>(index) * 4;
        // An index past the palette reads as black.
        out[0] = static_cast<unsigned char>(bmp.palette.U8(at));
        out[1] = static_cast<unsigned char>(bmp.palette.U8(at + 1));
        out[2] = static_cast<unsigned char>(bmp.palette.U8(at + 2));
    } else if (bits == 16) {
        // 5 bits each of blue, green and red, widened to 8 by repeating the top bits.
        const unsigned v = row[x * 2] | (row[x * 2 + 1] << 8);
        for (int c = 0; c < 3; ++c) {
            const unsigned five = (v >> (5 * c)) & 0x1F;
            out[c] = static_cast<unsigned char>((five << 3) | (five >> 2));
        }
    } else {
        const unsigned char* p = row + static_cast<size_t>(x) * (bits / 8);
        out[0] = p[0];
        out[1] = p[1];
        out[2] = p[2];
        if (bits == 32)
            out[3] = p[3];
    }
}

bool MaskSays(const IconBitmap& bmp, int storedRow, int x) {
    const unsigned char* row = bmp.mask.Data() + static_cast<size_t>(storedRow) * bmp.maskStride;
    return (row[x / 8] >> (7 - x % 8)) & 1;
}

void ApplyMask(const IconBitmap& bmp, PixelImage& image) {
    for (int y = 0; y < bmp.height; ++y) {
        for (int x = 0; x < bmp.width; ++x)
            image.At(x, y)[3] = MaskSays(bmp, bmp.height - 1 - y, x) ? 0 : 255;
    }
}

bool AnyTransparent(const PixelImage& image) {
    for (size_t i = 3; i < image.pixels.size(); i += 4) {
        if (image.pixels[i] != 255)
            return true;
    }
    return false;
}

PixelImage Decode(const IconBitmap& bmp) {
    PixelImage image = MakePixelImage(bmp.width, bmp.height);
    if (image.Empty())
        return image;
    for (int y = 0; y < bmp.height; ++y) {
        const unsigned char* row =
            bmp.colour.Data() + static_cast<size_t>(bmp.height - 1 - y) * bmp.colourStride;
        for (int x = 0; x < bmp.width; ++x)
            ReadColour(bmp, row, x, image.At(x, y));
    }
    // Images below 32 bits, and 32-bit ones written without alpha, take transparency from the
    // mask.
    if (bmp.bitCount != 32 || !KeepAlphaUnlessAllZero(image))
        ApplyMask(bmp, image);
    image.hasAlpha = AnyTransparent(image);
    return image;
}

} // namespace

size_t ChooseIconImage(const std::vector<IconCandidate>& images, int wantedSize) {
    size_t choice = 0;
    bool found = false;
    for (size_t i = 0; i < images.size(); ++i) {
        const IconCandidate& c = images[i];
        if (!c.readable || c.width > wantedSize || c.bitCount > 32)
            continue;
        const IconCandidate& best = images[choice];
        if (!found || !(c.width <= best.width && c.bitCount <= best.bitCount)) {
            choice = i;
            found = true;
        }
    }
    return choice;
}

PixelImage ReadIcon(const unsigned char* data, size_t size, int wantedSize,
                    const PngDecoder& decodePng) {
    const ByteView file(data, size);
    const size_t count = file.U16(4);
    if (count == 0 || !file.Has(kDirectoryHeader, count * kDirectoryEntry))
        return {};
    std::vector<IconCandidate> candidates(count);
    for (size_t i = 0; i < count; ++i)
        candidates[i] = Candidate(EntryImage(file, i));
    const ByteView image = EntryImage(file, ChooseIconImage(candidates, wantedSize));
    if (IsPng(image)) {
        if (!decodePng || !ParsePng(image).ok)
            return {};
        return decodePng(image.Data(), image.Size());
    }
    const IconBitmap chosen = ParseBitmap(image);
    if (!chosen.ok)
        return {};
    return Decode(chosen);
}

} // namespace cv2
