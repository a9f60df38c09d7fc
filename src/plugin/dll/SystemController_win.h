#pragma once

#include <windows.h>

#include <memory>

#include "plugin/ORVA_WLMAApp.h"

namespace Orva::Plugin {

// The controller window of the add-in, on the system's ports and the add-in's parts; null when
// the window could not be created.
std::unique_ptr<IControllerHandle> CreateSystemController(HINSTANCE module,
                                                          const ApplicationContext& context);

}  // namespace Orva::Plugin
