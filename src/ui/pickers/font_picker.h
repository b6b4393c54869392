// The font picker: a full-screen dialog for the face, size, colours and style of a font record.
#pragma once

#include <windows.h>

#include "ui/pickers/font_record.h"

namespace cv2 {

// Shows the dialog on a copy of `record`'s values. On OK (true) the record is re-created from
// the choice, without ClearType, and takes the chosen colours; on Cancel it is left alone.
bool PickFont(FontRecord& record, HWND parent);

} // namespace cv2
