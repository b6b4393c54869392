// Fuzz target: the icon reader for several wanted sizes (each makes a different image the
// choice), and the scaling of whatever it decodes.
#include <cstdint>

#include "ui/image/icon_reader.h"
#include "ui/image/image_scale.h"

namespace {

// Stands in for the platform's PNG decoder, which the native build lacks: it reads every byte it
// is given, so a PNG image handed out of bounds shows.
cv2::PixelImage ReadEveryByte(const unsigned char* png, size_t size) {
    unsigned sum = 0;
    for (size_t i = 0; i < size; ++i)
        sum += png[i];
    return cv2::MakePixelImage(1 + static_cast<int>(sum % 3), 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    for (int wanted : {0, 16, 32, 256}) {
        const cv2::PixelImage image = cv2::ReadIcon(data, size, wanted, ReadEveryByte);
        if (!image.Empty())
            cv2::ScaleImage(image, 5, 9);
    }
    return 0;
}
