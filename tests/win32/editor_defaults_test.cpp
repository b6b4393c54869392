// The whole theme editor with its own pages over an empty config.ini: OK writes every
// appearance page's defaults in page order and key order, as the hand-written expected file
// holds them; Cancel writes nothing.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "control_pages_support.h"
#include "temp_folder.h"

using namespace cv2;

namespace {

// A file of the source tree's test data, read through the drive that shows the Linux root.
std::string TestDataText(const std::string& name) {
    std::string folder = __FILE__;
    folder = folder.substr(0, folder.find_last_of("/\\") + 1) + "../data/";
    std::string path = folder + name;
    if (!path.empty() && path[0] == '/')
        path = "Z:" + path;
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class EditorDefaultsTest : public cv2test::ControlPagesTest {};

} // namespace

TEST_F(EditorDefaultsTest, OkOnAnEmptyConfigWritesEveryPagesDefaultsInPageAndKeyOrder) {
    const std::string expected = TestDataText("theme_editor/editor_defaults.ini");
    ASSERT_FALSE(expected.empty()) << "the expected file could not be read";
    cv2test::TempFolder dir;
    dir.Write(L"config.ini", "");
    ASSERT_TRUE(doc.Load(dir.File(L"config.ini")));
    EXPECT_TRUE(RunEditor(
        {}, [](HWND, ThemeEditor&) {}, IDOK));
    ASSERT_TRUE(doc.Save());
    const IniDocument written = cv2test::ParsedDoc(dir.Read(L"config.ini"));
    EXPECT_EQ(written.Serialize(), cv2test::ParsedDoc(expected).Serialize());
}

TEST_F(EditorDefaultsTest, CancelOnAnEmptyConfigWritesNone) {
    EXPECT_FALSE(RunEditor(
        {}, [](HWND, ThemeEditor&) {}, IDCANCEL));
    EXPECT_TRUE(doc.Sections().empty());
}

TEST_F(EditorDefaultsTest, PagesStandInTheirPlacesInThePageMenu) {
    std::vector<std::wstring> names;
    RunEditor(
        {},
        [&](HWND, ThemeEditor& editor) {
            for (int i = 0; i < editor.Host().PageCount(); ++i)
                names.push_back(editor.Host().Page(i)->GetName());
        },
        IDCANCEL);
    auto at = [&](const wchar_t* name) {
        return std::find(names.begin(), names.end(), name) - names.begin();
    };
    const wchar_t* order[] = {L"Import Theme", L"Application Buttons", L"Taskbar Fonts",
                              L"Sound Events", L"Notifications",       L"System Colors"};
    for (size_t i = 1; i < sizeof order / sizeof order[0]; ++i)
        EXPECT_LT(at(order[i - 1]), at(order[i])) << "page " << i;
    EXPECT_EQ(names.back(), L"System Colors");
}
