// A scratch device folder holding a copy of the real CV2Settings.exe, with the test bar
// started on demand. Tests drive the program from this separate process.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace cv2test {

class DeviceFixture : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Path of a file in the scratch device folder.
    std::wstring File(const std::wstring& name) const { return m_dir + name; }
    void WriteText(const std::wstring& name, const std::string& bytes) const;
    std::string ReadText(const std::wstring& name) const;
    bool Exists(const std::wstring& name) const;

    // Starts the test bar, logging to bar.log (outside the device folder), and waits for it.
    void StartBar();
    void StopBar();
    std::string BarLog() const;

    // Runs the program with these arguments and waits for it to exit; returns its exit code.
    DWORD RunEditor(const std::wstring& arguments, DWORD timeoutMs = 30000);

    // The text with the platform's line ends.
    static std::string Lines(const std::string& text);

    std::wstring m_dir;     // scratch device folder, ends in a backslash
    std::wstring m_logPath; // the test bar's log
    PROCESS_INFORMATION m_bar{};
};

} // namespace cv2test
