#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace Orva::Orvactl {

// One "--name VALUE" or "--name=VALUE" option of a command line.
struct NamedOption {
    std::wstring name;
    std::optional<std::wstring> value;  // none when the line ends after the name
};

// Takes the option at args[at]; when its value is the next argument, `at` moves onto it.
NamedOption TakeNamedOption(std::span<const std::wstring> args, size_t& at);

}  // namespace Orva::Orvactl
