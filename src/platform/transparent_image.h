// The device's colour-keyed blit: copies (and stretches) a source rectangle, leaving out the
// pixels of one colour. The source is a device context or a bitmap, as on the device.
// On desktop Windows it is built on TransparentBlt.
#pragma once

#include <windows.h>

namespace cv2 {

BOOL TransparentImage(HDC dest, LONG destX, LONG destY, LONG destWidth, LONG destHeight,
                      HANDLE source, LONG sourceX, LONG sourceY, LONG sourceWidth,
                      LONG sourceHeight, COLORREF transparent);

} // namespace cv2
