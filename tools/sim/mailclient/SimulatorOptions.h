#pragma once

#include <span>
#include <string>

namespace Orva::Sim {

struct SimulatorOptions {
    int mailClientVersion = 16;
    bool help = false;
    // Empty unless the arguments were wrong.
    std::wstring error;
};

// The program's arguments, without its own name: "--client-version N" and "--help".
SimulatorOptions ParseSimulatorOptions(std::span<const std::string> arguments);
std::wstring SimulatorUsage();

}  // namespace Orva::Sim
