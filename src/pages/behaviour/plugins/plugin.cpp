#include "pages/behaviour/plugins/plugin.h"

#include <algorithm>
#include <new>

#include "platform/plugin_library.h"

namespace cv2 {
namespace {

// Room past the sizes the library is told, so a library that writes its terminator one place
// too far does not reach the editor's own stack.
constexpr size_t kSlack = 16;

template <class Fn> Fn Export(HMODULE module, const char* name) {
    return reinterpret_cast<Fn>(reinterpret_cast<void*>(PluginExport(module, name)));
}

// Slots for a count the library announced; none when the memory cannot be had.
template <class Slot> void Allocate(std::vector<Slot>& slots, DWORD announced) {
    const size_t count = std::min<DWORD>(announced, Plugin::kMaxSlots);
    slots.clear();
    try {
        slots.resize(count);
    } catch (const std::bad_alloc&) {
        slots.clear();
    }
}

} // namespace

Plugin::Plugin(const wchar_t* path) {
    CopyToBuffer(m_path, kPluginPathChars, path);
    // A value that held no path names no library (an empty name would not mean "none" to the
    // loader everywhere).
    if (!m_path[0])
        return;
    m_module = LoadPluginLibrary(m_path);
    if (!m_module)
        return;
    if (!Initialise()) {
        ReleasePluginLibrary(m_module);
        m_module = nullptr;
        return;
    }
    if (auto fetch = Export<RegisterButtonFn>(m_module, "CRRegisterButtons"))
        FetchButtons(fetch);
    if (auto fetch = Export<RegisterActionFn>(m_module, "CRRegisterActions"))
        FetchActions(fetch);
}

Plugin::~Plugin() {
    if (!m_module)
        return;
    if (m_deInit)
        m_deInit();
    ReleasePluginLibrary(m_module);
}

bool Plugin::Initialise() {
    std::fill(std::begin(m_info), std::end(m_info), 0);
    m_init = Export<InitFn>(m_module, "CRInit");
    m_deInit = Export<DeInitFn>(m_module, "CRDeInit");
    m_draw = PluginExport(m_module, "CRDraw");
    m_update = PluginExport(m_module, "CRUpdate");
    m_executeTap = PluginExport(m_module, "CRExecuteTap");
    m_executeHold = PluginExport(m_module, "CRExecuteHold");
    if (!m_init)
        return false;
    // The library fills a block of its own with room past the four words, so a library that
    // writes one word too many does not reach this object's other members.
    DWORD info[4 + kSlack] = {};
    const bool ok = m_init(info, 0) != 0;
    std::copy(info, info + 4, m_info);
    return ok;
}

void Plugin::FetchButtons(RegisterButtonFn fetch) {
    Allocate(m_buttons, m_info[1]);
    for (size_t i = 0; i < m_buttons.size(); ++i) {
        wchar_t name[kPluginNameChars + kSlack] = {};
        wchar_t third[kPluginNameChars + kSlack] = {};
        wchar_t key[kPluginKeyChars + kSlack] = {};
        if (!fetch(static_cast<int>(i), name, kPluginNameChars, third, kPluginNameChars, key,
                   kPluginKeyChars))
            continue;
        // Copies stop at the buffer's end whether or not the library ended its text.
        PluginButton& button = m_buttons[i];
        button.present = true;
        CopyToBuffer(button.name, kPluginNameChars, name);
        CopyToBuffer(button.third, kPluginNameChars, third);
        CopyToBuffer(button.key, kPluginKeyChars, key);
        SetRectEmpty(&button.rect);
        button.words[0] = button.words[1] = 0;
    }
}

void Plugin::FetchActions(RegisterActionFn fetch) {
    Allocate(m_actions, m_info[2]);
    for (size_t i = 0; i < m_actions.size(); ++i) {
        wchar_t value[kPluginValueChars + kSlack] = {};
        wchar_t name[kPluginNameChars + kSlack] = {};
        if (!fetch(static_cast<int>(i), value, kPluginValueChars, name, kPluginNameChars))
            continue;
        PluginAction& action = m_actions[i];
        action.present = true;
        CopyToBuffer(action.value, kPluginValueChars, value);
        CopyToBuffer(action.name, kPluginNameChars, name);
    }
}

} // namespace cv2
