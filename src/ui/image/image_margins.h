// Stretching a picture by its margins: the edges of a button picture keep their width (or
// height) and only the middle stretches, so rounded corners stay round at any size. Portable.
#pragma once

#include "ui/image/pixel_image.h"

namespace cv2 {

// Edges of a picture, in the picture's own pixels.
struct ImageMargins {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

// The picture at width x height: its four corners scaled by `scalePercent`, its edges stretched
// along their length only and its middle both ways. Margins beyond the picture are cut to it; when
// the scaled edges are wider (or higher) than the result they share it in proportion. Empty for
// an empty picture or a size the program does not accept.
PixelImage StretchByMargins(const PixelImage& source, int width, int height,
                            const ImageMargins& margins, int scalePercent);

} // namespace cv2
