#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

// "orvactl settings --install-dir DIR --user-dir DIR": applies the installation presets to the
// per-user file in the user folder, as the add-in does at each start, then prints every
// per-user setting with its effective value and its source. `args` follows "settings".
int RunSettingsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                       ZelCommon::Storage::IProfileApi& api);

}  // namespace Orva::Orvactl
