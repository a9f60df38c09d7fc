#pragma once

#include <string>
#include <vector>

#include "MailClientScenario.h"

namespace Orva::Sim {

// One journal entry as a reader wants it: a message's window by its role ("agent",
// "controller", "suite", "main window") instead of its title or class, followed by what the
// message means. Other entries are left as they are.
std::wstring DescribeEntry(const std::wstring& entry);

// The whole run as terminal text: a heading, the windows' roles, then each step with its
// entries indented below it.
std::wstring RenderScenario(int mailClientVersion, const std::vector<ScenarioStep>& steps);

}  // namespace Orva::Sim
