#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

// "orvactl statistics FILE": what the statistics dialog computes from the counters of a user's
// settings file: the recomputation's log lines without their head, then "pie: N S R" (the
// shares of normal mail, detected and reported spam) or "pie: disabled". `args` follows
// "statistics".
int RunStatisticsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                         ZelCommon::Storage::IProfileApi& api);

// The command's part of "orvactl --help".
std::wstring StatisticsHelpText();

}  // namespace Orva::Orvactl
