#include "common_src/platform/ShellOpen.h"

namespace ZelCommon::Platform {
namespace {

// Natively there is no shell to hand an address to.
class NativeShellOpen final : public IShellOpen {
public:
    bool OpenAddress(const std::wstring&) override { return false; }
};

}  // namespace

IShellOpen& SystemShellOpen() {
    static NativeShellOpen shell;
    return shell;
}

}  // namespace ZelCommon::Platform
