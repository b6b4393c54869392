#include "platform/read_observer.h"

#include "platform/file_access.h"

namespace cv2 {
namespace {

FileReadObserver g_observer = nullptr; // one thread: the program has no other

} // namespace

void ObserveFileReads(FileReadObserver observer) {
    g_observer = observer;
}

void NoteFileRead(const std::wstring& path) {
    if (g_observer)
        g_observer(path);
}

} // namespace cv2
