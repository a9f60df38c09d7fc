#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

// "orvactl strings --locale NAME|--auto [--resource-folder DIR] [--section NAME] [ID]": prints
// the text of ID as the add-in shows it, or checks the locale's whole table against the ids the
// add-in loads and against the en-US table; --auto first chooses and reports the locale as the
// add-in does. `args` follows "strings".
int RunStringsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                      ZelCommon::Storage::IProfileApi& api);

// The command's part of "orvactl --help".
std::wstring StringsHelpText();

}  // namespace Orva::Orvactl
