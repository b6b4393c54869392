#include "pages/behaviour/rule_format.h"

#include "store/config_sections.h"

namespace cv2 {
namespace {

// Window actions: 0 ignore, 1 minimise, 2 close.
const wchar_t* const kActionWords[3] = {L"ignore", L"minimize", L"close"};

int ActionOfWord(const wchar_t* value, int previous) {
    for (int code = 0; code < 3; ++code) {
        if (EqualsNoCase(value, kActionWords[code]))
            return code;
    }
    return previous;
}

// Codes other than ignore and minimise are written as close.
const wchar_t* WordOfAction(int code) {
    return kActionWords[code == 0 || code == 1 ? code : 2];
}

int ActionOfRadio(int action) {
    return action == 0 || action == 1 ? action : 2;
}

// Input panel: 1 show, 0 hide. Any value that is not empty and does not start with '0' shows.
int ShowOfValue(const wchar_t* value, int) {
    return value[0] != L'\0' && value[0] != L'0';
}

const wchar_t* ValueOfShow(int code) {
    return code != 0 ? L"1" : L"0";
}

int ShowOfRadio(int action) {
    return action == 1 ? 1 : 0;
}

// Unskinned applications carry no code; every key holds "1".
int NoCode(const wchar_t*, int) {
    return 0;
}

const wchar_t* MarkValue(int) {
    return L"1";
}

int NoAction(int) {
    return 0;
}

// These texts are stored and shown as they stand, whatever the language.
const DefaultRule kDefaultTasks[] = {{L"ActiveSync [Ignore]", 0}, {L"Phone [Ignore]", 0}};
const DefaultRule kDefaultUnskinned[] = {{L"REPLIGO.EXE", 0}};
const wchar_t* const kShowHideWords[3] = {L"Hide", L"Show", nullptr};

size_t LabelIndex(int code) {
    return code == 0 || code == 1 ? static_cast<size_t>(code) : 2;
}

std::wstring LabelledText(const std::wstring& title, const RuleLabels& labels, int code) {
    return title + L" [" + labels.byCode[LabelIndex(code)] + L"]";
}

// The key less its first and last character (the quotes around a title).
std::wstring Unquoted(const std::wstring& key) {
    return key.size() < 2 ? std::wstring() : key.substr(1, key.size() - 2);
}

} // namespace

const RuleFormat kCustomTasksFormat = {
    config::kCustomTasks,
    /*quotedTitles*/ true,
    /*keepEmptyTitles*/ false,
    /*removeEmptySection*/ true,
    /*upperCaseNames*/ false,
    /*processMode*/ false,
    /*showHideMode*/ false,
    {IDS_ACTION_IGNORE, IDS_ACTION_MINIMIZE, IDS_ACTION_CLOSE},
    /*fixedLoadLabels*/ nullptr,
    ActionOfWord,
    WordOfAction,
    ActionOfRadio,
    kDefaultTasks,
    sizeof kDefaultTasks / sizeof kDefaultTasks[0],
};

const RuleFormat kCustomSipFormat = {
    config::kCustomSip,
    /*quotedTitles*/ true,
    /*keepEmptyTitles*/ true,
    /*removeEmptySection*/ false,
    /*upperCaseNames*/ false,
    /*processMode*/ false,
    /*showHideMode*/ true,
    {IDS_HIDE, IDS_SHOW, StringId(0)},
    /*fixedLoadLabels*/ kShowHideWords,
    ShowOfValue,
    ValueOfShow,
    ShowOfRadio,
    /*defaults*/ nullptr,
    0,
};

const RuleFormat kDontSkinFormat = {
    config::kDontSkin,
    /*quotedTitles*/ false,
    /*keepEmptyTitles*/ false,
    /*removeEmptySection*/ true,
    /*upperCaseNames*/ true,
    /*processMode*/ true,
    /*showHideMode*/ false,
    {StringId(0), StringId(0), StringId(0)},
    /*fixedLoadLabels*/ nullptr,
    NoCode,
    MarkValue,
    NoAction,
    kDefaultUnskinned,
    sizeof kDefaultUnskinned / sizeof kDefaultUnskinned[0],
};

RuleLabels LocalizedLabels(const RuleFormat& format) {
    RuleLabels labels;
    for (size_t i = 0; i < 3; ++i) {
        if (format.labelIds[i] != 0)
            labels.byCode[i] = Localized(format.labelIds[i]);
    }
    return labels;
}

void LoadRules(const IniDocument& doc, const RuleFormat& format, const RuleLabels& localized,
               RuleList& list) {
    list.Clear();
    if (!doc.HasSection(format.section)) {
        for (size_t i = 0; i < format.defaultCount; ++i)
            list.Add(format.defaults[i].text, format.defaults[i].data);
        return;
    }
    RuleLabels labels = localized;
    if (format.fixedLoadLabels) {
        for (size_t i = 0; i < 3; ++i)
            labels.byCode[i] = format.fixedLoadLabels[i] ? format.fixedLoadLabels[i] : L"";
    }
    int code = 0;
    for (const IniDocument::EntryRef& pair : doc.GetSectionEntries(format.section)) {
        code = format.codeOfValue(pair.second, code);
        if (!format.quotedTitles) {
            list.Add(pair.first, code);
            continue;
        }
        const std::wstring title = Unquoted(pair.first);
        if (!title.empty() || format.keepEmptyTitles)
            list.Add(LabelledText(title, labels, code), code);
    }
}

void SaveRules(IniDocument& doc, const RuleFormat& format, const RuleList& list) {
    doc.EmptySection(format.section);
    for (const RuleEntry& entry : list.Entries()) {
        const std::wstring title =
            format.quotedTitles ? TitleOfLabelledText(entry.text) : entry.text;
        if (title.empty() && !format.keepEmptyTitles)
            continue;
        const std::wstring key = format.quotedTitles ? L"\"" + title + L"\"" : title;
        doc.SetString(format.section, key.c_str(), format.valueOfCode(entry.data));
    }
    if (list.Empty() && format.removeEmptySection)
        doc.DeleteSection(format.section);
}

RuleRecord NewRecord(const RuleFormat& format) {
    RuleRecord record;
    record.processMode = format.processMode;
    record.showHideMode = format.showHideMode;
    return record;
}

RuleRecord RecordOfEntry(const RuleFormat& format, const RuleEntry& entry) {
    RuleRecord record = NewRecord(format);
    record.text = format.quotedTitles ? TitleOfLabelledText(entry.text) : entry.text;
    record.action = entry.data;
    return record;
}

RuleEntry EntryOfRecord(const RuleFormat& format, const RuleRecord& record,
                        const RuleLabels& localized) {
    if (!format.quotedTitles)
        return RuleEntry{format.upperCaseNames ? UpperCase(record.text) : record.text, 0};
    const int code = format.codeOfAction(record.action);
    return RuleEntry{LabelledText(record.text, localized, code), code};
}

} // namespace cv2
