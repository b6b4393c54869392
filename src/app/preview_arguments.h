// The command line that writes a preview of a theme to an image file instead of starting the
// editor:
//   CV2Settings.exe --preview=<theme file> --out=<image file> [--size=WxH] [--dpi=N]
//                   [--start-menu]
// Portable: the reading of the words; app/preview_command.h does the work.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

struct PreviewArguments {
    std::wstring theme;
    std::wstring out;
    int width = 240;
    int height = 320;
    int dpi = 96;
    bool startMenu = false;
};

// True when the command line asks for a preview image ("--preview=" anywhere in it). The theme
// switch's "--theme=" is asked about first and wins.
bool IsPreviewCommand(const std::wstring& commandLine);

// The words of a command line: split at blanks, where double quotes keep blanks inside a word
// and are themselves dropped ("--out=C:\My Pictures\bar.png" in quotes is one word).
std::vector<std::wstring> CommandLineWords(const std::wstring& commandLine);

// Reads the words. False when the theme or the image is not named, a word is unknown, or a size
// or density is not a number in range (sides 1 to 4096, densities 24 to 960). Without --dpi,
// screens whose shorter side is 480 or more are drawn at 192 dots per inch, others at 96.
bool ParsePreviewArguments(const std::wstring& commandLine, PreviewArguments& out);

} // namespace cv2
