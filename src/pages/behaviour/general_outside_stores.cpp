#include "pages/behaviour/general_outside_stores.h"

#include <windows.h>
#include <shlobj.h>

#include <new>

#include "pages/behaviour/general_startup.h"
#include "platform/exe_folder.h"
#include "platform/file_access.h"
#include "platform/shell.h"
#include "platform/user_registry.h"
#include "store/paths.h"

namespace cv2 {

DeviceOutsideStores::DeviceOutsideStores(std::wstring shortcutPath, std::wstring shortcutTarget,
                                         std::wstring registryKey)
    : m_shortcutPath(std::move(shortcutPath)), m_shortcutTarget(std::move(shortcutTarget)),
      m_registryKey(std::move(registryKey)) {}

bool DeviceOutsideStores::ShortcutExists() {
    return !m_shortcutPath.empty() && FileExists(m_shortcutPath);
}

bool DeviceOutsideStores::CreateShortcut() {
    if (m_shortcutPath.empty())
        return false;
    return SHCreateShortcut(&m_shortcutPath[0], &m_shortcutTarget[0]) != FALSE;
}

bool DeviceOutsideStores::DeleteShortcut() {
    return !m_shortcutPath.empty() && RemoveFile(m_shortcutPath);
}

bool DeviceOutsideStores::ReadSoundHookValue(unsigned long& value) {
    return ReadUserDword(m_registryKey.c_str(), kSoundHookValue, value);
}

bool DeviceOutsideStores::WriteSoundHookValue(unsigned long value) {
    return WriteUserDword(m_registryKey.c_str(), kSoundHookValue, value);
}

std::wstring StartupFolder() {
    wchar_t folder[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(GetDesktopWindow(), folder, CSIDL_STARTUP, FALSE))
        return std::wstring();
    return folder;
}

std::unique_ptr<OutsideStores> MakeDeviceOutsideStores() {
    return std::unique_ptr<OutsideStores>(new (std::nothrow) DeviceOutsideStores(
        StartupShortcutPath(StartupFolder()), StartupShortcutTarget(ExeFolder()), kBarRegistryKey));
}

} // namespace cv2
