// Packages made by other people's tools (Debian's zip and Python's zipfile, made for the run by
// tests/peers/make_peer_packages.sh into the folder CV2_PEER_PACKAGES names) install, and every
// installed file equals the one packed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/file_access.h"
#include "store/paths.h"
#include "temp_folder.h"
#include "themes/theme_package.h"

using namespace cv2;
using namespace cv2test;

// Named, not anonymous: the parameterised suite's types may not use the anonymous namespace.
namespace peers {

struct Peer {
    const char* package;
    const wchar_t* themeName; // the folder it installs as
};

const Peer kPeers[] = {
    {"zip-stored-top", L"Peer"},         {"zip-deflated-top", L"Peer"},
    {"zip-root", L"zip-root"},           {"zip-descriptors-top", L"Peer"},
    {"python-stored-top", L"Peer"},      {"python-deflated-root", L"python-deflated-root"},
    {"python-descriptors-top", L"Peer"},
};

std::wstring PeerFolder() {
    const char* folder = std::getenv("CV2_PEER_PACKAGES");
    if (!folder)
        return std::wstring();
    std::wstring path(folder, folder + std::char_traits<char>::length(folder));
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return FolderWithSlash(path);
}

// Every file below `folder`, as relative paths with backslashes, sorted.
std::vector<std::wstring> FilesBelow(const std::wstring& folder, const std::wstring& sub = L"") {
    std::vector<std::wstring> found;
    for (const std::wstring& name : ListFiles(folder + sub, L"*"))
        found.push_back(sub + name);
    for (const std::wstring& name : ListSubfolders(folder + sub))
        for (const std::wstring& inner : FilesBelow(folder, sub + name + L"\\"))
            found.push_back(inner);
    std::sort(found.begin(), found.end());
    return found;
}

class PeerPackages : public ::testing::TestWithParam<Peer> {};

} // namespace peers

using peers::FilesBelow;
using peers::kPeers;
using peers::Peer;
using peers::PeerFolder;
using peers::PeerPackages;

TEST_P(PeerPackages, InstallAndEveryFileEqualsTheOnePacked) {
    const std::wstring peers = PeerFolder();
    if (peers.empty())
        GTEST_SKIP() << "CV2_PEER_PACKAGES is not set (ctest sets it)";
    const std::string name = GetParam().package;
    TempFolder dir;
    const InstallResult result = InstallPackage(
        peers + std::wstring(name.begin(), name.end()) + L".zip", dir.File(L"Themes"), nullptr);
    ASSERT_EQ(result.problem, InstallProblem::None) << InstallMessage(result).c_str();
    const std::wstring installed = dir.File(L"Themes\\") + GetParam().themeName + L"\\";
    EXPECT_EQ(result.installed, std::vector<std::wstring>{installed});
    const std::wstring packed = peers + L"theme\\Peer\\";
    const std::vector<std::wstring> files = FilesBelow(packed);
    ASSERT_EQ(files.size(), 5u);
    EXPECT_EQ(FilesBelow(installed), files);
    for (const std::wstring& file : files) {
        Bytes want, got;
        ASSERT_TRUE(ReadWholeFile(packed + file, want));
        ASSERT_TRUE(ReadWholeFile(installed + file, got)) << std::string(file.begin(), file.end());
        EXPECT_TRUE(want == got) << std::string(file.begin(), file.end());
    }
}

INSTANTIATE_TEST_SUITE_P(Made, PeerPackages, ::testing::ValuesIn(kPeers),
                         [](const ::testing::TestParamInfo<Peer>& info) {
                             std::string n = info.param.package;
                             std::replace(n.begin(), n.end(), '-', '_');
                             return n;
                         });
