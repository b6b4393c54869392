// What this device tells the preview's scene builder: its colours, whether it has a phone, the
// time now with the user's clock names, the plug-ins' buttons, and the sizes of pictures and
// texts as `painter` reads and draws them.
#pragma once

#include "themes/preview/scene_builder.h"
#include "ui/preview/scene_painter.h"

namespace cv2 {

PreviewDevice ThisDevicePreview(ScenePainter& painter);

} // namespace cv2
