// The preview command line's work: reads the theme, draws its preview and writes the image,
// with no window and without touching config.ini (which it only reads, for the button order and
// the clock).
#pragma once

#include <string>

namespace cv2 {

// Exit codes of the command.
enum PreviewExit : int {
    kPreviewWritten = 0,
    kPreviewUsage = 1,      // the command line is not understood
    kPreviewNoTheme = 2,    // the theme file cannot be read
    kPreviewNotWritten = 3, // the image cannot be written
};

// Runs the command of `commandLine`; `exeFolder` holds config.ini. A failure is said on
// standard error.
int RunPreviewCommand(const std::wstring& exeFolder, const std::wstring& commandLine);

} // namespace cv2
