#include "themes/theme_files.h"

#include <unordered_map>

#include "platform/file_access.h"
#include "store/format_text.h"
#include "store/paths.h"

namespace cv2 {
namespace {

bool StartsWithNoCase(const std::wstring& text, const std::wstring& prefix) {
    return text.size() >= prefix.size() &&
           Folded(text.substr(0, prefix.size()).c_str()) == Folded(prefix.c_str());
}

bool SectionMatches(const wchar_t* pattern, const std::wstring& section) {
    const std::wstring p(pattern ? pattern : L"");
    if (!p.empty() && p.back() == L'*')
        return StartsWithNoCase(section, p.substr(0, p.size() - 1));
    return EqualsNoCase(p.c_str(), section.c_str());
}

std::wstring NameOf(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

// "name (n).ext" for a name already taken by other content.
std::wstring NumberedName(const std::wstring& name, int n) {
    const size_t dot = name.find_last_of(L'.');
    const std::wstring stem = dot == std::wstring::npos || dot == 0 ? name : name.substr(0, dot);
    const std::wstring ext = stem.size() == name.size() ? L"" : name.substr(stem.size());
    return stem + L" (" + std::to_wstring(n) + L")" + ext;
}

// The name under which `bytes` stand in `target`: the file's own name when that is free or
// already holds the same bytes (`already` is then set), else the first free numbered name.
// Empty after too many tries.
std::wstring FreeName(const ThemeFileTarget& target, const std::wstring& name, const Bytes& bytes,
                      bool& already) {
    constexpr int kMostTries = 1000;
    for (int n = 1; n <= kMostTries; ++n) {
        const std::wstring candidate = n == 1 ? name : NumberedName(name, n);
        already = false;
        if (!target.Taken(candidate, bytes, already) || already)
            return candidate;
    }
    return std::wstring();
}

// Copies `source` into `target` under a free name (see FreeName) and returns that name; empty
// when the file could not be read or stored.
std::wstring CopyInto(ThemeFileTarget& target, const std::wstring& source) {
    Bytes bytes;
    if (!ReadWholeFile(source, bytes))
        return std::wstring();
    bool already = false;
    const std::wstring name = FreeName(target, NameOf(source), bytes, already);
    if (name.empty() || already)
        return name; // no room, or the same bytes already stand there
    return target.Put(name, source, bytes) ? name : std::wstring();
}

// A theme's folder on disk.
class FolderTarget : public ThemeFileTarget {
  public:
    explicit FolderTarget(const std::wstring& folder) : m_folder(FolderWithSlash(folder)) {}
    bool Holds(const std::wstring& source) const override {
        return StartsWithNoCase(source, m_folder);
    }
    bool Taken(const std::wstring& name, const Bytes& bytes, bool& same) const override {
        const std::wstring path = m_folder + name;
        if (FileAttributes(path) == kNoFileAttributes)
            return false;
        Bytes existing;
        same = FileExists(path) && ReadWholeFile(path, existing) && existing == bytes;
        return true;
    }
    bool Put(const std::wstring& name, const std::wstring&, const Bytes& bytes) override {
        return WriteFileReplacing(m_folder + name, bytes);
    }

  private:
    std::wstring m_folder;
};

} // namespace

bool NamesFile(const std::vector<PathKey>& keys, const std::wstring& section,
               const std::wstring& key) {
    for (const PathKey& k : keys)
        if (SectionMatches(k.section, section) && EqualsNoCase(k.key, key.c_str()))
            return true;
    return false;
}

std::vector<ThemeFileValue> FileValues(const IniDocument& theme, const std::vector<PathKey>& keys) {
    std::vector<ThemeFileValue> values;
    for (const IniDocument::Section& s : theme.Sections())
        for (const IniDocument::Entry& e : s.entries)
            if (!e.value.empty() && NamesFile(keys, s.name, e.key))
                values.push_back({s.name, e.key, e.value});
    return values;
}

std::wstring ResolveThemeFile(const std::wstring& value, const std::wstring& themeFolder) {
    if (IsAbsolutePath(value) || themeFolder.empty())
        return value;
    return FolderWithSlash(themeFolder) + value;
}

std::vector<ThemeFileValue> MissingFiles(const IniDocument& theme, const std::wstring& themeFolder,
                                         const std::vector<PathKey>& keys) {
    std::vector<ThemeFileValue> missing;
    for (ThemeFileValue& v : FileValues(theme, keys))
        if (!FileExists(ResolveThemeFile(v.value, themeFolder)))
            missing.push_back(std::move(v));
    return missing;
}

std::wstring MissingFilesText(const std::vector<ThemeFileValue>& missing,
                              const std::wstring& heading) {
    if (missing.empty())
        return std::wstring();
    std::wstring text = FormatText(heading, {std::to_wstring(missing.size())});
    for (size_t i = 0; i < missing.size() && i < kMissingFilesShown; ++i)
        text += missing[i].value + L"\r\n";
    return text;
}

std::vector<std::wstring> CopyThemeFiles(IniDocument& theme, const std::wstring& sourceFolder,
                                         ThemeFileTarget& target,
                                         const std::vector<PathKey>& keys) {
    std::unordered_map<std::wstring, std::wstring> copied; // folded source path -> name
    std::vector<std::wstring> failed;
    for (const ThemeFileValue& v : FileValues(theme, keys)) {
        const std::wstring source = ResolveThemeFile(v.value, sourceFolder);
        if (target.Holds(source) || !FileExists(source))
            continue;
        const auto done = copied.find(Folded(source.c_str()));
        std::wstring name = done == copied.end() ? CopyInto(target, source) : done->second;
        if (done == copied.end()) {
            copied.emplace(Folded(source.c_str()), name);
            if (name.empty())
                failed.push_back(source);
        }
        if (name.empty())
            continue;
        theme.SetString(v.section.c_str(), v.key.c_str(), name.c_str());
    }
    return failed;
}

std::vector<std::wstring> CopyThemeFiles(IniDocument& theme, const std::wstring& sourceFolder,
                                         const std::wstring& targetFolder,
                                         const std::vector<PathKey>& keys) {
    FolderTarget target(targetFolder);
    return CopyThemeFiles(theme, sourceFolder, target, keys);
}

} // namespace cv2
