#pragma once

#include <cstddef>
#include <filesystem>
#include <system_error>

#include "support/ScratchFolder.h"

namespace Orva::Testing {

// A test's own scratch folder, removed at the end of the test.
class TempFolder : public ZelCommon::Fakes::ScratchFolder {
public:
    TempFolder() : ScratchFolder("orva-test") {}

    // How many files and folders it holds.
    size_t FileCount() const {
        size_t count = 0;
        std::error_code error;
        for (auto it = std::filesystem::directory_iterator(Root(), error);
             it != std::filesystem::directory_iterator(); ++it) {
            ++count;
        }
        return count;
    }
};

}  // namespace Orva::Testing
