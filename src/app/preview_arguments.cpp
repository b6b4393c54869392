#include "app/preview_arguments.h"

#include <algorithm>

#include "themes/preview/scene_builder.h"

namespace cv2 {
namespace {

const wchar_t kPreview[] = L"--preview=";
const wchar_t kOut[] = L"--out=";
const wchar_t kSize[] = L"--size=";
const wchar_t kDpi[] = L"--dpi=";
const wchar_t kStartMenu[] = L"--start-menu";

bool StartsWith(const std::wstring& word, const wchar_t* prefix, std::wstring& rest) {
    const std::wstring p = prefix;
    if (word.compare(0, p.size(), p) != 0)
        return false;
    rest = word.substr(p.size());
    return true;
}

// A whole decimal number from `lo` to `hi`; false for anything else.
bool ReadNumber(const std::wstring& text, int lo, int hi, int& out) {
    if (text.empty() || text.size() > 6)
        return false;
    int value = 0;
    for (wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return false;
        value = value * 10 + (c - L'0');
    }
    if (value < lo || value > hi)
        return false;
    out = value;
    return true;
}

bool ReadSize(const std::wstring& text, int& width, int& height) {
    const size_t x = text.find_first_of(L"xX");
    return x != std::wstring::npos && ReadNumber(text.substr(0, x), 1, kMaxSceneSide, width) &&
           ReadNumber(text.substr(x + 1), 1, kMaxSceneSide, height);
}

} // namespace

bool IsPreviewCommand(const std::wstring& commandLine) {
    return commandLine.find(kPreview) != std::wstring::npos;
}

std::vector<std::wstring> CommandLineWords(const std::wstring& commandLine) {
    std::vector<std::wstring> words;
    std::wstring word;
    bool inWord = false, quoted = false;
    for (wchar_t c : commandLine) {
        if (c == L'"') {
            quoted = !quoted;
            inWord = true;
        } else if ((c == L' ' || c == L'\t') && !quoted) {
            if (inWord)
                words.push_back(word);
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words.push_back(word);
    return words;
}

bool ParsePreviewArguments(const std::wstring& commandLine, PreviewArguments& out) {
    PreviewArguments a;
    bool dpiGiven = false;
    for (const std::wstring& word : CommandLineWords(commandLine)) {
        std::wstring value;
        if (StartsWith(word, kPreview, value))
            a.theme = value;
        else if (StartsWith(word, kOut, value))
            a.out = value;
        else if (StartsWith(word, kSize, value)) {
            if (!ReadSize(value, a.width, a.height))
                return false;
        } else if (StartsWith(word, kDpi, value)) {
            if (!ReadNumber(value, kMinSceneDpi, kMaxSceneDpi, a.dpi))
                return false;
            dpiGiven = true;
        } else if (word == kStartMenu)
            a.startMenu = true;
        else
            return false;
    }
    if (a.theme.empty() || a.out.empty())
        return false;
    if (!dpiGiven)
        a.dpi = std::min(a.width, a.height) >= 480 ? 192 : 96;
    out = a;
    return true;
}

} // namespace cv2
