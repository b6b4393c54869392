#include "pages/appearance/sound_event_file.h"

#include "platform/file_access.h"

namespace cv2 {

std::wstring SoundFilePart(const std::wstring& text) {
    size_t end = text.find(L'|');
    if (end == std::wstring::npos)
        end = text.find(L',');
    return text.substr(0, end);
}

bool IsPlayableSound(const std::wstring& text) {
    const std::wstring file = SoundFilePart(text);
    return !file.empty() && FileExists(file);
}

} // namespace cv2
