#include "pages/appearance/fields_dialog.h"

#include "pages/appearance/own_controls_page.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/dialog_object.h"

namespace cv2 {
namespace {

struct FieldsDialog {
    const FieldsDialogSpec* spec;
    std::vector<std::wstring>* values;
};

INT_PTR OnInitDialog(HWND dlg, const FieldsDialog& self) {
    // Without the full-screen set-up the dialog opens bare: no texts and empty fields.
    if (!InitFullScreenDialog(dlg))
        return TRUE;
    const FieldsDialogSpec& spec = *self.spec;
    SetWindowTextW(dlg, Localized(spec.title));
    SetDialogFonts(dlg, spec.boldIds, spec.boldCount);
    SetControlTexts(dlg, spec.texts, spec.textCount);
    for (size_t i = 0; i < spec.fieldCount; ++i) {
        const DialogField& field = spec.fields[i];
        SendDlgItemMessageW(dlg, field.edit, EM_LIMITTEXT, static_cast<WPARAM>(field.maxChars), 0);
        if (i < self.values->size())
            SetDlgItemTextW(dlg, field.edit, (*self.values)[i].c_str());
    }
    PlaceControls(dlg, spec.places, spec.placeCount);
    return TRUE;
}

void OnOk(HWND dlg, const FieldsDialog& self) {
    const FieldsDialogSpec& spec = *self.spec;
    self.values->resize(spec.fieldCount);
    for (size_t i = 0; i < spec.fieldCount; ++i)
        (*self.values)[i] =
            TextOfWindow(GetDlgItem(dlg, spec.fields[i].edit), spec.fields[i].maxChars);
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
    for (size_t i = 0; i < self.spec->fieldCount; ++i) {
        const DialogField& field = self.spec->fields[i];
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
        PlaceControls(dlg, self->spec->places, self->spec->placeCount);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

bool EditFields(const FieldsDialogSpec& spec, std::vector<std::wstring>& values, HWND parent) {
    std::vector<std::wstring> copy = values;
    FieldsDialog self = {&spec, &copy};
    const DialogTemplates templates = {spec.templateId, spec.templateId, 0};
    if (RunDialog(parent, templates, FieldsProc, reinterpret_cast<LPARAM>(&self)) != IDOK)
        return false;
    values = copy;
    return true;
}

} // namespace cv2
