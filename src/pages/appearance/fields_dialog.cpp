#include "pages/appearance/fields_dialog.h"

#include "pages/appearance/own_controls_page.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/dialog_object.h"

namespace cv2 {
namespace {

struct FieldsDialog {
    const FieldsDialogTable* table;
    std::vector<std::wstring>* values;
};

INT_PTR OnInitDialog(HWND dlg, const FieldsDialog& self) {
    // Without the full-screen set-up the dialog opens bare: no texts and empty fields.
    if (!InitFullScreenDialog(dlg))
        return TRUE;
    const FieldsDialogTable& table = *self.table;
    SetWindowTextW(dlg, Localized(table.title));
    SetDialogFonts(dlg, table.boldIds, table.boldCount);
    SetControlTexts(dlg, table.texts, table.textCount);
    for (size_t i = 0; i < table.fieldCount; ++i) {
        const DialogField& field = table.fields[i];
        SendDlgItemMessageW(dlg, field.edit, EM_LIMITTEXT, static_cast<WPARAM>(field.maxChars), 0);
        if (i < self.values->size())
            SetDlgItemTextW(dlg, field.edit, (*self.values)[i].c_str());
    }
    PlaceControls(dlg, table.places, table.placeCount);
    return TRUE;
}

void OnOk(HWND dlg, const FieldsDialog& self) {
    const FieldsDialogTable& table = *self.table;
    self.values->resize(table.fieldCount);
    for (size_t i = 0; i < table.fieldCount; ++i)
        (*self.values)[i] =
            TextOfWindow(GetDlgItem(dlg, table.fields[i].edit), table.fields[i].maxChars);
    EndDialog(dlg, IDOK);
}

void OnClick(HWND dlg, const FieldsDialog& self, int id) {
    switch (id) {
    case IDOK:
        OnOk(dlg, self);
        return;
    case IDCANCEL:
        EndDialog(dlg, IDCANCEL);
        return;
    }
    for (size_t i = 0; i < self.table->fieldCount; ++i) {
        const DialogField& field = self.table->fields[i];
        std::wstring path;
        if (field.browse == id && BrowseGraphicsFile(dlg, path))
            SetDlgItemTextW(dlg, field.edit, path.c_str());
    }
}

INT_PTR CALLBACK FieldsProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    FieldsDialog* self = DialogObject<FieldsDialog>(dlg, msg, lParam);
    if (!self)
        return FALSE;
    switch (msg) {
    case WM_INITDIALOG:
        return OnInitDialog(dlg, *self);
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            OnClick(dlg, *self, LOWORD(wParam));
        return TRUE;
    case WM_SIZE:
        PlaceControls(dlg, self->table->places, self->table->placeCount);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

bool EditFields(const FieldsDialogTable& table, std::vector<std::wstring>& values, HWND parent) {
    std::vector<std::wstring> copy = values;
    FieldsDialog self = {&table, &copy};
    const DialogTemplates templates = {table.templateId, table.templateId, 0};
    if (RunDialog(parent, templates, FieldsProc, reinterpret_cast<LPARAM>(&self)) != IDOK)
        return false;
    values = copy;
    return true;
}

} // namespace cv2
