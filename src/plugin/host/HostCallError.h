#pragma once

#include <stdexcept>

namespace Orva::Plugin {

// A COM failure reported by the plug-in host's objects (comet::com_error on Windows); what()
// is its narrow description.
class HostCallError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Orva::Plugin
