// Theme packages: one .zip file holding one theme or several, as themes travel between people.
//
// Installing unpacks the package into a temporary folder under the themes folder, checks every
// entry, and only then moves each theme into place as Themes\<name>\, so a failure never leaves
// half a theme. A theme is a folder of the package that holds a .skin file directly; its name is
// that folder's, or the package's file name when the .skin lies at the package's root. A theme
// folder inside another theme's folder goes along as part of the outer theme; files outside
// every theme folder are left out.
//
// Exporting writes the theme being edited, with every picture and sound it names, as one package:
// <theme name>\<file>.skin and the files beside it under their bare names.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "archive/zip_reader.h"
#include "pages/setting_table.h"
#include "store/ini_document.h"
#include "themes/theme_files.h"

namespace cv2 {

enum class InstallProblem {
    None,
    CannotOpen,  // the package file cannot be read
    Archive,     // refused or stopped by the archive checks (see InstallResult::archive)
    NoTheme,     // no .skin file in it
    CannotWrite, // a file or folder of the themes folder could not be written (`detail`)
};

struct InstallResult {
    InstallProblem problem = InstallProblem::None;
    ZipResult archive;
    std::wstring detail;
    // The theme folders now in place (full paths ending in a backslash), in package order. A
    // package of several themes may have put some in place before a later one failed.
    std::vector<std::wstring> installed;
    // The names of themes already installed that the user chose to keep.
    std::vector<std::wstring> kept;
};

// Asked for each theme whose folder is already there, with the folder's name: true replaces it.
using ReplaceQuestion = std::function<bool(const std::wstring& themeName)>;

// Installs the package at `packagePath` into `themesFolder` (made when missing).
InstallResult InstallPackage(const std::wstring& packagePath, const std::wstring& themesFolder,
                             const ReplaceQuestion& replace, const ZipLimits& limits = ZipLimits());

// Why an install stopped, as the message the user is shown (the entry or file concerned in it);
// empty when nothing stopped it.
std::wstring InstallMessage(const InstallResult& result);

// The temporary folders of an install are named with this and a number, inside the themes
// folder; one left by an install that was cut short is removed by the next.
extern const wchar_t kInstallFolderPrefix[];

// The two files of an export as a package, from the path entered: the .skin file the theme
// document stands for (named inside the package), and the package itself beside it. "a.skin"
// and "a.zip" both give those two; any other name gets the extensions added.
struct PackagePaths {
    std::wstring skin;
    std::wstring package;
};
PackagePaths PackagePathsFor(const std::wstring& entered);

// The package's top folder, which becomes the theme's folder where it is installed: the theme's
// name with the characters a folder name cannot hold replaced by '_', or the .skin file's name
// without its extension when the theme's name gives no usable folder name.
std::wstring PackageFolderName(const std::wstring& themeName, const std::wstring& skinPath);

// What an export as a package did.
struct PackageExport {
    bool written = false;
    WriteFailure failure;                 // where the write stopped, when it did not succeed
    std::vector<std::wstring> unreadable; // files that stay named by their old paths
};

// Exports `theme` (the document the pages saved into, bound to the .skin path) as a package at
// PackagePathsFor(theme.Path()).package, under the top folder `folderName`: every file it names,
// found from `edited`'s folder as the bar finds it, goes in beside the .skin under its bare name
// (see CopyThemeFiles), then FinishExport completes the document. The package is written
// through a temporary file and a replace, so a failed export leaves whatever was at its path.
PackageExport ExportPackage(IniDocument& theme, const IniDocument& edited,
                            const std::wstring& folderName, const std::vector<PathKey>& keys);

} // namespace cv2
