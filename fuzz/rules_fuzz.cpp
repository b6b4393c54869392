// Fuzz target: reading and writing the rule lists (window, input panel and unskinned-program
// rules) of any config.ini, then reading what was written.
#include <cstdint>
#include <string>

#include "pages/behaviour/rule_format.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    cv2::IniDocument doc;
    doc.Parse(data, size);
    const cv2::RuleFormat* formats[] = {&cv2::kCustomTasksFormat, &cv2::kCustomSipFormat,
                                        &cv2::kDontSkinFormat};
    for (const cv2::RuleFormat* format : formats) {
        cv2::RuleLabels labels;
        labels.byCode[0] = L"a";
        labels.byCode[1] = L"[b]";
        labels.byCode[2] = L"";
        cv2::RuleList list;
        cv2::LoadRules(doc, *format, labels, list);
        for (const cv2::RuleEntry& entry : list.Entries()) {
            const cv2::RuleRecord record = cv2::RecordOfEntry(*format, entry);
            cv2::EntryOfRecord(*format, record, labels);
        }
        cv2::SaveRules(doc, *format, list);
    }
    const std::string text = doc.Serialize();
    cv2::IniDocument again;
    again.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    for (const cv2::RuleFormat* format : formats) {
        cv2::RuleList list;
        cv2::LoadRules(again, *format, cv2::RuleLabels(), list);
    }
    return 0;
}
