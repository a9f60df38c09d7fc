#pragma once

#include <string_view>

#include "TextSink.h"

namespace Orva::Orvactl {

// "orvactl: <message>" and the usage hint; both return the exit code to hand back.
int ReportUsageError(ITextSink& err, std::wstring_view message);
int ReportFailure(ITextSink& err, std::wstring_view message);

}  // namespace Orva::Orvactl
