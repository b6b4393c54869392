#include "platform/image_decoder.h"

#include <objbase.h>
#include <wincodec.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/com_objects.h"

namespace cv2 {
namespace {

// A file larger than this is not a picture the editor shows.
constexpr size_t kMaxFileBytes = 64 * 1024 * 1024;
// Pictures with more pixels are shrunk to this many while decoding, so a camera photo chosen as a
// background cannot exhaust memory.
constexpr double kMaxPixels = 4096.0 * 4096.0;
constexpr DWORD kOwnChunk = 16384;

bool ReadAll(DecompressImageInfo* info, std::vector<BYTE>& data) {
    std::vector<BYTE> own;
    BYTE* chunk = info->pbBuffer;
    DWORD chunkSize = info->dwBufferMax;
    if (!chunk || chunkSize == 0) {
        own.resize(kOwnChunk);
        chunk = own.data();
        chunkSize = kOwnChunk;
    }
    for (;;) {
        DWORD got = info->pfnGetData(reinterpret_cast<LPSTR>(chunk), chunkSize, info->lParam);
        if (got == 0)
            break;
        if (got > chunkSize)
            got = chunkSize;
        if (data.size() + got > kMaxFileBytes)
            return false;
        data.insert(data.end(), chunk, chunk + got);
    }
    info->dwBufferCurrent = static_cast<DWORD>(data.size());
    return !data.empty();
}

// The size to decode at: within the caller's maximum and the pixel cap, shape kept.
void FitSize(const DecompressImageInfo* info, UINT& width, UINT& height) {
    double factor = 1.0;
    if (info->iMaxWidth > 0 && width > static_cast<UINT>(info->iMaxWidth))
        factor = static_cast<double>(info->iMaxWidth) / width;
    if (info->iMaxHeight > 0 && height * factor > info->iMaxHeight)
        factor = static_cast<double>(info->iMaxHeight) / height;
    if (static_cast<double>(width) * height * factor * factor > kMaxPixels)
        factor = std::sqrt(kMaxPixels / (static_cast<double>(width) * height));
    if (factor < 1.0) {
        width = static_cast<UINT>(std::max(1.0, std::floor(width * factor)));
        height = static_cast<UINT>(std::max(1.0, std::floor(height * factor)));
    }
}

// Decodes the first frame to 32-bit blue, green, red, alpha rows, top row first.
HRESULT DecodeToBgra(const std::vector<BYTE>& data, const DecompressImageInfo* info, UINT& width,
                     UINT& height, std::vector<BYTE>& pixels) {
    ComPtr<IWICImagingFactory> factory;
    HRESULT hr = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
    ComPtr<IWICStream> stream;
    if (SUCCEEDED(hr))
        hr = factory->CreateStream(&stream);
    if (SUCCEEDED(hr))
        hr = stream->InitializeFromMemory(const_cast<BYTE*>(data.data()),
                                          static_cast<DWORD>(data.size()));
    ComPtr<IWICBitmapDecoder> decoder;
    if (SUCCEEDED(hr))
        hr = factory->CreateDecoderFromStream(stream.get(), nullptr, WICDecodeMetadataCacheOnDemand,
                                              &decoder);
    ComPtr<IWICBitmapFrameDecode> frame;
    if (SUCCEEDED(hr))
        hr = decoder->GetFrame(0, &frame);
    UINT fullWidth = 0, fullHeight = 0;
    if (SUCCEEDED(hr))
        hr = frame->GetSize(&fullWidth, &fullHeight);
    if (SUCCEEDED(hr) && (fullWidth == 0 || fullHeight == 0))
        hr = E_FAIL;
    if (FAILED(hr))
        return hr;
    width = fullWidth;
    height = fullHeight;
    FitSize(info, width, height);
    IWICBitmapSource* source = frame.get();
    ComPtr<IWICBitmapScaler> scaler;
    if (width != fullWidth || height != fullHeight) {
        hr = factory->CreateBitmapScaler(&scaler);
        if (SUCCEEDED(hr))
            hr = scaler->Initialize(frame.get(), width, height, WICBitmapInterpolationModeFant);
        source = scaler.get();
    }
    ComPtr<IWICFormatConverter> converter;
    if (SUCCEEDED(hr))
        hr = factory->CreateFormatConverter(&converter);
    if (SUCCEEDED(hr))
        hr = converter->Initialize(source, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                   nullptr, 0.0, WICBitmapPaletteTypeCustom);
    if (FAILED(hr))
        return hr;
    pixels.resize(static_cast<size_t>(width) * height * 4);
    return converter->CopyPixels(nullptr, width * 4, static_cast<UINT>(pixels.size()),
                                 pixels.data());
}

// A bottom-up DIB section holding the pixels at the wanted depth.
HBITMAP MakeBitmap(const std::vector<BYTE>& pixels, UINT width, UINT height, int depth) {
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof bmi.bmiHeader;
    bmi.bmiHeader.biWidth = static_cast<LONG>(width);
    bmi.bmiHeader.biHeight = static_cast<LONG>(height);
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = static_cast<WORD>(depth);
    bmi.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &bmi, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap)
        return nullptr;
    const size_t bytes = static_cast<size_t>(depth / 8);
    const size_t stride = (width * bytes + 3) & ~static_cast<size_t>(3);
    for (UINT y = 0; y < height; ++y) {
        const BYTE* in = &pixels[static_cast<size_t>(y) * width * 4];
        BYTE* out = static_cast<BYTE*>(bits) + (height - 1 - y) * stride;
        for (UINT x = 0; x < width; ++x, in += 4, out += bytes) {
            if (depth == 32) {
                out[0] = in[0];
                out[1] = in[1];
                out[2] = in[2];
                out[3] = in[3];
            } else {
                // Onto white: c * a + 255 * (1 - a).
                for (int c = 0; c < 3; ++c)
                    out[c] = static_cast<BYTE>((in[c] * in[3] + 255 * (255 - in[3]) + 127) / 255);
            }
        }
    }
    GdiFlush();
    return bitmap;
}

// A 1 x 1 picture of 24-bit pixels, as a .bmp file holds it.
const BYTE kOnePixel[] = {'B', 'M', 58, 0, 0, 0, 0, 0, 0,  0, 54, 0, 0, 0, 40, 0, 0, 0, 1, 0,
                          0,   0,   1,  0, 0, 0, 1, 0, 24, 0, 0,  0, 0, 0, 4,  0, 0, 0, 0, 0,
                          0,   0,   0,  0, 0, 0, 0, 0, 0,  0, 0,  0, 0, 0, 0,  0, 0, 0};

} // namespace

// The program holds COM on its thread for its whole life, so what this loads stays loaded.
void PrepareImageDecoder() {
    static bool prepared = false;
    if (prepared)
        return;
    prepared = true;
    const std::vector<BYTE> data(kOnePixel, kOnePixel + sizeof kOnePixel);
    DecompressImageInfo info = {};
    info.dwSize = sizeof info;
    ComScope com;
    UINT width = 0, height = 0;
    std::vector<BYTE> pixels;
    DecodeToBgra(data, &info, width, height, pixels);
}

HRESULT DecompressImageIndirect(DecompressImageInfo* info) {
    if (!info || info->dwSize < sizeof(DecompressImageInfo) || !info->phBM || !info->pfnGetData)
        return E_INVALIDARG;
    *info->phBM = nullptr;
    info->dwBufferCurrent = 0;
    std::vector<BYTE> data;
    if (!ReadAll(info, data))
        return E_FAIL;
    ComScope com;
    UINT width = 0, height = 0;
    std::vector<BYTE> pixels;
    HRESULT hr = DecodeToBgra(data, info, width, height, pixels);
    if (FAILED(hr))
        return hr;
    *info->phBM = MakeBitmap(pixels, width, height, info->iBitDepth == 32 ? 32 : 24);
    return *info->phBM ? S_OK : E_OUTOFMEMORY;
}

} // namespace cv2
