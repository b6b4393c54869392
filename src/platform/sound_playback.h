// Playing a sound file once through the platform's wave playback, synchronously: the call
// returns when the sound has ended. The playback library is loaded when first needed, so the
// program starts on a device without it. Tests can put a recorder in the platform's place.
#pragma once

#include <functional>
#include <string>

namespace cv2 {

// Hands `text` (a file name, possibly followed by more) to the platform's sound call, from a
// file name, synchronously, without falling back to the default sound; false when the platform
// could not play it (no library, no sound output, not a wave file).
bool PlaySoundFile(const std::wstring& text);

// True when the platform's playback library and its sound call were found.
bool HasSoundPlayback();

// The number of sound output devices the platform has; 0 without the library.
unsigned SoundOutputDevices();

// For tests: every later PlaySoundFile goes to `recorder` instead of the platform; an empty
// function puts the platform back.
using SoundRecorder = std::function<bool(const std::wstring& text)>;
void RecordSoundsWith(SoundRecorder recorder);

} // namespace cv2
