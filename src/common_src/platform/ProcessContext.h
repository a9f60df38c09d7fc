#pragma once

#include <cstdint>
#include <string>

namespace ZelCommon::Platform {

// Facts about the running process and the machine's well-known folders.
class IProcessContext {
public:
    virtual ~IProcessContext() = default;
    virtual uint32_t ProcessId() const = 0;
    virtual uint32_t ThreadId() const = 0;
    // The full path of the add-in's own module file (the DLL on Windows; the program natively).
    virtual std::wstring ModuleFilePath() const = 0;
    // The full path of the process's executable: the mail client that loaded the add-in.
    virtual std::wstring ExecutableFilePath() const = 0;
    // The common application-data folder (CSIDL_COMMON_APPDATA), without a final separator.
    virtual std::wstring CommonAppDataFolder() const = 0;
    // The user's local application-data folder (CSIDL_LOCAL_APPDATA), without a final separator.
    virtual std::wstring LocalAppDataFolder() const = 0;
    // The error code of the calling thread's last failing system call.
    virtual uint32_t LastError() const = 0;
};

IProcessContext& SystemProcessContext();

// Where the debugger output of the process goes (OutputDebugStringW on Windows).
class IDebuggerOutput {
public:
    virtual ~IDebuggerOutput() = default;
    virtual void Write(const std::wstring& text) = 0;
};

IDebuggerOutput& SystemDebuggerOutput();

}  // namespace ZelCommon::Platform
