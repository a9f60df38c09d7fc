#pragma once

#include <span>
#include <string>

#include "TextSink.h"
#include "common_src/platform/WindowMessaging.h"

namespace Orva::Orvactl {

// "orvactl encodings show|block|unblock FILE [GROUP]": FILE is a BlockEncodings.dat. `show`
// prints the line-2 value, then each group as the file holds it (name, 0 or 1, the code pages,
// tab-separated). `block` and `unblock` change one existing group, write the file whole and
// then tell a running agent through `messaging`; an unknown group writes nothing.
int RunEncodingsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                        ZelCommon::Platform::IWindowMessaging& messaging =
                            ZelCommon::Platform::SystemWindowMessaging());

// The sub-commands' lines for "orvactl --help".
std::wstring EncodingsHelpText();

}  // namespace Orva::Orvactl
