#include "platform/read_observer.h"

#include <mutex>

#include "platform/file_access.h"

namespace cv2 {
namespace {

// Themes are read on several threads at once: the observer is called by one at a time.
std::mutex g_lock;
FileReadObserver g_observer = nullptr;

} // namespace

void ObserveFileReads(FileReadObserver observer) {
    std::lock_guard<std::mutex> hold(g_lock);
    g_observer = observer;
}

void NoteFileRead(const std::wstring& path) {
    std::lock_guard<std::mutex> hold(g_lock);
    if (g_observer)
        g_observer(path);
}

} // namespace cv2
