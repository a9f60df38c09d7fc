#include <shlobj.h>
#include <windows.h>

#include <string>

#include "common_src/platform/ProcessContext.h"

namespace ZelCommon::Platform {
namespace {

// The module that holds this code: the add-in DLL inside the mail client, the test program
// under Wine.
HMODULE OwnModule() {
    HMODULE module = nullptr;
    const auto address = reinterpret_cast<LPCWSTR>(&OwnModule);
    if (!::GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            address, &module)) {
        return nullptr;
    }
    return module;
}

// The module's file name, read into a buffer that grows until the path fits.
std::wstring FileNameOf(HMODULE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD capacity = static_cast<DWORD>(path.size());
        const DWORD length = ::GetModuleFileNameW(module, path.data(), capacity);
        if (length == 0) {
            return {};
        }
        if (length < capacity) {
            path.resize(length);
            return path;
        }
        if (path.size() >= 32768) {
            return {};
        }
        path.resize(path.size() * 2);
    }
}

// A shell folder by its CSIDL, without a final separator; empty when the shell has none.
std::wstring SpecialFolder(int csidl) {
    wchar_t folder[MAX_PATH] = {};
    if (!::SHGetSpecialFolderPathW(nullptr, folder, csidl, FALSE)) {
        return {};
    }
    std::wstring result(folder);
    while (!result.empty() && result.back() == L'\\') {
        result.pop_back();
    }
    return result;
}

class WindowsProcessContext final : public IProcessContext {
public:
    uint32_t ProcessId() const override { return ::GetCurrentProcessId(); }
    uint32_t ThreadId() const override { return ::GetCurrentThreadId(); }

    std::wstring ModuleFilePath() const override { return FileNameOf(OwnModule()); }
    std::wstring ExecutableFilePath() const override { return FileNameOf(nullptr); }

    std::wstring CommonAppDataFolder() const override {
        return SpecialFolder(CSIDL_COMMON_APPDATA);
    }
    std::wstring LocalAppDataFolder() const override { return SpecialFolder(CSIDL_LOCAL_APPDATA); }

    uint32_t LastError() const override { return ::GetLastError(); }
};

class WindowsDebuggerOutput final : public IDebuggerOutput {
public:
    void Write(const std::wstring& text) override { ::OutputDebugStringW(text.c_str()); }
};

}  // namespace

IProcessContext& SystemProcessContext() {
    static WindowsProcessContext context;
    return context;
}

IDebuggerOutput& SystemDebuggerOutput() {
    static WindowsDebuggerOutput output;
    return output;
}

}  // namespace ZelCommon::Platform
