// The device's image decompressor (BMP, JPEG, PNG, GIF), under the device's names and with its
// meaning: the caller hands over a callback that reads the file in chunks and gets back a bitmap.
// On desktop Windows this layer decodes through the platform's imaging component.
#pragma once

#include <windows.h>

namespace cv2 {

// Fills `buffer` with up to `bufferMax` further bytes of the file; returns how many, 0 at the end
// or on a read error.
typedef DWORD(CALLBACK* GETIMAGEDATA)(LPSTR buffer, DWORD bufferMax, LPARAM lParam);

struct DecompressImageInfo {
    DWORD dwSize;          // sizeof(DecompressImageInfo)
    LPBYTE pbBuffer;       // the chunk buffer handed to pfnGetData; null: the decoder's own
    DWORD dwBufferMax;     // its size in bytes
    DWORD dwBufferCurrent; // out: bytes of the file read in all
    HBITMAP* phBM;         // out: the picture, a DIB section the caller deletes
    int iBitDepth;         // 24, or 32 to keep transparency in the fourth byte of each pixel
    LPARAM lParam;         // passed to pfnGetData
    int iMaxWidth;         // nonzero: a larger picture is shrunk to fit, keeping its shape
    int iMaxHeight;
    GETIMAGEDATA pfnGetData;
};

// Decodes the file pfnGetData delivers. S_OK with *phBM set, or a failure code with *phBM null
// (unknown or damaged format, nothing to read, out of memory).
//
// The bitmap is a bottom-up DIB section. At 32 bits the fourth byte is the pixel's alpha,
// not premultiplied; at 24 bits transparent parts are composed onto white.
HRESULT DecompressImageIndirect(DecompressImageInfo* info);

// Decodes a tiny picture held in memory once, so that the imaging component is loaded before the
// first page that shows pictures needs it; later calls do nothing. For idle moments.
void PrepareImageDecoder();

} // namespace cv2
