#include "store/ini_document.h"

#include <climits>
#include <cstring>
#include <unordered_map>

#include "platform/file_access.h"
#include "store/paths.h"
#include "store/text_codec.h"

namespace cv2 {
namespace {

bool IsLineBreak(wchar_t c) {
    return c == L'\n' || c == L'\r';
}

// A stretch of the decoded file text, cleaned without copying it first.
struct TextRange {
    const wchar_t* begin;
    size_t size;
};

// Cuts at the first '#' outside double quotes, then strips trailing blanks and line breaks and
// leading blanks (the blank character only; tabs stay).
std::wstring Clean(TextRange text) {
    bool quoted = false;
    size_t end = text.size;
    for (size_t i = 0; i < text.size; ++i) {
        if (text.begin[i] == L'"') {
            quoted = !quoted;
        } else if (text.begin[i] == L'#' && !quoted) {
            end = i;
            break;
        }
    }
    while (end > 0 && (text.begin[end - 1] == L' ' || IsLineBreak(text.begin[end - 1])))
        --end;
    size_t begin = 0;
    while (begin < end && text.begin[begin] == L' ')
        ++begin;
    return std::wstring(text.begin + begin, end - begin);
}

enum class ParseState { Idle, SectionName, Comment, Key, Value };

// Sections with at most this many keys are searched key by key rather than through an index.
const size_t kDirectSearchKeys = 8;

} // namespace

wchar_t FoldCase(wchar_t c) {
    if ((c >= L'A' && c <= L'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<wchar_t>(c + 32);
    return c;
}

bool EqualsNoCase(const wchar_t* a, const wchar_t* b) {
    for (; *a && *b; ++a, ++b) {
        if (FoldCase(*a) != FoldCase(*b))
            return false;
    }
    return *a == *b;
}

long LeadingLong(const wchar_t* text) {
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r'))
        ++text;
    bool negative = false;
    if (*text == L'-' || *text == L'+')
        negative = (*text++ == L'-');
    long long value = 0;
    for (; *text >= L'0' && *text <= L'9'; ++text) {
        value = value * 10 + (*text - L'0');
        if (value > static_cast<long long>(INT_MAX) + 1)
            value = static_cast<long long>(INT_MAX) + 1;
    }
    if (negative)
        return static_cast<long>(-value);
    return static_cast<long>(value > INT_MAX ? INT_MAX : value);
}

IniDocument::IniDocument(const wchar_t* path) {
    if (path)
        Load(path);
}

bool IniDocument::Load(const std::wstring& path, const wchar_t* onlySection) {
    m_path = CutToBuffer(path, kMaxPath);
    Clear();
    Bytes bytes;
    if (!ReadWholeFile(m_path, bytes))
        return false;
    Parse(bytes.data(), bytes.size(), onlySection);
    return true;
}

void IniDocument::Parse(const unsigned char* bytes, size_t size, const wchar_t* onlySection) {
    Clear();
    const std::wstring text = DecodeAnsi(bytes, size);
    ParseState state = ParseState::Idle;
    size_t start = 0;   // where the current name, key or value starts
    TextRange key = {}; // the key of the line being read, once '=' was seen
    // Whether the pairs read now are kept: all of them, or those of the one section asked for.
    bool keeping = !onlySection || !*onlySection;
    for (size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        switch (state) {
        case ParseState::Idle:
            if (c == L'[') {
                state = ParseState::SectionName;
                start = i + 1;
            } else if (c == L';') {
                state = ParseState::Comment;
            } else if (!IsLineBreak(c)) {
                state = ParseState::Key;
                start = i;
            }
            break;
        case ParseState::SectionName:
            if (c == L']') {
                std::wstring name = text.substr(start, i - start);
                state = ParseState::Idle;
                if (onlySection) {
                    // The first section of that name is the one look-ups find; the rest of the
                    // file cannot change what they answer.
                    if (!m_sections.empty())
                        return;
                    keeping = EqualsNoCase(name.c_str(), onlySection);
                    if (!keeping)
                        break;
                }
                m_sections.push_back(Section{std::move(name), {}});
            } else if (IsLineBreak(c)) {
                state = ParseState::Idle;
            }
            break;
        case ParseState::Comment:
            if (IsLineBreak(c))
                state = ParseState::Idle;
            break;
        case ParseState::Key:
            if (c == L'=') {
                key = TextRange{text.data() + start, i - start};
                start = i + 1;
                state = ParseState::Value;
            } else if (IsLineBreak(c)) {
                state = ParseState::Idle; // a key line without '=' is dropped
            }
            break;
        case ParseState::Value:
            if (IsLineBreak(c)) {
                if (keeping)
                    AddParsed(Clean(key), Clean(TextRange{text.data() + start, i - start}));
                state = ParseState::Idle;
            }
            break;
        }
    }
    // A file that ends inside a value keeps the value up to its last character.
    if (state == ParseState::Value && keeping)
        AddParsed(Clean(key), Clean(TextRange{text.data() + start, text.size() - start}));
}

// Appends a parsed pair to the current (last made) section; a pair before any header gets a
// section with the empty name.
void IniDocument::AddParsed(std::wstring key, std::wstring value) {
    if (key.empty())
        return;
    if (m_sections.empty())
        m_sections.push_back(Section{});
    m_sections.back().entries.push_back(Entry{std::move(key), std::move(value)});
}

std::string IniDocument::Serialize() const {
    const std::string eol = TextLineEnd();
    std::string out;
    for (const Section& s : m_sections) {
        out += "[" + EncodeAnsi(s.name) + "]" + eol;
        for (const Entry& e : s.entries) {
            if (!e.key.empty())
                out += EncodeAnsi(e.key) + "=" + EncodeAnsi(e.value) + eol;
        }
        out += eol;
    }
    return out;
}

bool IniDocument::Save(const wchar_t* path, WriteFailure* failure) {
    if (path)
        m_path = CutToBuffer(path, kMaxPath);
    const std::string text = Serialize();
    return WriteFileReplacing(m_path, Bytes(text.begin(), text.end()), failure);
}

void IniDocument::Clear() {
    m_sections.clear();
    DropIndex();
}

void IniDocument::DropIndex() {
    m_indexed = false;
    m_sectionIndex.clear();
    m_keyIndex.clear();
}

// Indexes every section's name, and the keys of the larger sections; the first of equal names
// keeps its place, as the first match wins.
void IniDocument::BuildIndex() const {
    m_sectionIndex.clear();
    m_keyIndex.assign(m_sections.size(), NameIndex());
    for (size_t s = 0; s < m_sections.size(); ++s) {
        m_sectionIndex.emplace(Folded(m_sections[s].name.c_str()), s);
        const std::vector<Entry>& entries = m_sections[s].entries;
        if (entries.size() <= kDirectSearchKeys)
            continue;
        for (size_t e = 0; e < entries.size(); ++e)
            m_keyIndex[s].emplace(Folded(entries[e].key.c_str()), e);
    }
    m_indexed = true;
}

size_t IniDocument::FindSectionAt(const wchar_t* name) const {
    if (!m_indexed)
        BuildIndex();
    const auto it = m_sectionIndex.find(Folded(name));
    return it == m_sectionIndex.end() ? kNone : it->second;
}

size_t IniDocument::FindKeyAt(size_t section, const wchar_t* key) const {
    const std::vector<Entry>& entries = m_sections[section].entries;
    if (entries.size() <= kDirectSearchKeys) {
        for (size_t e = 0; e < entries.size(); ++e) {
            if (EqualsNoCase(entries[e].key.c_str(), key))
                return e;
        }
        return kNone;
    }
    const NameIndex& keys = m_keyIndex[section];
    const auto it = keys.find(Folded(key));
    return it == keys.end() ? kNone : it->second;
}

// Appends a key to a section and keeps the index in step. The section's key index is made when
// the section grows past the size that is searched directly.
void IniDocument::AppendEntry(size_t section, const wchar_t* key, const wchar_t* value) {
    std::vector<Entry>& entries = m_sections[section].entries;
    entries.push_back(Entry{key, value});
    if (!m_indexed)
        return;
    NameIndex& keys = m_keyIndex[section];
    if (entries.size() == kDirectSearchKeys + 1) {
        for (size_t e = 0; e < entries.size(); ++e)
            keys.emplace(Folded(entries[e].key.c_str()), e);
    } else if (entries.size() > kDirectSearchKeys + 1) {
        keys.emplace(Folded(key), entries.size() - 1);
    }
}

const IniDocument::Section* IniDocument::FindSection(const wchar_t* name) const {
    const size_t at = FindSectionAt(name);
    return at == kNone ? nullptr : &m_sections[at];
}

IniDocument::Section& IniDocument::FindOrAddSection(const wchar_t* name) {
    const size_t at = FindSectionAt(name);
    if (at != kNone)
        return m_sections[at];
    m_sectionIndex.emplace(Folded(name), m_sections.size());
    m_keyIndex.emplace_back();
    m_sections.push_back(Section{name, {}});
    return m_sections.back();
}

const IniDocument::Entry* IniDocument::FindEntry(const wchar_t* section, const wchar_t* key) const {
    const size_t s = FindSectionAt(section);
    if (s == kNone)
        return nullptr;
    const size_t e = FindKeyAt(s, key);
    return e == kNone ? nullptr : &m_sections[s].entries[e];
}

void IniDocument::GetString(const wchar_t* section, const wchar_t* key, wchar_t* buffer,
                            int bufferChars, const wchar_t* def) const {
    if (!buffer || bufferChars <= 0)
        return;
    std::memset(buffer, 0, sizeof(wchar_t) * static_cast<size_t>(bufferChars));
    const Entry* e = FindEntry(section, key);
    const wchar_t* source = e ? e->value.c_str() : (def ? def : L"");
    for (int i = 0; i < bufferChars - 1 && source[i]; ++i)
        buffer[i] = source[i];
}

std::wstring IniDocument::GetString(const wchar_t* section, const wchar_t* key, const wchar_t* def,
                                    int bufferChars) const {
    const Entry* e = FindEntry(section, key);
    const std::wstring value = e ? e->value : std::wstring(def ? def : L"");
    return CutToBuffer(value, bufferChars > 0 ? static_cast<size_t>(bufferChars) : 0);
}

long IniDocument::GetInt(const wchar_t* section, const wchar_t* key, long def) const {
    const Entry* e = FindEntry(section, key);
    return e ? LeadingLong(e->value.c_str()) : def;
}

bool IniDocument::GetBool(const wchar_t* section, const wchar_t* key, bool def) const {
    const Entry* e = FindEntry(section, key);
    if (!e)
        return def;
    return IsTrueWord(e->value.c_str());
}

void IniDocument::SetString(const wchar_t* section, const wchar_t* key, const wchar_t* value) {
    const size_t s = static_cast<size_t>(&FindOrAddSection(section) - m_sections.data());
    const size_t e = FindKeyAt(s, key);
    if (e != kNone)
        m_sections[s].entries[e].value = value ? value : L"";
    else
        AppendEntry(s, key, value ? value : L"");
}

void IniDocument::SetInt(const wchar_t* section, const wchar_t* key, int value) {
    SetString(section, key, std::to_wstring(value).c_str());
}

void IniDocument::SetBool(const wchar_t* section, const wchar_t* key, bool value) {
    SetString(section, key, value ? L"TRUE" : L"FALSE");
}

bool IniDocument::HasSection(const wchar_t* section) const {
    return FindSection(section) != nullptr;
}

std::vector<IniDocument::EntryRef> IniDocument::GetSectionEntries(const wchar_t* section) const {
    std::vector<EntryRef> refs;
    if (const Section* s = FindSection(section)) {
        for (const Entry& e : s->entries)
            refs.emplace_back(e.key.c_str(), e.value.c_str());
    }
    return refs;
}

// Every later section moves up one place, so the index is made again on the next look-up.
void IniDocument::DeleteSection(const wchar_t* section) {
    const size_t at = FindSectionAt(section);
    if (at == kNone)
        return;
    m_sections.erase(m_sections.begin() + static_cast<std::ptrdiff_t>(at));
    DropIndex();
}

void IniDocument::DeleteSections(const std::vector<std::wstring>& names) {
    // How many more sections of each folded name are still to go.
    std::unordered_map<std::wstring, size_t> pending;
    for (const std::wstring& name : names)
        ++pending[Folded(name.c_str())];
    std::vector<Section> kept;
    kept.reserve(m_sections.size());
    for (Section& s : m_sections) {
        auto it = pending.find(Folded(s.name.c_str()));
        if (it != pending.end() && it->second > 0)
            --it->second;
        else
            kept.push_back(std::move(s));
    }
    m_sections = std::move(kept);
    DropIndex();
}

void IniDocument::EmptySection(const wchar_t* section) {
    Section& s = FindOrAddSection(section);
    s.entries.clear();
    m_keyIndex[static_cast<size_t>(&s - m_sections.data())].clear();
}

void IniDocument::MergeFrom(const IniDocument& other, bool resolvePaths) {
    const std::wstring folder = FolderOf(other.m_path);
    for (const Section& s : other.m_sections) {
        for (const Entry& e : s.entries) {
            std::wstring value = e.value;
            if (resolvePaths && !value.empty() && !IsAbsolutePath(value)) {
                const std::wstring full = CutToBuffer(folder + value, kMaxPath);
                if (FileExists(full))
                    value = full;
            }
            SetString(s.name.c_str(), e.key.c_str(), value.c_str());
        }
    }
}

void IniDocument::MakePathsRelative(const std::wstring& folder) {
    if (folder.empty())
        return;
    for (Section& s : m_sections) {
        for (Entry& e : s.entries) {
            if (!IsAbsolutePath(e.value))
                continue;
            const size_t at = e.value.find(folder);
            if (at != std::wstring::npos && FileExists(e.value))
                e.value = e.value.substr(at + folder.size());
        }
    }
}

std::wstring Folded(const wchar_t* text) {
    std::wstring folded;
    for (; *text; ++text)
        folded += FoldCase(*text);
    return folded;
}

bool IsTrueWord(const wchar_t* text) {
    return EqualsNoCase(text, L"true") || EqualsNoCase(text, L"yes");
}

} // namespace cv2
