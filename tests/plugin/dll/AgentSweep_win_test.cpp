#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {
namespace {

// Under Wine every process started here shares this program's output: an agent left running by
// a failed test would keep the test runner waiting for the end of that output forever. So
// whatever agent is still there when the program ends is stopped.
class AgentSweep final : public testing::Environment {
public:
    void TearDown() override {
        const std::wstring title(kAgentWindowTitle);
        while (const HWND agent = ::FindWindowW(nullptr, title.c_str())) {
            DWORD processId = 0;
            ::GetWindowThreadProcessId(agent, &processId);
            const ZelCommon::Platform::unique_handle process(
                ::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processId));
            if (!process) {
                break;
            }
            ::TerminateProcess(process.get(), 1);
            ::WaitForSingleObject(process.get(), 5000);
        }
    }
};

// GoogleTest owns the environment it is given.
testing::Environment* const g_agentSweep = testing::AddGlobalTestEnvironment(new AgentSweep);

}  // namespace
}  // namespace Orva::Plugin
