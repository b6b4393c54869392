#include "hostile_themes.h"

#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <random>

namespace cv2test {
namespace {

void Write(const std::wstring& path, const std::string& bytes) {
    HANDLE f = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (f == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
}

// A theme folder "Themes\<name>\" holding "<skin>.skin" with `text`; the long-name kinds
// use the \\?\ form so that paths past 260 characters can be made at all.
std::wstring Theme(const std::wstring& device, const std::wstring& name, const std::wstring& skin,
                   const std::string& text, std::vector<std::wstring>& made) {
    const std::wstring folder = L"Themes\\" + name;
    CreateDirectoryW((L"\\\\?\\" + device + folder).c_str(), nullptr);
    const std::wstring file = folder + L"\\" + skin + L".skin";
    Write(L"\\\\?\\" + device + file, text);
    made.push_back(file);
    return file;
}

std::string Info(const std::string& name) {
    return "[Skin Info]\r\nName=" + name + "\r\nAuthor=Someone\r\nHiRes=FALSE\r\n";
}

std::string BigText(size_t bytes) {
    std::string text = Info("Big");
    text += "[Button Images]\r\n";
    const std::string line = "Key=" + std::string(200, 'x') + "\r\n";
    while (text.size() < bytes)
        text += line;
    return text;
}

std::string ManySections(int sections) {
    std::string text = Info("Sections");
    for (int s = 0; s < sections; ++s)
        text += "[Notify." + std::to_string(s) + "]\r\nNormal=n" + std::to_string(s) + ".png\r\n";
    return text;
}

std::string RandomBytes(size_t size) {
    std::mt19937 random(20261123);
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random() & 0xFF);
    return bytes;
}

// Removes a tree given in the \\?\ form, which reaches past 260 characters.
void RemoveLongTree(const std::wstring& dir) {
    WIN32_FIND_DATAW data;
    HANDLE find = FindFirstFileW((dir + L"\\*").c_str(), &data);
    if (find != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = data.cFileName;
            if (name == L"." || name == L"..")
                continue;
            if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                RemoveLongTree(dir + L"\\" + name);
            else
                DeleteFileW((dir + L"\\" + name).c_str());
        } while (FindNextFileW(find, &data));
        FindClose(find);
    }
    RemoveDirectoryW(dir.c_str());
}

} // namespace

void RemoveHostileThemes(const std::wstring& device) {
    RemoveLongTree(L"\\\\?\\" + device + L"Themes");
}

HostileScale HostileScaleFromEnvironment() {
    const char* size = std::getenv("CV2_HOSTILE");
    if (size && std::strcmp(size, "full") == 0)
        return {2000, 50u << 20, 100000, 50};
    return {200, 2u << 20, 10000, 50};
}

std::vector<std::wstring> MakeHostileThemes(const std::wstring& device, const HostileScale& scale) {
    std::vector<std::wstring> made;
    CreateDirectoryW((device + L"Themes").c_str(), nullptr);
    for (int i = 0; i < scale.themes; ++i) {
        const std::wstring n = std::to_wstring(i);
        Theme(device, L"Plain" + n, L"Plain" + n, Info("Plain " + std::to_string(i)), made);
    }
    Theme(device, L"Big", L"Big", BigText(scale.bigSkinBytes), made);
    Theme(device, L"Sections", L"Sections", ManySections(scale.manySections), made);
    Theme(device, L"Random", L"Random", RandomBytes(64 * 1024), made);
    Theme(device, L"Empty", L"Empty", "", made);
    // Names in scripts outside the ANSI code page.
    Theme(device, L"\x0422\x0435\x043C\x0430", L"\x0422\x0435\x043C\x0430", Info("Cyrillic"), made);
    Theme(device, L"\x30C6\x30FC\x30DE", L"\x30C6\x30FC\x30DE", Info("Japanese"), made);
    // Names that bring the path near and past 260 characters.
    const size_t room = 250 > device.size() + 20 ? 250 - device.size() - 20 : 10;
    Theme(device, std::wstring(room / 2, L'n'), std::wstring(room / 2, L'm'), Info("Near"), made);
    Theme(device, std::wstring(150, L'p'), std::wstring(150, L'q'), Info("Past"), made);
    // A theme folder with folders nested deep inside it.
    std::wstring deep = L"\\\\?\\" + device + L"Themes\\Deep";
    CreateDirectoryW(deep.c_str(), nullptr);
    Write(deep + L"\\Deep.skin", Info("Deep"));
    made.push_back(L"Themes\\Deep\\Deep.skin");
    for (int d = 0; d < scale.nestDepth; ++d) {
        deep += L"\\level" + std::to_wstring(d);
        CreateDirectoryW(deep.c_str(), nullptr);
        Write(deep + L"\\inner.skin", Info("Inner"));
    }
    return made;
}

} // namespace cv2test
