#pragma once

#include <string>
#include <vector>

namespace Orva::Orvactl {

// The program's arguments without the program name, as wide text: natively decoded from UTF-8,
// on Windows taken from the wide command line so that no character is lost to the code page.
std::vector<std::wstring> CommandLineArguments(int argc, char** argv);

}  // namespace Orva::Orvactl
