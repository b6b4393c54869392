// Whether the device has a phone, which decides the Signal Strength button and the default
// button order. Asked once at start-up.
#pragma once

namespace cv2 {

// The phone's state key that the platform keeps under HKEY_LOCAL_MACHINE on devices with a
// phone radio; devices without one have no such key.
constexpr wchar_t kPhoneStateKey[] = L"System\\State\\Phone";

// True when the phone's state key exists.
bool DeviceHasPhone();

} // namespace cv2
