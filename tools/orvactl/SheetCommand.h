#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Orvactl {

// "orvactl sheet --settings FILE [--install FILE]": reads the filtering sheet's pages from a
// user's settings file (and the installation file behind it) as the add-in's pages read them,
// and prints what their OK would write, one "Key = value" a line. Writes nothing and tells no
// agent. `args` follows "sheet".
int RunSheetCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                    ZelCommon::Storage::IProfileApi& api);

// The command's part of "orvactl --help".
std::wstring SheetHelpText();

}  // namespace Orva::Orvactl
