#pragma once

#include <span>
#include <string>

#include "SimulatedAccounts.h"

namespace Orva::Sim {

struct SimulatorOptions {
    int mailClientVersion = 16;
    AccountKind defaultAccount = AccountKind::Pop;
    bool help = false;
    // Empty unless the arguments were wrong.
    std::wstring error;
};

// The program's arguments, without its own name: "--client-version N",
// "--default-account pop|imap|web" and "--help".
SimulatorOptions ParseSimulatorOptions(std::span<const std::string> arguments);
std::wstring SimulatorUsage();

}  // namespace Orva::Sim
