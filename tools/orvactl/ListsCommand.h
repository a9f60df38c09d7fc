#pragma once

#include <span>
#include <string>

#include "TextSink.h"

namespace Orva::Orvactl {

// "orvactl lists ...": `args` starts with the sub-command (show, add, remove, validate, export,
// import). The list kind follows the file name: WhiteList.dat approved, BlackList.dat blocked.
// A command that fails writes nothing.
int RunListsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err);

// The sub-commands' lines for "orvactl --help".
std::wstring ListsHelpText();

}  // namespace Orva::Orvactl
