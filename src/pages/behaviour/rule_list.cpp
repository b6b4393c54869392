#include "pages/behaviour/rule_list.h"

#include <algorithm>

#include "store/ini_document.h"

namespace cv2 {

size_t RuleList::Add(const std::wstring& text, int data) {
    // The entries are always in order, so the place is found by halving: loading a long list
    // compares each text a few times, not once per entry already there.
    const auto place = std::upper_bound(
        m_entries.begin(), m_entries.end(), text,
        [](const std::wstring& t, const RuleEntry& e) { return CompareListText(t, e.text) < 0; });
    const size_t at = static_cast<size_t>(place - m_entries.begin());
    m_entries.insert(place, RuleEntry{text, data});
    return at;
}

bool RuleList::Remove(size_t index) {
    if (index >= m_entries.size())
        return false;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

int CompareListText(const std::wstring& a, const std::wstring& b) {
    const size_t common = a.size() < b.size() ? a.size() : b.size();
    for (size_t i = 0; i < common; ++i) {
        const wchar_t x = FoldCase(a[i]);
        const wchar_t y = FoldCase(b[i]);
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::wstring UpperCase(const std::wstring& text) {
    std::wstring upper = text;
    for (wchar_t& c : upper) {
        if ((c >= L'a' && c <= L'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
            c = static_cast<wchar_t>(c - 32);
    }
    return upper;
}

std::wstring TitleOfLabelledText(const std::wstring& text) {
    size_t cut = text.rfind(L'[');
    if (cut == std::wstring::npos)
        return text;
    if (cut > 0 && text[cut - 1] == L' ')
        --cut;
    return text.substr(0, cut);
}

} // namespace cv2
