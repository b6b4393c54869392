// Resampling of a pixel image to another size, alpha included.
#pragma once

#include "ui/image/pixel_image.h"

namespace cv2 {

// The image resampled to width x height. Each new pixel is the average of the source area it
// covers, weighted by the covered fraction and by alpha, so shrinking smooths and enlarging by
// whole factors repeats pixels exactly, and fully transparent pixels lend no colour to their
// neighbours. A width or height of 0 or less follows the other keeping the aspect ratio; both
// 0 or less keep the size. An empty source, or a size beyond the pixel cap, gives an empty image.
PixelImage ScaleImage(const PixelImage& source, int width, int height);

} // namespace cv2
