// One plug-in library, loaded once: its entry points, and the names of the buttons and actions
// it offers, copied into fixed buffers when it is loaded. The library stays loaded until the
// object is destroyed.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "pages/behaviour/plugins/plugin_values.h"

namespace cv2 {

// A button slot. A slot whose registration call returned zero is absent: its names are empty
// and every look-up skips it.
struct PluginButton {
    bool present = false;
    wchar_t name[kPluginNameChars] = {};  // display name
    wchar_t third[kPluginNameChars] = {}; // kept for the bar; the editor does not use it
    wchar_t key[kPluginKeyChars] = {};    // the word of the button in the button order
    RECT rect = {};                       // used by the bar; empty here
    DWORD words[2] = {};                  // used by the bar; zero here
};

struct PluginAction {
    bool present = false;
    wchar_t value[kPluginValueChars] = {}; // what config.ini stores
    wchar_t name[kPluginNameChars] = {};   // what the combo boxes show
};

class Plugin {
  public:
    // The most slots of either kind taken from one plug-in; a larger count announced by a
    // plug-in is cut to it rather than allocated.
    static constexpr DWORD kMaxSlots = 65535;

    // Loads the library at `path` and asks it for its buttons and actions. A library that does
    // not load, or whose initialisation fails, gives an empty plug-in.
    explicit Plugin(const wchar_t* path);
    // Tells a loaded library it is done with, then releases it.
    ~Plugin();
    Plugin(const Plugin&) = delete;
    Plugin& operator=(const Plugin&) = delete;

    bool Loaded() const { return m_module != nullptr; }
    const wchar_t* Path() const { return m_path; }
    const std::vector<PluginButton>& Buttons() const { return m_buttons; }
    const std::vector<PluginAction>& Actions() const { return m_actions; }

  private:
    using InitFn = int (*)(DWORD* info, int reserved);
    using DeInitFn = void (*)();
    using RegisterButtonFn = int (*)(int index, wchar_t* name, int nameChars, wchar_t* third,
                                     int thirdChars, wchar_t* key, int keyChars);
    using RegisterActionFn = int (*)(int index, wchar_t* value, int valueChars, wchar_t* name,
                                     int nameChars);

    bool Initialise();
    void FetchButtons(RegisterButtonFn fetch);
    void FetchActions(RegisterActionFn fetch);

    wchar_t m_path[kPluginPathChars] = {};
    HMODULE m_module = nullptr;
    // Kept for the bar's calls; the editor only ever calls the first two.
    InitFn m_init = nullptr;
    DeInitFn m_deInit = nullptr;
    FARPROC m_draw = nullptr;
    FARPROC m_update = nullptr;
    FARPROC m_executeTap = nullptr;
    FARPROC m_executeHold = nullptr;
    // Filled by the library's initialisation: [1] its button count, [2] its action count.
    DWORD m_info[4] = {};
    std::vector<PluginButton> m_buttons;
    std::vector<PluginAction> m_actions;
};

} // namespace cv2
