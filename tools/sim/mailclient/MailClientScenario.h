#pragma once

#include <string>
#include <vector>

#include "SimulatedAccounts.h"

namespace Orva::Sim {

// One numbered step of the scenario and what happened during it, as journal entries.
struct ScenarioStep {
    int number = 0;
    std::wstring title;
    std::vector<std::wstring> entries;
};

// The add-in's life in a mail client of the given major version whose user's default account is
// of the given kind: loaded, ready, used (a folder, a report, a clean-up asked by the agent, the
// suite taking over, the switch turned off) and shut down; then started again on the same mail
// store.
std::vector<ScenarioStep> RunMailClientScenario(int mailClientVersion,
                                                AccountKind defaultAccount = AccountKind::Pop);

}  // namespace Orva::Sim
