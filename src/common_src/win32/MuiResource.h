#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "common_src/platform/ProcessContext.h"
#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

inline constexpr std::wstring_view kMuiFileName = L"ORVA_WLMA.dll.mui";

// The start-up step that loads the language resource module from the locale's resource folder
// (`resourceFolder` answers it, empty when there is none). Failures go to the debugger output
// only, and start-up goes on: the holder comes back even when nothing could be loaded, null
// only when it could not be created at all.
std::unique_ptr<ResourceHandle> LoadMuiResource(
    const std::function<std::wstring()>& resourceFolder,
    Platform::IDebuggerOutput& debugger = Platform::SystemDebuggerOutput());

}  // namespace ZelCommon::Win32
