// A full-screen dialog of text fields described by a table: each field an edit box with a
// longest length, some with a "..." button that browses for a picture into it. The application
// buttons' images and a custom notification are edited this way.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "ui/control_layout.h"
#include "ui/dialog_layout.h"

namespace cv2 {

struct DialogField {
    int edit;
    int browse; // 0: no "..." button
    int maxChars;
};

struct FieldsDialogTable {
    WORD templateId;
    StringId title;
    const DialogField* fields;
    size_t fieldCount;
    const ControlText* texts; // labels, localised when the dialog opens
    size_t textCount;
    const ControlPlace* places; // every control, for any screen
    size_t placeCount;
    const int* boldIds;
    size_t boldCount;
};

// Opens the dialog with `values` (one per field, in table order) in its boxes. On OK returns
// true with `values` holding what the boxes hold, each cut to its field's length; on Cancel
// `values` is left alone.
bool EditFields(const FieldsDialogTable& table, std::vector<std::wstring>& values, HWND parent);

} // namespace cv2
