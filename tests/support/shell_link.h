// Reads a shell link file back, for tests of the start-up shortcut.
#pragma once

#include <windows.h>
#include <objbase.h>
#include <shlobj.h>

#include <string>

namespace cv2test {

// The command line the link starts: its target in quotes, a blank, its arguments. Empty when
// the file cannot be read as a link.
inline std::wstring LinkCommandLine(const std::wstring& file) {
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    std::wstring line;
    IShellLinkW* link = nullptr;
    if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                   reinterpret_cast<void**>(&link)))) {
        IPersistFile* persist = nullptr;
        if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persist)))) {
            wchar_t path[MAX_PATH] = {}, args[MAX_PATH] = {};
            if (SUCCEEDED(persist->Load(file.c_str(), STGM_READ)) &&
                SUCCEEDED(link->GetPath(path, MAX_PATH, nullptr, SLGP_RAWPATH)) &&
                SUCCEEDED(link->GetArguments(args, MAX_PATH)))
                line = L"\"" + std::wstring(path) + L"\" " + args;
            persist->Release();
        }
        link->Release();
    }
    if (SUCCEEDED(com))
        CoUninitialize();
    return line;
}

} // namespace cv2test
