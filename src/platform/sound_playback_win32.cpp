#include "platform/sound_playback.h"

#include <windows.h>

namespace cv2 {
namespace {

// The flags of the platform's sound call (mmsystem.h), named here so that the header and its
// library are not needed at build time.
constexpr DWORD kSoundSync = 0x0000;
constexpr DWORD kSoundNoDefault = 0x0002;
constexpr DWORD kSoundFileName = 0x00020000;

using PlaySoundProc = BOOL(WINAPI*)(LPCWSTR, HMODULE, DWORD);
using DeviceCountProc = UINT(WINAPI*)();

SoundRecorder& Recorder() {
    static SoundRecorder recorder;
    return recorder;
}

// The playback library, loaded once and kept for the program's life.
HMODULE SoundLibrary() {
    static HMODULE library = LoadLibraryW(L"winmm.dll");
    return library;
}

template <class Proc> Proc SoundProc(const char* name) {
    HMODULE library = SoundLibrary();
    return library ? reinterpret_cast<Proc>(reinterpret_cast<void*>(GetProcAddress(library, name)))
                   : nullptr;
}

} // namespace

bool PlaySoundFile(const std::wstring& text) {
    if (Recorder())
        return Recorder()(text);
    const auto play = SoundProc<PlaySoundProc>("PlaySoundW");
    return play && play(text.c_str(), nullptr, kSoundFileName | kSoundSync | kSoundNoDefault);
}

bool HasSoundPlayback() {
    return SoundProc<PlaySoundProc>("PlaySoundW") != nullptr;
}

unsigned SoundOutputDevices() {
    const auto count = SoundProc<DeviceCountProc>("waveOutGetNumDevs");
    return count ? count() : 0;
}

void RecordSoundsWith(SoundRecorder recorder) {
    Recorder() = std::move(recorder);
}

} // namespace cv2
