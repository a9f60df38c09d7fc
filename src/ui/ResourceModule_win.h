#pragma once

#include <windows.h>

#include <string>

namespace Orva::Ui {

// The module whose resources (dialog templates, the slider bitmap) the dialogs load: the one
// this code is linked into, the add-in DLL or a test program, whoever loaded it.
inline HINSTANCE ResourceModule() {
    static const HINSTANCE module = [] {
        HMODULE found = nullptr;
        ::GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<LPCWSTR>(&ResourceModule), &found);
        return found;
    }();
    return module;
}

// That module's folder, with its final backslash.
inline std::wstring ResourceModuleFolder() {
    wchar_t path[MAX_PATH] = {};
    const DWORD length = ::GetModuleFileNameW(ResourceModule(), path, MAX_PATH);
    std::wstring folder(path, length < MAX_PATH ? length : 0);
    folder.erase(folder.find_last_of(L'\\') + 1);
    return folder;
}

}  // namespace Orva::Ui
