// Fuzz target: the Targa reader, and the scaling of whatever it decodes.
#include <cstdint>

#include "ui/image/image_scale.h"
#include "ui/image/targa_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const cv2::PixelImage image = cv2::ReadTarga(data, size);
    if (!image.Empty()) {
        cv2::ScaleImage(image, 7, 5);
        cv2::ScaleImage(image, image.width * 2, 0);
    }
    return 0;
}
