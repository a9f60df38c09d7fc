#pragma once

#include "support/ScratchFolder.h"

namespace Orva::Testing {

// The name the tests know the scratch folder by.
using TempFolder = ZelCommon::Fakes::ScratchFolder;

}  // namespace Orva::Testing
