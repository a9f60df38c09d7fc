#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

// "orvactl ini ...": `args` starts with the sub-command (get, getint, set, delete, sections,
// keys). Results go to `out`, one value or one name a line.
int RunIniCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                  ZelCommon::Storage::IProfileApi& api);

}  // namespace Orva::Orvactl
