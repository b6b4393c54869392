#include "ui/browser/thumbnails.h"

#include "ui/icon_grid_layout.h"
#include "ui/image/image_loader.h"
#include "ui/image/image_scale.h"

namespace cv2 {

LoadedImage LoadThumbnail(const std::wstring& path, int side, COLORREF background) {
    // The size to load at depends on the picture's own size, so the picture is read first and
    // then scaled once, smoothly, to its slot (the grid would only stretch it pixel by pixel).
    const PixelImage pixels = ReadImagePixels(path);
    if (pixels.Empty())
        return LoadedImage();
    const GridSize fit = GridFitPicture(pixels.width, pixels.height, {side, side});
    LoadedImage image =
        LoadedImage::FromPixels(fit.width == pixels.width && fit.height == pixels.height
                                    ? pixels
                                    : ScaleImage(pixels, fit.width, fit.height));
    image.Flatten(background);
    return image;
}

} // namespace cv2
