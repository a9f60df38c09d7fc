#pragma once

#include "common_src/win32/LateBoundCall_win.h"
#include "plugin/host/HostCallError.h"

namespace Orva::Plugin {

// Runs a late-bound call on a host object; its COM failure becomes the host's failure, as the
// controller's parts know it.
template <class Call>
auto HostCall(Call call) {
    try {
        return call();
    } catch (const ZelCommon::Win32::ComCallError& error) {
        throw HostCallError(error.what());
    }
}

}  // namespace Orva::Plugin
