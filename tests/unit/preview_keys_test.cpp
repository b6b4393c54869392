// Which theme values the preview reads: every key of the appearance pages' tables is either
// read by some scene or on the list of keys the README says the preview ignores, never both.
#include <gtest/gtest.h>

#include <set>

#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/image_pair_values.h"
#include "pages/appearance/start_menu_skin_values.h"
#include "pages/appearance/taskbar_buttons_values.h"
#include "preview_scene_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Key = std::pair<std::wstring, std::wstring>;

std::set<Key> AllThemeKeys() {
    const SettingSection* sections[] = {
        &kTopbarSection,         &kTodayMenubarSection,  &kMenubarSection,    &kSoftKeySection,
        &ButtonImagesSection(),  &kVolumeBubbleSection,  &kCheckRadioSection, &kAppButtonsSection,
        &kSystemColorsSection,   &kStartMenuSkinSection, &kTitleFontSection,  &kClockFontSection,
        &kSmallClockFontSection, &kSoundsSection};
    std::set<Key> keys;
    for (const SettingSection* s : sections) {
        for (size_t row = 0; row < s->count; ++row)
            keys.insert({s->name, s->keys[row].key});
        if (s->font)
            for (const wchar_t* key : {L"Name", L"Size", L"Color", L"Shadow", L"Style"})
                keys.insert({s->name, key});
    }
    return keys;
}

// The keys the README lists as ignored.
std::set<Key> IgnoredKeys() {
    std::set<Key> keys;
    for (size_t row = 0; row < kBuiltInButtonCount; ++row)
        keys.insert({L"Button Images", std::wstring(kTaskbarButtonRows[row].stem) + L" Pressed"});
    for (const wchar_t* stem :
         {L"OK", L"Mute", L"Vibrate", L"Disconnect", L"Signal Connected", L"SIP"})
        keys.insert({L"Button Images", std::wstring(stem) + L" Normal"});
    keys.insert({L"Button Images", L"Battery/Memory Custom"});
    keys.insert({L"Button Images", L"Signal Strength Custom"});
    for (size_t row = 0; row < kMenubarSection.count; ++row)
        keys.insert({L"Menubar", kMenubarSection.keys[row].key});
    for (const wchar_t* key : {L"Name", L"Size", L"Color", L"Shadow", L"Style"})
        keys.insert({L"Menubar", key});
    for (const wchar_t* key : {L"Portrait", L"Landscape", L"Mode", L"Solid Color", L"Left Color",
                               L"Right Color", L"Use Theme Colors", L"Left Pressed",
                               L"Right Pressed", L"Left Disabled", L"Right Disabled"})
        keys.insert({L"SoftKey", key});
    for (const wchar_t* key :
         {L"pressed", L"disabled", L"focused", L"Pressed Color", L"Disabled Color"})
        keys.insert({L"Buttons", key});
    for (const wchar_t* key : {L"Inactive Caption", L"Menu Text", L"Inactive Caption Text",
                               L"Tooltip Text", L"Tooltip Background", L"Static Text"})
        keys.insert({L"Colors", key});
    for (size_t row = 0; row < kSoundsSection.count; ++row)
        keys.insert({L"Sounds", kSoundsSection.keys[row].key});
    return keys;
}

bool Same(const Key& a, const Key& b) {
    return EqualsNoCase(a.first.c_str(), b.first.c_str()) &&
           EqualsNoCase(a.second.c_str(), b.second.c_str());
}

bool In(const std::vector<Key>& keys, const Key& key) {
    for (const Key& k : keys)
        if (Same(k, key))
            return true;
    return false;
}

class PreviewKeys : public ::testing::Test, public PreviewSceneFixture {
  protected:
    // Every key some scene read: both screen shapes, every mode that reads more keys, both
    // clocks, both kinds of start menu, every button of the order, with and without a phone.
    std::vector<Key> UsedKeys() {
        std::vector<Key> used;
        fakes.anyPicture = true;
        const char* themes[] = {
            "[Topbar]\nMode=scaled\nPortrait=p.bmp\nLandscape=l.bmp\n[Today Menubar]\n"
            "Mode=tiled\nPortrait=p.bmp\n[Start Menu Skin]\nUse Colors=FALSE\n"
            "Program Group=a.ico\n[Buttons]\nnormal=b.bmp\n",
            "[Topbar]\nMode=gradient\n[Today Menubar]\nMode=gradient\n"
            "[Start Menu Skin]\nUse Colors=TRUE\n",
            "[Topbar]\nMode=gradient\nUse Theme Colors=FALSE\n[Today Menubar]\nMode=gradient\n"
            "Use Theme Colors=FALSE\n",
            "[Topbar]\nMode=color\n[Today Menubar]\nMode=color\n"};
        const char* configs[] = {
            "[Topbar Settings]\nOrder=signal,notify,connection,volume,clock,home,menu,battery,"
            "custom1,custom2,close\n",
            "[General Settings]\nNormal Clock=FALSE\n"};
        for (const char* theme : themes) {
            for (const char* config : configs) {
                for (const DeviceScreen& screen : {SixScreens()[0], SixScreens()[1]}) {
                    Theme(theme);
                    Config(config);
                    Screen(screen);
                    request.startMenuOpen = true;
                    PreviewDevice device = fakes.Device();
                    device.hasPhone = true;
                    for (bool open : {false, true}) {
                        request.startMenuOpen = open;
                        for (const SceneKey& k : BuildScene(request, device).usedKeys)
                            used.push_back({k.section, k.key});
                    }
                }
            }
        }
        return used;
    }
};

} // namespace

TEST_F(PreviewKeys, EveryThemeKeyIsEitherReadOrListedAsIgnored) {
    const std::vector<Key> used = UsedKeys();
    const std::set<Key> ignored = IgnoredKeys();
    for (const Key& key : AllThemeKeys()) {
        const bool read = In(used, key);
        const bool listed = In(std::vector<Key>(ignored.begin(), ignored.end()), key);
        EXPECT_NE(read, listed) << std::string(key.first.begin(), key.first.end()) << " / "
                                << std::string(key.second.begin(), key.second.end())
                                << (read ? " is read but listed as ignored"
                                         : " is neither read nor listed");
    }
}
