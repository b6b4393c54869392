// The one store of all settings: config.ini and every theme file are read into an IniDocument,
// changed in memory by the pages and written back whole.
//
// The document is an ordered list of sections, each an ordered list of key/value pairs. Duplicate
// sections and keys are kept as they are; look-ups are case-insensitive and the first match wins.
// Look-ups go through an index of the folded names, so reading, setting and merging cost the same
// in a document of a hundred sections as in one of a hundred thousand.
#pragma once

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace cv2 {

struct WriteFailure; // platform/file_access.h

class IniDocument {
  public:
    struct Entry {
        std::wstring key;
        std::wstring value;
    };
    struct Section {
        std::wstring name;
        std::vector<Entry> entries;
    };
    // A (key, value) view of one entry; the strings stay owned by the document.
    using EntryRef = std::pair<const wchar_t*, const wchar_t*>;

    IniDocument() = default;
    explicit IniDocument(const wchar_t* path);

    // Reads and parses the file; false only when it cannot be opened (the document is then empty).
    // With `onlySection`, see Parse.
    bool Load(const std::wstring& path, const wchar_t* onlySection = nullptr);
    // Parses 8-bit file text held in memory, replacing the current content. With `onlySection`,
    // only the first section of that name is kept and the parse ends where it ends: the look-ups
    // of that section answer as after a whole parse, at a fraction of the cost of a long file.
    void Parse(const unsigned char* bytes, size_t size, const wchar_t* onlySection = nullptr);
    // Writes the whole document to `path` (or to the last loaded/saved path when null).
    // False when the file cannot be written; the previous file then stays as it was, and
    // `failure` (when given) says where and why the write failed.
    bool Save(const wchar_t* path = nullptr, WriteFailure* failure = nullptr);
    // The file text Save would write, with the platform's line ends.
    std::string Serialize() const;
    void Clear();

    // Copies the value (or the default) into `buffer`, cut to bufferChars - 1 characters.
    void GetString(const wchar_t* section, const wchar_t* key, wchar_t* buffer, int bufferChars,
                   const wchar_t* def) const;
    // The same as a string, cut the way a buffer of `bufferChars` would cut it.
    std::wstring GetString(const wchar_t* section, const wchar_t* key, const wchar_t* def,
                           int bufferChars = 1024) const;
    long GetInt(const wchar_t* section, const wchar_t* key, long def) const;
    bool GetBool(const wchar_t* section, const wchar_t* key, bool def) const;

    void SetString(const wchar_t* section, const wchar_t* key, const wchar_t* value);
    void SetInt(const wchar_t* section, const wchar_t* key, int value);
    void SetBool(const wchar_t* section, const wchar_t* key, bool value);

    bool HasSection(const wchar_t* section) const;
    // The entries of the first section of that name, in order; empty if missing or empty.
    std::vector<EntryRef> GetSectionEntries(const wchar_t* section) const;
    void DeleteSection(const wchar_t* section);
    // Deletes, for each name in turn, the first section of that name still present: what one
    // DeleteSection call per name does, in a single pass (an import may name thousands).
    void DeleteSections(const std::vector<std::wstring>& names);
    // Releases every entry of the section; the section itself stays where it is, or is added
    // empty at the end when it was missing (list pages rewrite their section this way).
    void EmptySection(const wchar_t* section);

    // Writes every key of `other` into this document. With `resolvePaths`, a value that is not
    // empty and not absolute is taken as relative to the folder of `other`'s file and replaced by
    // that full path when such a file exists.
    void MergeFrom(const IniDocument& other, bool resolvePaths);
    // Every value that is an absolute path of an existing file and contains `folder` becomes the
    // text that follows `folder` in it.
    void MakePathsRelative(const std::wstring& folder);

    const std::wstring& Path() const { return m_path; }
    const std::vector<Section>& Sections() const { return m_sections; }

  private:
    using NameIndex = std::unordered_map<std::wstring, size_t>;
    static constexpr size_t kNone = static_cast<size_t>(-1);

    // Positions of the first section or key of that name; kNone when missing.
    size_t FindSectionAt(const wchar_t* name) const;
    size_t FindKeyAt(size_t section, const wchar_t* key) const;
    const Section* FindSection(const wchar_t* name) const;
    Section& FindOrAddSection(const wchar_t* name);
    const Entry* FindEntry(const wchar_t* section, const wchar_t* key) const;
    // Appends a cleaned key and value read from the file to the last section.
    void AddParsed(std::wstring key, std::wstring value);
    void AppendEntry(size_t section, const wchar_t* key, const wchar_t* value);
    void BuildIndex() const;
    void DropIndex();

    std::wstring m_path;
    std::vector<Section> m_sections;

    // The look-up index, made on the first look-up (so a parse that is only written out again
    // never pays for it) and kept in step with every change after that. Folded section name to
    // the first section of that name; per section, folded key to its first entry. Sections of
    // a few keys are searched directly: an index would cost more memory than it saves time.
    mutable bool m_indexed = false;
    mutable NameIndex m_sectionIndex;
    mutable std::vector<NameIndex> m_keyIndex; // parallel to m_sections
};

// Case-insensitive comparison used for section and key names (ASCII and Latin-1 letters fold).
bool EqualsNoCase(const wchar_t* a, const wchar_t* b);
// The lower-case form of an ASCII or Latin-1 capital; any other character as it is.
wchar_t FoldCase(wchar_t c);
// The whole text folded with FoldCase.
std::wstring Folded(const wchar_t* text);
// How a stored boolean reads: true for "true" or "yes" in any case.
bool IsTrueWord(const wchar_t* text);

// The leading decimal number of a text, as the C runtime's wide-to-long conversion reads it:
// leading blanks skipped, optional sign, digits; 0 when there are none. Saturates at 32 bits.
long LeadingLong(const wchar_t* text);

} // namespace cv2
