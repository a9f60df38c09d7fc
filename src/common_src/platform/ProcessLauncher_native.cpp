#include "common_src/platform/ProcessLauncher.h"

namespace ZelCommon::Platform {
namespace {

// The agent is a Windows program: natively there is nothing to start.
class NativeProcessLauncher final : public IProcessLauncher {
public:
    bool Launch(const std::wstring&, const std::wstring&) override { return false; }
};

}  // namespace

IProcessLauncher& SystemProcessLauncher() {
    static NativeProcessLauncher launcher;
    return launcher;
}

}  // namespace ZelCommon::Platform
