#include "store/ini_document.h"

#include <climits>
#include <cstring>
#include <unordered_map>

#include "platform/file_access.h"
#include "store/paths.h"
#include "store/text_codec.h"

namespace cv2 {
namespace {

bool IsLineBreak(wchar_t c) { return c == L'\n' || c == L'\r'; }

// Cuts at the first '#' outside double quotes, then strips trailing blanks and line breaks and
// leading blanks (the blank character only; tabs stay).
std::wstring Clean(const std::wstring& text) {
    bool quoted = false;
    size_t end = text.size();
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'"') {
            quoted = !quoted;
        } else if (text[i] == L'#' && !quoted) {
            end = i;
            break;
        }
    }
    while (end > 0 && (text[end - 1] == L' ' || IsLineBreak(text[end - 1])))
        --end;
    size_t begin = 0;
    while (begin < end && text[begin] == L' ')
        ++begin;
    return text.substr(begin, end - begin);
}

// The form under which EqualsNoCase finds two names equal.
std::wstring Folded(const std::wstring& text) {
    std::wstring folded = text;
    for (wchar_t& c : folded)
        c = FoldCase(c);
    return folded;
}

enum class ParseState { Idle, SectionName, Comment, Key, Value };

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

bool IniDocument::Load(const std::wstring& path) {
    m_path = CutToBuffer(path, kMaxPath);
    Clear();
    Bytes bytes;
    if (!ReadWholeFile(m_path, bytes))
        return false;
    Parse(bytes.data(), bytes.size());
    return true;
}

void IniDocument::Parse(const unsigned char* bytes, size_t size) {
    Clear();
    const std::wstring text = DecodeAnsi(bytes, size);
    ParseState state = ParseState::Idle;
    size_t start = 0;    // where the current name, key or value starts
    std::wstring key;    // the key of the line being read, once '=' was seen
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
                m_sections.push_back(Section{text.substr(start, i - start), {}});
                state = ParseState::Idle;
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
                key = text.substr(start, i - start);
                start = i + 1;
                state = ParseState::Value;
            } else if (IsLineBreak(c)) {
                state = ParseState::Idle; // a key line without '=' is dropped
            }
            break;
        case ParseState::Value:
            if (IsLineBreak(c)) {
                AddParsed(key, text.substr(start, i - start));
                state = ParseState::Idle;
            }
            break;
        }
    }
    // A file that ends inside a value keeps the value up to its last character.
    if (state == ParseState::Value)
        AddParsed(key, text.substr(start));
}

// Appends a parsed pair to the current (last made) section; a pair before any header gets a
// section with the empty name.
void IniDocument::AddParsed(const std::wstring& rawKey, const std::wstring& rawValue) {
    const std::wstring key = Clean(rawKey);
    if (key.empty())
        return;
    if (m_sections.empty())
        m_sections.push_back(Section{});
    m_sections.back().entries.push_back(Entry{key, Clean(rawValue)});
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

bool IniDocument::Save(const wchar_t* path) {
    if (path)
        m_path = CutToBuffer(path, kMaxPath);
    const std::string text = Serialize();
    return WriteFileReplacing(m_path, Bytes(text.begin(), text.end()));
}

void IniDocument::Clear() { m_sections.clear(); }

const IniDocument::Section* IniDocument::FindSection(const wchar_t* name) const {
    for (const Section& s : m_sections) {
        if (EqualsNoCase(s.name.c_str(), name))
            return &s;
    }
    return nullptr;
}

IniDocument::Section& IniDocument::FindOrAddSection(const wchar_t* name) {
    for (Section& s : m_sections) {
        if (EqualsNoCase(s.name.c_str(), name))
            return s;
    }
    m_sections.push_back(Section{name, {}});
    return m_sections.back();
}

const IniDocument::Entry* IniDocument::FindEntry(const wchar_t* section, const wchar_t* key) const {
    const Section* s = FindSection(section);
    if (!s)
        return nullptr;
    for (const Entry& e : s->entries) {
        if (EqualsNoCase(e.key.c_str(), key))
            return &e;
    }
    return nullptr;
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
    return EqualsNoCase(e->value.c_str(), L"true") || EqualsNoCase(e->value.c_str(), L"yes");
}

void IniDocument::SetString(const wchar_t* section, const wchar_t* key, const wchar_t* value) {
    Section& s = FindOrAddSection(section);
    for (Entry& e : s.entries) {
        if (EqualsNoCase(e.key.c_str(), key)) {
            e.value = value ? value : L"";
            return;
        }
    }
    s.entries.push_back(Entry{key, value ? value : L""});
}

void IniDocument::SetInt(const wchar_t* section, const wchar_t* key, int value) {
    SetString(section, key, std::to_wstring(value).c_str());
}

void IniDocument::SetBool(const wchar_t* section, const wchar_t* key, bool value) {
    SetString(section, key, value ? L"TRUE" : L"FALSE");
}

bool IniDocument::HasSection(const wchar_t* section) const { return FindSection(section) != nullptr; }

std::vector<IniDocument::EntryRef> IniDocument::GetSectionEntries(const wchar_t* section) const {
    std::vector<EntryRef> refs;
    if (const Section* s = FindSection(section)) {
        for (const Entry& e : s->entries)
            refs.emplace_back(e.key.c_str(), e.value.c_str());
    }
    return refs;
}

void IniDocument::DeleteSection(const wchar_t* section) {
    for (auto it = m_sections.begin(); it != m_sections.end(); ++it) {
        if (EqualsNoCase(it->name.c_str(), section)) {
            m_sections.erase(it);
            return;
        }
    }
}

void IniDocument::DeleteSections(const std::vector<std::wstring>& names) {
    // How many more sections of each folded name are still to go.
    std::unordered_map<std::wstring, size_t> pending;
    for (const std::wstring& name : names)
        ++pending[Folded(name)];
    std::vector<Section> kept;
    kept.reserve(m_sections.size());
    for (Section& s : m_sections) {
        auto it = pending.find(Folded(s.name));
        if (it != pending.end() && it->second > 0)
            --it->second;
        else
            kept.push_back(std::move(s));
    }
    m_sections = std::move(kept);
}

void IniDocument::EmptySection(const wchar_t* section) {
    FindOrAddSection(section).entries.clear();
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

} // namespace cv2
