#include "platform/com.h"

#include <objbase.h>

namespace cv2 {

void InitializeCom() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }

void UninitializeCom() { CoUninitialize(); }

} // namespace cv2
