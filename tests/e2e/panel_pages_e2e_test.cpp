// The pages that borrow the theme editor's image panel, in the real program: Customize, visit
// the pages through the editor's page menu, type a path into the panel, OK, Apply; config.ini
// then holds every key of each page's sections in order.
#include <windows.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "device_fixture.h"
#include "ids_editor.h"

namespace cv2test {
namespace {

using Keys = std::vector<std::string>;

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

// The sample device folder of the sources, ending in a backslash.
std::string SamplesFolder() {
    const char* dir = std::getenv("CV2_SAMPLES_DIR");
    return std::string(dir ? dir : ".") + "\\";
}

const Keys kBackground = {"Portrait",    "Landscape",       "Mode", "Solid Color", "Left Color",
                          "Right Color", "Use Theme Colors"};
const Keys kFont = {"Name", "Size", "Color", "Shadow", "Style"};

Keys Join(Keys a, const Keys& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Keys ButtonImageKeys() {
    const char* const stems[] = {"Start Menu",
                                 "Close",
                                 "OK",
                                 "Notify",
                                 "Volume",
                                 "Mute",
                                 "Vibrate",
                                 "Battery/Memory",
                                 "Home",
                                 "Menu",
                                 "Custom1",
                                 "Custom2",
                                 "Connection",
                                 "Disconnect",
                                 "Signal Strength",
                                 "Signal Connected",
                                 "SIP"};
    Keys keys;
    for (const char* stem : stems) {
        keys.push_back(std::string(stem) + " Normal");
        keys.push_back(std::string(stem) + " Pressed");
    }
    keys.push_back("Battery/Memory Custom");
    keys.push_back("Signal Strength Custom");
    return keys;
}

struct SectionKeys {
    const char* section;
    Keys keys;
};

std::vector<SectionKeys> PanelSections() {
    return {
        {"Topbar", kBackground},
        {"Today Menubar", Join(Join(kBackground, {"Display New Text"}), kFont)},
        {"Menubar", Join(Join(kBackground,
                              {"Pressed Color", "Normal", "Pressed", "Disabled", "Left", "Right"}),
                         kFont)},
        {"SoftKey", Join(kBackground, {"Left Button", "Right Button", "Left Pressed",
                                       "Right Pressed", "Left Disabled", "Right Disabled"})},
        {"Button Images", ButtonImageKeys()},
        {"Volume Bubble", {"Image"}},
        {"Buttons", {"Checkbox", "Radiobutton"}},
        {"Start Menu Skin", Join({"Start Menu Picture", "Start Menu Picture 2", "Program Group",
                                  "Settings Group", "Find Icon", "Help Icon", "Submenu Arrow",
                                  "Left Margin", "Right Margin", "Sublevel Left Margin",
                                  "Sublevel Right Margin", "Use Colors", "BKColor", "HighColor"},
                                 kFont)},
    };
}

// The editor's page titles of these pages, as the page menu lists them.
const wchar_t* const kPanelTitles[] = {
    L"Taskbar Background", L"Today Menubar", L"Application Menubar",    L"SoftKeys",
    L"Taskbar Buttons",    L"Volume Bubble", L"Checkbox/Radio Buttons", L"Start Menu Skin",
};

class PanelPagesE2E : public DeviceFixture {
  protected:
    void Start(const std::string& appearance) {
        WriteText(L"config.ini",
                  "[Settings]\nTheme File=" + Narrow(File(L"config.ini")) + "\n" + appearance);
        ASSERT_TRUE(StartEditor());
        m_editorDialog = OpenThemeEditor();
        ASSERT_TRUE(m_editorDialog);
    }

    void VisitPage(const wchar_t* title) {
        const int index = EditorPageIndex(title);
        ASSERT_GE(index, 0) << Narrow(title);
        SelectEditorPage(m_editorDialog, index);
    }

    void TypeFirstPath(const std::wstring& path) {
        SendMessageW(GetDlgItem(m_editorDialog, IDC_PANEL_FIRST_PATH), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(path.c_str()));
    }

    void OkAndApply() {
        PostMessageW(m_editorDialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(m_editorDialog); }));
        Apply();
    }

    // The keys of a section of config.ini in the order written.
    Keys KeysOf(const char* section) const {
        Keys keys;
        const std::string text = SectionText(section);
        size_t at = text.find('\n');
        while (at != std::string::npos && at + 1 < text.size()) {
            const size_t end = text.find('\n', at + 1);
            std::string line = text.substr(at + 1, end == std::string::npos ? end : end - at - 1);
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            const size_t equals = line.find('=');
            if (equals != std::string::npos)
                keys.push_back(line.substr(0, equals));
            at = end;
        }
        return keys;
    }

    void ExpectEveryPanelSectionInOrder() {
        for (const SectionKeys& s : PanelSections()) {
            Keys keys = KeysOf(s.section);
            // Buttons is shared with Application Buttons: only the order of these keys counts.
            if (std::string(s.section) == "Buttons") {
                Keys mine;
                for (const std::string& k : keys)
                    if (k == "Checkbox" || k == "Radiobutton")
                        mine.push_back(k);
                keys = mine;
            }
            // Buttons of registered plug-ins follow the built-in ones.
            if (std::string(s.section) == "Button Images" && keys.size() > s.keys.size())
                keys.resize(s.keys.size());
            EXPECT_EQ(keys, s.keys) << s.section;
        }
    }

    HWND m_editorDialog = nullptr;
};

} // namespace

TEST_F(PanelPagesE2E, VisitingEveryPageAndTypingAPathWritesEveryKeyInOrder) {
    const std::string samples = SamplesFolder() + "Themes\\CVDefault\\";
    // Keys already in the file keep their places, so the sections start with their first keys.
    Start("[Topbar]\nPortrait=" + samples + "topbar.bmp\nLandscape=" + samples +
          "topbar_l.bmp\nMode=Tiled\n[SoftKey]\nPortrait=\nLandscape=\nMode=gradient\n");
    for (const wchar_t* title : kPanelTitles)
        VisitPage(title);
    VisitPage(L"Volume Bubble");
    TypeFirstPath(L"\\Windows\\bubble.png");
    OkAndApply();
    ExpectEveryPanelSectionInOrder();
    EXPECT_NE(SectionText("Volume Bubble").find("Image=\\Windows\\bubble.png"), std::string::npos);
    EXPECT_NE(SectionText("Topbar").find("Portrait=" + samples + "topbar.bmp"), std::string::npos);
    EXPECT_NE(SectionText("Topbar").find("Mode=tiled"), std::string::npos);
    EXPECT_NE(SectionText("SoftKey").find("Mode=scaled"), std::string::npos);
}

TEST_F(PanelPagesE2E, PagesNeverVisitedStillWriteTheirValues) {
    Start(
        "[Volume Bubble]\nImage=\\bubble.png\n[Start Menu Skin]\nStart Menu Picture=\\menu.png\n");
    OkAndApply();
    ExpectEveryPanelSectionInOrder();
    EXPECT_NE(SectionText("Volume Bubble").find("Image=\\bubble.png"), std::string::npos);
    EXPECT_NE(SectionText("Start Menu Skin").find("Start Menu Picture=\\menu.png"),
              std::string::npos);
    EXPECT_NE(SectionText("Menubar").find("Left=3"), std::string::npos);
    EXPECT_NE(SectionText("Menubar").find("Right=3"), std::string::npos);
}

} // namespace cv2test
