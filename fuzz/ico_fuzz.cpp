// Fuzz target: the icon reader for several wanted sizes (each makes a different image the
// choice), and the scaling of whatever it decodes.
#include <cstdint>

#include "ui/image/icon_reader.h"
#include "ui/image/image_scale.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    for (int wanted : {0, 16, 32, 256}) {
        const cv2::PixelImage image = cv2::ReadIcon(data, size, wanted);
        if (!image.Empty())
            cv2::ScaleImage(image, 5, 9);
    }
    return 0;
}
