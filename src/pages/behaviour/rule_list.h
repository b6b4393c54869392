// The entries of a rule list page, kept in the order the list shows them: alphabetical by text,
// without regard to case. The list control only mirrors this order.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace cv2 {

// One line of a rule list: the text shown and the number kept with it.
struct RuleEntry {
    std::wstring text;
    int data = 0;
};

class RuleList {
  public:
    // Inserts the entry at its sorted place (after entries that compare equal) and returns
    // that place.
    size_t Add(const std::wstring& text, int data);
    // False when there is no entry at `index`.
    bool Remove(size_t index);
    void Clear() { m_entries.clear(); }

    size_t Size() const { return m_entries.size(); }
    bool Empty() const { return m_entries.empty(); }
    const RuleEntry& operator[](size_t index) const { return m_entries[index]; }
    const std::vector<RuleEntry>& Entries() const { return m_entries; }

  private:
    std::vector<RuleEntry> m_entries;
};

// Negative, zero or positive as `a` sorts before, with or after `b`: character by character,
// ASCII and Latin-1 letters folded to lower case, so every build sorts the same way.
int CompareListText(const std::wstring& a, const std::wstring& b);

// The text with ASCII and Latin-1 small letters made capitals.
std::wstring UpperCase(const std::wstring& text);

// The title part of a "title [label]" text: everything before the last '[', less one blank
// before it. A title that itself holds '[' keeps it; a text without '[' is all title.
std::wstring TitleOfLabelledText(const std::wstring& text);

} // namespace cv2
