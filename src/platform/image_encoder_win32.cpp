#include "platform/image_encoder.h"

#include <objbase.h>
#include <wincodec.h>

#include "platform/com_objects.h"

namespace cv2 {
namespace {

// The pixels as 24-bit rows for the encoder, which wants its own format.
std::vector<BYTE> Rows24(int width, int height, const unsigned char* pixels, int stride) {
    std::vector<BYTE> rows(static_cast<size_t>(width) * height * 3);
    BYTE* out = rows.data();
    for (int y = 0; y < height; ++y) {
        const unsigned char* in = pixels + static_cast<size_t>(y) * stride;
        for (int x = 0; x < width; ++x, in += 4, out += 3) {
            out[0] = in[0];
            out[1] = in[1];
            out[2] = in[2];
        }
    }
    return rows;
}

HRESULT Encode(IStream* stream, int width, int height, std::vector<BYTE>& rows) {
    ComPtr<IWICImagingFactory> factory;
    HRESULT hr = CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
    ComPtr<IWICBitmapEncoder> encoder;
    if (SUCCEEDED(hr))
        hr = factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder);
    if (SUCCEEDED(hr))
        hr = encoder->Initialize(stream, WICBitmapEncoderNoCache);
    ComPtr<IWICBitmapFrameEncode> frame;
    if (SUCCEEDED(hr))
        hr = encoder->CreateNewFrame(&frame, nullptr);
    if (SUCCEEDED(hr))
        hr = frame->Initialize(nullptr);
    if (SUCCEEDED(hr))
        hr = frame->SetSize(static_cast<UINT>(width), static_cast<UINT>(height));
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    if (SUCCEEDED(hr))
        hr = frame->SetPixelFormat(&format);
    if (SUCCEEDED(hr) && format != GUID_WICPixelFormat24bppBGR)
        hr = E_FAIL;
    if (SUCCEEDED(hr))
        hr = frame->WritePixels(static_cast<UINT>(height), static_cast<UINT>(width) * 3,
                                static_cast<UINT>(rows.size()), rows.data());
    if (SUCCEEDED(hr))
        hr = frame->Commit();
    if (SUCCEEDED(hr))
        hr = encoder->Commit();
    return hr;
}

} // namespace

bool EncodePng(int width, int height, const unsigned char* pixels, int stride,
               std::vector<unsigned char>& out) {
    out.clear();
    if (width <= 0 || height <= 0 || !pixels)
        return false;
    ComScope com;
    std::vector<BYTE> rows = Rows24(width, height, pixels, stride);
    ComPtr<IStream> stream;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)) ||
        FAILED(Encode(stream.get(), width, height, rows)))
        return false;
    HGLOBAL memory = nullptr;
    if (FAILED(GetHGlobalFromStream(stream.get(), &memory)))
        return false;
    STATSTG stat = {};
    if (FAILED(stream->Stat(&stat, STATFLAG_NONAME)))
        return false;
    const auto* bytes = static_cast<const unsigned char*>(GlobalLock(memory));
    if (!bytes)
        return false;
    out.assign(bytes, bytes + stat.cbSize.QuadPart);
    GlobalUnlock(memory);
    return !out.empty();
}

} // namespace cv2
