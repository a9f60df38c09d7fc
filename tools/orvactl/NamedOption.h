#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "TextSink.h"

namespace Orva::Orvactl {

// One "--name VALUE" or "--name=VALUE" option of a command line.
struct NamedOption {
    std::wstring name;
    std::optional<std::wstring> value;  // none when the line ends after the name
};

// Takes the option at args[at]; when its value is the next argument, `at` moves onto it.
NamedOption TakeNamedOption(std::span<const std::wstring> args, size_t& at);

// One option of a command and where its value goes; all are required unless marked optional.
struct RequiredOption {
    std::wstring_view name;
    std::wstring* value;
    bool optional = false;
};

// Fills every option of `options` from the command's arguments. An unknown option, one without
// a value (`valueNoun` says what it needs) or one missing (`missing` says what the command needs)
// is reported as a usage error; the answer is then the exit code to hand back.
std::optional<int> TakeRequiredOptions(std::span<const std::wstring> args,
                                       std::span<const RequiredOption> options,
                                       std::wstring_view command, std::wstring_view valueNoun,
                                       std::wstring_view missing, ITextSink& err);

}  // namespace Orva::Orvactl
