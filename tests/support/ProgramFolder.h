#pragma once

#include <string>

#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessContext.h"

namespace Orva::Testing {

// The test program's own folder, where the build puts the add-in and the agent beside it.
inline std::wstring ProgramFolder() {
    return ZelCommon::Path::FolderOf(
        ZelCommon::Platform::SystemProcessContext().ExecutableFilePath());
}

}  // namespace Orva::Testing
