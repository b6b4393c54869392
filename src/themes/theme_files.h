// The picture and sound files a theme names: which of them the bar would not find, and copying
// them into a theme's own folder so that the folder works on any device.
//
// The keys that name files come from the appearance pages' tables (ThemePathKeys); a section
// written with a trailing '*' stands for every section that starts with the text before it, for
// the sections a page names after its entries ("Notify.*").
#pragma once

#include <string>
#include <vector>

#include "pages/setting_table.h"
#include "platform/file_access.h"
#include "store/ini_document.h"

namespace cv2 {

// One value of a theme that names a file.
struct ThemeFileValue {
    std::wstring section;
    std::wstring key;
    std::wstring value; // as stored
};

// True when `keys` says that `key` of `section` names a file.
bool NamesFile(const std::vector<PathKey>& keys, const std::wstring& section,
               const std::wstring& key);

// Every non-empty value of `theme` under one of `keys`, in the document's order.
std::vector<ThemeFileValue> FileValues(const IniDocument& theme, const std::vector<PathKey>& keys);

// Where the bar looks for a value: an absolute path as it stands, anything else inside
// `themeFolder` (with or without its trailing backslash).
std::wstring ResolveThemeFile(const std::wstring& value, const std::wstring& themeFolder);

// The values whose file does not exist where the bar would look, in the document's order. Font
// faces are not files and are never listed.
std::vector<ThemeFileValue> MissingFiles(const IniDocument& theme, const std::wstring& themeFolder,
                                         const std::vector<PathKey>& keys);

// The paragraph that ends the details of a theme with missing files: `heading` with the count in
// its "%s", then up to five of the missing values, one per line. Empty when nothing is missing.
constexpr size_t kMissingFilesShown = 5;
std::wstring MissingFilesText(const std::vector<ThemeFileValue>& missing,
                              const std::wstring& heading);

// Where CopyThemeFiles puts the files it brings in: a theme's folder, or a package being made.
class ThemeFileTarget {
  public:
    virtual ~ThemeFileTarget() = default;
    // True when the theme already finds `source` there, so it needs no copy.
    virtual bool Holds(const std::wstring& source) const = 0;
    // True when `name` is taken there; `same` then says whether it holds exactly `bytes`.
    virtual bool Taken(const std::wstring& name, const Bytes& bytes, bool& same) const = 0;
    // Stores `bytes`, read from `source`, under `name`; false when that fails.
    virtual bool Put(const std::wstring& name, const std::wstring& source, const Bytes& bytes) = 0;
};

// Copies every file that `theme` names, found from `sourceFolder` the way the bar finds it, into
// `target` unless it is already there, and makes the value the copy's bare name. A name already
// taken there by different content gets a number ("name (2).png"); a file named twice is copied
// once. Values of missing files stay as they are. Returns the files that could not be copied
// (their values stay as they were).
std::vector<std::wstring> CopyThemeFiles(IniDocument& theme, const std::wstring& sourceFolder,
                                         ThemeFileTarget& target, const std::vector<PathKey>& keys);

// The same into `targetFolder` when it exists: files already inside it are left where they are,
// and each copy is written whole or not at all.
std::vector<std::wstring> CopyThemeFiles(IniDocument& theme, const std::wstring& sourceFolder,
                                         const std::wstring& targetFolder,
                                         const std::vector<PathKey>& keys);

} // namespace cv2
