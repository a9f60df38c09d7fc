#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/platform/WindowMessaging.h"

namespace Orva::Orvactl {

// "orvactl lists ...": `args` starts with the sub-command (show, add, remove, validate, export,
// import). The list kind follows the file name: WhiteList.dat approved, BlackList.dat blocked.
// A command that fails writes nothing; one that writes a list then tells the agent through
// `messaging`, so that a running agent rereads the lists at once.
int RunListsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                    ZelCommon::Platform::IWindowMessaging& messaging =
                        ZelCommon::Platform::SystemWindowMessaging());

// The sub-commands' lines for "orvactl --help".
std::wstring ListsHelpText();

}  // namespace Orva::Orvactl
