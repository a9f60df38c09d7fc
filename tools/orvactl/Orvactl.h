#pragma once

#include <string>
#include <vector>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;  // a file could not be read or written
inline constexpr int kExitUsage = 2;    // bad arguments

// Runs one orvactl command; `args` excludes the program name.
int RunOrvactl(const std::vector<std::wstring>& args, ITextSink& out, ITextSink& err,
               ZelCommon::Storage::IProfileApi& api = ZelCommon::Storage::SystemProfileApi());

std::wstring HelpText();

}  // namespace Orva::Orvactl
