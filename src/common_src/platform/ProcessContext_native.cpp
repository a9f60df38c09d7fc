#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Platform {
namespace {

// Natively the machine's folders are whatever the environment names, without a final separator.
std::wstring ConfiguredFolder(const char* variable, const char* fallback) {
    const char* configured = std::getenv(variable);
    std::wstring folder =
        Text::Utf8ToWide(configured != nullptr && *configured != '\0' ? configured : fallback);
    while (folder.size() > 1 && folder.back() == L'/') {
        folder.pop_back();
    }
    return folder;
}

class NativeProcessContext final : public IProcessContext {
public:
    uint32_t ProcessId() const override { return static_cast<uint32_t>(::getpid()); }
    uint32_t ThreadId() const override { return static_cast<uint32_t>(::gettid()); }

    // Natively the add-in's code is linked into the program itself.
    std::wstring ModuleFilePath() const override { return ExecutableFilePath(); }

    std::wstring ExecutableFilePath() const override {
        std::error_code error;
        const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", error);
        return error ? std::wstring() : Text::Utf8ToWide(exe.string());
    }

    std::wstring CommonAppDataFolder() const override {
        return ConfiguredFolder("ORVA_COMMON_APPDATA", "/var/tmp");
    }
    std::wstring LocalAppDataFolder() const override {
        return ConfiguredFolder("ORVA_LOCAL_APPDATA", "/var/tmp");
    }

    uint32_t LastError() const override { return static_cast<uint32_t>(errno); }
};

// Natively there is no debugger channel; ORVA_DEBUGGER_OUTPUT=1 sends the lines to stderr.
class NativeDebuggerOutput final : public IDebuggerOutput {
public:
    void Write(const std::wstring& text) override {
        const char* wanted = std::getenv("ORVA_DEBUGGER_OUTPUT");
        if (wanted == nullptr || std::strcmp(wanted, "1") != 0) {
            return;
        }
        const std::string bytes = Text::WideToUtf8(text);
        std::fwrite(bytes.data(), 1, bytes.size(), stderr);
        std::fflush(stderr);
    }
};

}  // namespace

IProcessContext& SystemProcessContext() {
    static NativeProcessContext context;
    return context;
}

IDebuggerOutput& SystemDebuggerOutput() {
    static NativeDebuggerOutput output;
    return output;
}

}  // namespace ZelCommon::Platform
