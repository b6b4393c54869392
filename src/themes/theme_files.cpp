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

// The name under which `bytes` stand in `folder`: the file's own name when that is free or
// already holds the same bytes, else the first free numbered name. Empty after too many tries.
std::wstring FreeName(const std::wstring& folder, const std::wstring& name, const Bytes& bytes) {
    constexpr int kMostTries = 1000;
    for (int n = 1; n <= kMostTries; ++n) {
        const std::wstring candidate = n == 1 ? name : NumberedName(name, n);
        const std::wstring path = folder + candidate;
        if (FileAttributes(path) == kNoFileAttributes)
            return candidate;
        Bytes existing;
        if (FileExists(path) && ReadWholeFile(path, existing) && existing == bytes)
            return candidate;
    }
    return std::wstring();
}

// Copies `source` into `folder` under a free name (see FreeName) and returns that name; empty
// when the file could not be read or written.
std::wstring CopyInto(const std::wstring& folder, const std::wstring& source) {
    Bytes bytes;
    if (!ReadWholeFile(source, bytes))
        return std::wstring();
    const std::wstring name = FreeName(folder, NameOf(source), bytes);
    if (name.empty() || FileExists(folder + name))
        return name; // no room, or the same bytes already stand there
    return WriteFileReplacing(folder + name, bytes) ? name : std::wstring();
}

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
                                         const std::wstring& targetFolder,
                                         const std::vector<PathKey>& keys) {
    const std::wstring target = FolderWithSlash(targetFolder);
    std::unordered_map<std::wstring, std::wstring> copied; // folded source path -> name
    std::vector<std::wstring> failed;
    for (const ThemeFileValue& v : FileValues(theme, keys)) {
        const std::wstring source = ResolveThemeFile(v.value, sourceFolder);
        if (StartsWithNoCase(source, target) || !FileExists(source))
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

} // namespace cv2
