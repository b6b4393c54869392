// Export of a theme as a package: the theme's files gathered under bare names, then one zip.
#include <ctime>

#include "archive/entry_names.h"
#include "archive/zip_writer.h"
#include "store/paths.h"
#include "themes/theme_package.h"
#include "themes/theme_transfer.h"

namespace cv2 {
namespace {

// One file of the package beside its .skin: its name there and where it is read from.
struct PackedFile {
    std::wstring name;
    std::wstring source;
};

// The files a package will hold, gathered by CopyThemeFiles. Nothing is written until the whole
// package is; a name is taken when a file already gathered (or the .skin itself) has it.
class PackageContents : public ThemeFileTarget {
  public:
    explicit PackageContents(const std::wstring& skinName) : m_skinName(skinName) {}

    bool Holds(const std::wstring&) const override { return false; }
    bool Taken(const std::wstring& name, const Bytes& bytes, bool& same) const override {
        same = false;
        if (EqualsNoCase(name.c_str(), m_skinName.c_str()))
            return true;
        for (const PackedFile& f : m_files) {
            if (!EqualsNoCase(name.c_str(), f.name.c_str()))
                continue;
            Bytes existing;
            same = ReadWholeFile(f.source, existing) && existing == bytes;
            return true;
        }
        return false;
    }
    bool Put(const std::wstring& name, const std::wstring& source, const Bytes&) override {
        m_files.push_back({name, source});
        return true;
    }
    const std::vector<PackedFile>& Files() const { return m_files; }

  private:
    std::wstring m_skinName;
    std::vector<PackedFile> m_files;
};

std::wstring NameOf(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

bool EndsWithNoCase(const std::wstring& text, const wchar_t* suffix) {
    const std::wstring s(suffix);
    return text.size() >= s.size() &&
           EqualsNoCase(text.substr(text.size() - s.size()).c_str(), suffix);
}

// Writes the package: the top folder, the .skin text, then each file read again one at a time,
// so no more than one file is in memory.
bool WritePackage(const std::wstring& path, const std::wstring& top, const std::wstring& skinName,
                  const std::string& skinText, const std::vector<PackedFile>& files,
                  WriteFailure& failure) {
    ReplacingFile file(path);
    ReplacingSink sink(file);
    ZipWriter zip(sink, DosTimeStamp(std::time(nullptr)));
    bool ok = file.Open() && zip.AddFolder(top) &&
              zip.AddFile(top + L"/" + skinName,
                          reinterpret_cast<const unsigned char*>(skinText.data()), skinText.size());
    for (size_t i = 0; ok && i < files.size(); ++i) {
        Bytes bytes;
        ok = ReadWholeFile(files[i].source, bytes) &&
             zip.AddFile(top + L"/" + files[i].name, bytes.data(), bytes.size());
    }
    ok = ok && zip.Finish() && file.Commit();
    failure = file.Failure();
    return ok;
}

} // namespace

PackagePaths PackagePathsFor(const std::wstring& entered) {
    std::wstring stem = entered;
    if (EndsWithNoCase(stem, L".skin") || EndsWithNoCase(stem, L".zip"))
        stem = stem.substr(0, stem.find_last_of(L'.'));
    return {stem + L".skin", stem + L".zip"};
}

std::wstring PackageFolderName(const std::wstring& themeName, const std::wstring& skinPath) {
    std::wstring name = themeName;
    for (wchar_t& c : name)
        if (c < 0x20 || std::wstring(L"<>:\"|?*/\\").find(c) != std::wstring::npos)
            c = L'_';
    while (!name.empty() && (name.back() == L'.' || name.back() == L' '))
        name.pop_back();
    CleanName clean;
    if (CheckEntryName(name, kMaxPath - 1, clean) == ZipProblem::None)
        return name;
    const std::wstring file = NameOf(skinPath);
    const size_t dot = file.find_last_of(L'.');
    return dot == std::wstring::npos || dot == 0 ? file : file.substr(0, dot);
}

PackageExport ExportPackage(IniDocument& theme, const IniDocument& edited,
                            const std::wstring& folderName, const std::vector<PathKey>& keys) {
    const PackagePaths paths = PackagePathsFor(theme.Path());
    const std::wstring skinName = NameOf(paths.skin);
    PackageContents contents(skinName);
    PackageExport result;
    result.unreadable = CopyThemeFiles(theme, FolderOf(edited.Path()), contents, keys);
    FinishExport(theme, edited);
    result.written = WritePackage(paths.package, folderName, skinName, theme.Serialize(),
                                  contents.Files(), result.failure);
    return result;
}

} // namespace cv2
