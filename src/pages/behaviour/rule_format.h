// How each rule list is kept in config.ini, and how its entries travel to and from the custom
// task dialog. Three lists share this: window rules ("Custom Tasks"), input panel rules
// ("Custom SIP") and applications the bar leaves unskinned ("Dont Skin").
#pragma once

#include <cstddef>
#include <string>

#include "pages/behaviour/rule_list.h"
#include "store/ini_document.h"
#include "store/strings.h"

namespace cv2 {

// An entry present when the list's section is missing altogether.
struct DefaultRule {
    const wchar_t* text;
    int data;
};

struct RuleFormat {
    const wchar_t* section;
    // Keys are window titles in double quotes and entries read "title [label]"; otherwise keys
    // and entries are the bare names.
    bool quotedTitles;
    // Entries whose title is empty are still written (as the key "").
    bool keepEmptyTitles;
    // A list without entries removes its section on save instead of leaving it empty.
    bool removeEmptySection;
    // Names are kept in capitals when they come from the dialog.
    bool upperCaseNames;
    // The dialog asks for a process name and offers no action.
    bool processMode;
    // The dialog offers "Hide" and "Show" instead of the three window actions.
    bool showHideMode;
    // Labels of the entry codes 0, 1, 2 (0 where a code has none).
    StringId labelIds[3];
    // Labels used when loading instead of the localised ones, or null.
    const wchar_t* const* fixedLoadLabels;
    // The code of a stored value; `previous` is the code of the entry read before it.
    int (*codeOfValue)(const wchar_t* value, int previous);
    const wchar_t* (*valueOfCode)(int code);
    // The entry code that a dialog action gives.
    int (*codeOfAction)(int action);
    const DefaultRule* defaults;
    size_t defaultCount;
};

extern const RuleFormat kCustomTasksFormat;
extern const RuleFormat kCustomSipFormat;
extern const RuleFormat kDontSkinFormat;

// The label texts of a list, by code. Passed in so that loading and saving need no module.
struct RuleLabels {
    std::wstring byCode[3];
};
RuleLabels LocalizedLabels(const RuleFormat& format);

// Fills `list` from the document, or with the defaults when the section is missing.
void LoadRules(const IniDocument& doc, const RuleFormat& format, const RuleLabels& localized,
               RuleList& list);
// Empties the section and writes every entry again, top to bottom.
void SaveRules(IniDocument& doc, const RuleFormat& format, const RuleList& list);

// What the custom task dialog edits: the text (window title or process name), the action
// (0, 1, 2 by radio button) and the dialog's two mode flags.
struct RuleRecord {
    std::wstring text;
    int action = 0;
    bool processMode = false;
    bool showHideMode = false;
};

// An empty record in the format's dialog mode.
RuleRecord NewRecord(const RuleFormat& format);
// The record that edits an existing entry.
RuleRecord RecordOfEntry(const RuleFormat& format, const RuleEntry& entry);
// The entry a confirmed record becomes, with the localised labels.
RuleEntry EntryOfRecord(const RuleFormat& format, const RuleRecord& record,
                        const RuleLabels& localized);

} // namespace cv2
