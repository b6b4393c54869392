#include "themes/theme_package.h"

#include <algorithm>
#include <cwchar>
#include <unordered_set>

#include "archive/entry_names.h"
#include "platform/file_access.h"
#include "store/format_text.h"
#include "store/paths.h"
#include "store/strings.h"

namespace cv2 {

const wchar_t kInstallFolderPrefix[] = L"~pkg";

namespace {

// A temporary folder's name is the prefix and at most this many characters of number; path
// lengths are checked against the longer of it and the theme's own name.
constexpr size_t kTempFolderChars = 8;

// One theme of a package: the package folder that holds it and the folder name it gets.
struct PlannedTheme {
    std::wstring root; // '/'-joined, empty for the package's root
    std::wstring name;
    std::vector<const ZipEntry*> entries;
    std::wstring temp; // while unpacked, ends in a backslash
};

bool EndsWithNoCase(const std::wstring& text, const wchar_t* suffix) {
    const size_t n = std::wcslen(suffix);
    return text.size() >= n && EqualsNoCase(text.substr(text.size() - n).c_str(), suffix);
}

std::wstring FolderPart(const std::wstring& name) {
    const size_t slash = name.find_last_of(L'/');
    return slash == std::wstring::npos ? std::wstring() : name.substr(0, slash);
}

std::wstring LastPart(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

std::wstring WithoutExtension(const std::wstring& name) {
    const size_t dot = name.find_last_of(L'.');
    return dot == std::wstring::npos || dot == 0 ? name : name.substr(0, dot);
}

// True when `name` lies in package folder `root` ("" holds everything).
bool Inside(const std::wstring& name, const std::wstring& root) {
    if (root.empty())
        return true;
    return name.size() > root.size() && name[root.size()] == L'/' &&
           Folded(name.substr(0, root.size()).c_str()) == Folded(root.c_str());
}

std::wstring Backslashed(std::wstring path) {
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

// The outermost package folders that hold a .skin directly, in the order they first appear.
std::vector<std::wstring> ThemeRoots(const std::vector<ZipEntry>& entries) {
    std::vector<std::wstring> roots;
    for (const ZipEntry& e : entries) {
        if (e.folder || !EndsWithNoCase(e.name, L".skin"))
            continue;
        const std::wstring root = FolderPart(e.name);
        const bool known = std::any_of(roots.begin(), roots.end(), [&](const std::wstring& r) {
            return EqualsNoCase(r.c_str(), root.c_str());
        });
        if (!known)
            roots.push_back(root);
    }
    std::vector<std::wstring> outermost;
    for (const std::wstring& root : roots) {
        const bool nested = std::any_of(roots.begin(), roots.end(), [&](const std::wstring& r) {
            return &r != &root && Inside(root, r);
        });
        if (!nested)
            outermost.push_back(root);
    }
    return outermost;
}

InstallResult Failed(InstallProblem problem, const std::wstring& detail = std::wstring()) {
    InstallResult result;
    result.problem = problem;
    result.detail = detail;
    return result;
}

InstallResult ArchiveFailed(ZipProblem problem, const std::wstring& entry) {
    InstallResult result;
    result.problem = InstallProblem::Archive;
    result.archive = ZipResult{problem, entry};
    return result;
}

// The name of an install's temporary folder: the prefix and digits.
bool IsInstallFolderName(const std::wstring& name) {
    const std::wstring prefix = kInstallFolderPrefix;
    return name.size() > prefix.size() && name.compare(0, prefix.size(), prefix) == 0 &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(prefix.size()), name.end(),
                       [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

// Sorts the entries into their themes and checks what the themes folder must hold: one folder
// per theme, and every path within the length limit.
InstallResult Plan(const ZipReader& reader, const std::wstring& packagePath,
                   const std::wstring& themesFolder, const ZipLimits& limits,
                   std::vector<PlannedTheme>& themes) {
    for (const std::wstring& root : ThemeRoots(reader.Entries())) {
        PlannedTheme theme;
        theme.root = root;
        theme.name = root.empty() ? WithoutExtension(LastPart(packagePath)) : LastPart(root);
        CleanName clean;
        const ZipProblem nameProblem = CheckEntryName(theme.name, limits.maxNameChars, clean);
        // One folder name, and never one an install would take for its own leftover.
        const bool unfit =
            clean.path.find(L'/') != std::wstring::npos || IsInstallFolderName(theme.name);
        if (nameProblem != ZipProblem::None || unfit)
            return ArchiveFailed(unfit ? ZipProblem::UnfitName : nameProblem, theme.name);
        for (const PlannedTheme& other : themes)
            if (EqualsNoCase(other.name.c_str(), theme.name.c_str()))
                return ArchiveFailed(ZipProblem::DuplicateName, theme.name);
        themes.push_back(theme);
    }
    if (themes.empty())
        return Failed(InstallProblem::NoTheme);
    const size_t base = FolderWithSlash(themesFolder).size();
    for (const ZipEntry& e : reader.Entries()) {
        for (PlannedTheme& theme : themes) {
            if (!Inside(e.name, theme.root))
                continue;
            const size_t inner =
                theme.root.empty() ? e.name.size() : e.name.size() - theme.root.size() - 1;
            if (base + std::max(theme.name.size(), kTempFolderChars) + 1 + inner >
                limits.maxNameChars)
                return ArchiveFailed(ZipProblem::NameTooLong, e.name);
            theme.entries.push_back(&e);
            break;
        }
    }
    return InstallResult();
}

// Folders that an install cut short left behind.
void RemoveLeftovers(const std::wstring& themesFolder) {
    for (const std::wstring& name : ListSubfolders(themesFolder))
        if (IsInstallFolderName(name))
            RemoveFolderTree(FolderWithSlash(themesFolder) + name);
}

bool IsFolder(const std::wstring& path) {
    const uint32_t attributes = FileAttributes(path);
    return attributes != kNoFileAttributes && (attributes & kAttributeFolder);
}

// Makes the folders of `relative` ('\'-joined) below `base`, remembering those already made.
bool MakeFolders(const std::wstring& base, const std::wstring& relative,
                 std::unordered_set<std::wstring>& made) {
    for (size_t slash = relative.find(L'\\');; slash = relative.find(L'\\', slash + 1)) {
        const std::wstring folder = base + relative.substr(0, slash);
        if (made.insert(Folded(folder.c_str())).second && !MakeFolder(folder) && !IsFolder(folder))
            return false;
        if (slash == std::wstring::npos)
            return true;
    }
}

// Unpacks one theme's entries into its temporary folder.
InstallResult Unpack(ZipReader& reader, PlannedTheme& theme) {
    std::unordered_set<std::wstring> made;
    for (const ZipEntry* e : theme.entries) {
        const std::wstring relative =
            Backslashed(theme.root.empty() ? e->name : e->name.substr(theme.root.size() + 1));
        const std::wstring path = theme.temp + relative;
        const size_t slash = relative.find_last_of(L'\\');
        const std::wstring parents = e->folder                     ? relative
                                     : slash == std::wstring::npos ? L""
                                                                   : relative.substr(0, slash);
        if (!parents.empty() && !MakeFolders(theme.temp, parents, made))
            return Failed(InstallProblem::CannotWrite, theme.temp + parents);
        if (e->folder)
            continue;
        OutputFile file;
        if (!file.Create(path, false))
            return Failed(InstallProblem::CannotWrite, path);
        FileSink sink(file);
        const ZipResult unpacked = reader.Extract(*e, sink);
        const bool closed = file.Close(false);
        if (unpacked.problem == ZipProblem::WriteFailed || (unpacked.Ok() && !closed))
            return Failed(InstallProblem::CannotWrite, path);
        if (!unpacked.Ok())
            return ArchiveFailed(unpacked.problem, e->name);
    }
    return InstallResult();
}

// A free name in the themes folder for a theme folder moved aside while it is replaced.
std::wstring AsideName(const std::wstring& themesFolder) {
    for (int n = 1; n < 10000; ++n) {
        const std::wstring path =
            FolderWithSlash(themesFolder) + kInstallFolderPrefix + std::to_wstring(n);
        if (FileAttributes(path) == kNoFileAttributes)
            return path;
    }
    return std::wstring();
}

// Puts an unpacked theme in place; an old folder of that name is moved aside first and removed
// only once the new one stands there (put back when it could not be).
bool MoveIntoPlace(const std::wstring& temp, const std::wstring& target, bool replacing,
                   const std::wstring& themesFolder) {
    const std::wstring from = temp.substr(0, temp.size() - 1);
    if (!replacing)
        return MoveFolder(from, target);
    const std::wstring aside = AsideName(themesFolder);
    if (aside.empty() || !MoveFolder(target, aside))
        return false;
    if (!MoveFolder(from, target)) {
        MoveFolder(aside, target);
        return false;
    }
    RemoveFolderTree(aside);
    return true;
}

void RemoveTemps(const std::vector<PlannedTheme>& themes) {
    for (const PlannedTheme& theme : themes) {
        const std::wstring folder =
            theme.temp.substr(0, theme.temp.size() - (theme.temp.empty() ? 0 : 1));
        if (!folder.empty() && FileAttributes(folder) != kNoFileAttributes)
            RemoveFolderTree(folder);
    }
}

InstallResult UnpackAll(ZipReader& reader, const std::wstring& themesFolder,
                        std::vector<PlannedTheme>& themes) {
    if (FileAttributes(themesFolder) == kNoFileAttributes && !MakeFolder(themesFolder))
        return Failed(InstallProblem::CannotWrite, themesFolder);
    RemoveLeftovers(themesFolder);
    for (PlannedTheme& theme : themes) {
        theme.temp = MakeTempFolder(themesFolder, kInstallFolderPrefix);
        if (theme.temp.empty())
            return Failed(InstallProblem::CannotWrite, themesFolder);
        const InstallResult unpacked = Unpack(reader, theme);
        if (unpacked.problem != InstallProblem::None)
            return unpacked;
    }
    return InstallResult();
}

// The message of each way an archive is refused.
const struct {
    ZipProblem problem;
    StringId text;
} kArchiveMessages[] = {
    {ZipProblem::NotAnArchive, IDS_PACKAGE_NOT_ZIP},
    {ZipProblem::Truncated, IDS_PACKAGE_TRUNCATED},
    {ZipProblem::Damaged, IDS_PACKAGE_DAMAGED},
    {ZipProblem::Zip64, IDS_PACKAGE_ZIP64},
    {ZipProblem::Encrypted, IDS_PACKAGE_ENCRYPTED},
    {ZipProblem::UnknownMethod, IDS_PACKAGE_METHOD},
    {ZipProblem::TooManyEntries, IDS_PACKAGE_TOO_MANY},
    {ZipProblem::TooLarge, IDS_PACKAGE_TOO_LARGE},
    {ZipProblem::RatioTooHigh, IDS_PACKAGE_RATIO},
    {ZipProblem::BadChecksum, IDS_PACKAGE_CHECKSUM},
    {ZipProblem::AbsolutePath, IDS_PACKAGE_ABSOLUTE},
    {ZipProblem::LeavesFolder, IDS_PACKAGE_LEAVES},
    {ZipProblem::UnfitName, IDS_PACKAGE_UNFIT},
    {ZipProblem::NameTooLong, IDS_PACKAGE_TOO_LONG},
    {ZipProblem::DuplicateName, IDS_PACKAGE_DUPLICATE},
    {ZipProblem::WriteFailed, IDS_PACKAGE_CANNOT_WRITE},
};

} // namespace

std::wstring InstallMessage(const InstallResult& result) {
    switch (result.problem) {
    case InstallProblem::None:
        return std::wstring();
    case InstallProblem::CannotOpen:
        return FormatText(Localized(IDS_PACKAGE_CANNOT_OPEN), {result.detail});
    case InstallProblem::NoTheme:
        return Localized(IDS_PACKAGE_NO_THEME);
    case InstallProblem::CannotWrite:
        return FormatText(Localized(IDS_PACKAGE_CANNOT_WRITE), {result.detail});
    case InstallProblem::Archive:
        break;
    }
    for (const auto& m : kArchiveMessages)
        if (m.problem == result.archive.problem)
            return FormatText(Localized(m.text), {result.archive.entry});
    return FormatText(Localized(IDS_PACKAGE_DAMAGED), {result.archive.entry});
}

InstallResult InstallPackage(const std::wstring& packagePath, const std::wstring& themesFolder,
                             const ReplaceQuestion& replace, const ZipLimits& limits) {
    FileSource source;
    if (!source.Open(packagePath))
        return Failed(InstallProblem::CannotOpen, packagePath);
    ZipReader reader;
    const ZipResult opened = reader.Open(source, limits);
    if (!opened.Ok())
        return ArchiveFailed(opened.problem, opened.entry);
    std::vector<PlannedTheme> themes;
    InstallResult result = Plan(reader, packagePath, themesFolder, limits, themes);
    if (result.problem == InstallProblem::None)
        result = UnpackAll(reader, themesFolder, themes);
    if (result.problem != InstallProblem::None) {
        RemoveTemps(themes);
        return result;
    }
    // Every theme is whole on disk: only now does anything change among the themes.
    for (const PlannedTheme& theme : themes) {
        const std::wstring target = FolderWithSlash(themesFolder) + theme.name;
        const bool exists = FileAttributes(target) != kNoFileAttributes;
        if (exists && !(replace && replace(theme.name))) {
            result.kept.push_back(theme.name);
            continue;
        }
        if (!MoveIntoPlace(theme.temp, target, exists, themesFolder)) {
            result.problem = InstallProblem::CannotWrite;
            result.detail = target;
            break;
        }
        result.installed.push_back(target + L"\\");
    }
    RemoveTemps(themes);
    return result;
}

} // namespace cv2
