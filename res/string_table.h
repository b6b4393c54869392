// The program's visible texts: symbolic name, string number and English default, one file per
// area. The localisation module "language.dll" replaces a text by holding the same number.
// Texts this editor adds on its own (titles and the like) are numbered from 1000 up, clear of
// the numbers that localisation modules already translate.
// Included with CV_STRING defined; no include guard on purpose.
#include "strings/app.h"
#include "strings/ui.h"
#include "strings/behaviour.h"
#include "strings/themes.h"
#include "strings/editor.h"
#include "strings/appearance.h"
#include "strings/appearance_panel.h"
#include "strings/appearance_controls.h"
#include "strings/preview.h"
