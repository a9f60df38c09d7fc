#pragma once

#include <span>
#include <string>

#include "TextSink.h"

namespace Orva::Orvactl {

// "orvactl account --data-folder DIR --account NAME": checks the account's settings file in the
// mail client's data folder as the add-in checks the default account, printing the add-in's log
// lines of the check and then its answer, 1 (the add-in switches itself off) or 0, alone on the
// last line. `args` follows "account".
int RunAccountCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err);

// The command's part of "orvactl --help".
std::wstring AccountHelpText();

}  // namespace Orva::Orvactl
