#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "common_src/platform/ProcessContext.h"

namespace ZelCommon::Fakes {

// Process facts a test chooses. Plain settable values; read them from any thread.
class FakeProcessContext final : public Platform::IProcessContext {
public:
    uint32_t ProcessId() const override { return m_processId; }
    uint32_t ThreadId() const override { return m_threadId; }
    std::wstring ModuleFilePath() const override { return m_moduleFilePath; }
    std::wstring ExecutableFilePath() const override { return m_executableFilePath; }
    std::wstring CommonAppDataFolder() const override { return m_commonAppData; }
    std::wstring LocalAppDataFolder() const override { return m_localAppData; }
    uint32_t LastError() const override { return m_lastError; }

    void SetProcessId(uint32_t id) { m_processId = id; }
    void SetThreadId(uint32_t id) { m_threadId = id; }
    void SetModuleFilePath(std::wstring path) { m_moduleFilePath = std::move(path); }
    void SetExecutableFilePath(std::wstring path) { m_executableFilePath = std::move(path); }
    void SetCommonAppDataFolder(std::wstring folder) { m_commonAppData = std::move(folder); }
    void SetLocalAppDataFolder(std::wstring folder) { m_localAppData = std::move(folder); }
    void SetLastError(uint32_t error) { m_lastError = error; }

private:
    uint32_t m_processId = 0x1234;
    uint32_t m_threadId = 0x5678;
    std::wstring m_moduleFilePath = L"C:\\Program Files\\Halvion\\WLM\\ORVA_WLMA.dll";
    std::wstring m_executableFilePath = L"C:\\Program Files\\Windows Live\\Mail\\wlmail.exe";
    std::wstring m_commonAppData = L"C:\\ProgramData";
    std::wstring m_localAppData = L"C:\\Users\\User\\AppData\\Local";
    uint32_t m_lastError = 0;
};

// Keeps every text written to the debugger, in order.
class FakeDebuggerOutput final : public Platform::IDebuggerOutput {
public:
    void Write(const std::wstring& text) override {
        std::lock_guard lock(m_mutex);
        m_texts.push_back(text);
    }
    std::vector<std::wstring> Texts() const {
        std::lock_guard lock(m_mutex);
        return m_texts;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::wstring> m_texts;
};

}  // namespace ZelCommon::Fakes
