// A fresh folder for one test, removed again afterwards. Paths are device-style (backslashes);
// the file module maps them to the host's form.
#pragma once

#include <atomic>
#include <filesystem>
#include <string>

#include "platform/file_access.h"

namespace cv2test {

class TempFolder {
  public:
    TempFolder() {
        static std::atomic<int> counter{0};
        auto base = std::filesystem::temp_directory_path();
        for (;;) {
            m_dir = base / ("cv2test-" + std::to_string(Pid()) + "-" + std::to_string(counter++));
            if (std::filesystem::create_directory(m_dir))
                break;
        }
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(m_dir, ec);
    }
    // The folder with a trailing backslash.
    std::wstring Path() const {
        std::wstring p = m_dir.wstring();
        for (wchar_t& c : p) {
            if (c == L'/')
                c = L'\\';
        }
        return p + L"\\";
    }
    std::wstring File(const std::wstring& name) const { return Path() + name; }

    // Creates a folder and its parents inside this one; `name` uses backslashes.
    void MakeFolder(const std::wstring& name) const {
        std::filesystem::create_directories(Inside(name));
    }
    bool HasFolder(const std::wstring& name) const {
        std::error_code ec;
        return std::filesystem::is_directory(Inside(name), ec);
    }
    void Write(const std::wstring& name, const std::string& bytes) const {
        cv2::WriteFileReplacing(File(name), cv2::Bytes(bytes.begin(), bytes.end()));
    }
    std::string Read(const std::wstring& name) const {
        cv2::Bytes bytes;
        cv2::ReadWholeFile(File(name), bytes);
        return std::string(bytes.begin(), bytes.end());
    }

  private:
    static long Pid();
    std::filesystem::path Inside(const std::wstring& name) const {
        std::wstring relative = name;
        for (wchar_t& c : relative) {
            if (c == L'\\')
                c = L'/';
        }
        return m_dir / std::filesystem::path(relative);
    }
    std::filesystem::path m_dir;
};

} // namespace cv2test

#ifdef _WIN32
#include <process.h>
inline long cv2test::TempFolder::Pid() { return _getpid(); }
#else
#include <unistd.h>
inline long cv2test::TempFolder::Pid() { return getpid(); }
#endif
