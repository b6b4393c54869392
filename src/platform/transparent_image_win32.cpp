#include "platform/transparent_image.h"

namespace cv2 {

BOOL TransparentImage(HDC dest, LONG destX, LONG destY, LONG destWidth, LONG destHeight,
                      HANDLE source, LONG sourceX, LONG sourceY, LONG sourceWidth,
                      LONG sourceHeight, COLORREF transparent) {
    if (GetObjectType(source) != OBJ_BITMAP)
        return TransparentBlt(dest, destX, destY, destWidth, destHeight, static_cast<HDC>(source),
                              sourceX, sourceY, sourceWidth, sourceHeight, transparent);
    HDC memory = CreateCompatibleDC(dest);
    if (!memory)
        return FALSE;
    HGDIOBJ old = SelectObject(memory, source);
    const BOOL ok = TransparentBlt(dest, destX, destY, destWidth, destHeight, memory, sourceX,
                                   sourceY, sourceWidth, sourceHeight, transparent);
    SelectObject(memory, old);
    DeleteDC(memory);
    return ok;
}

} // namespace cv2
