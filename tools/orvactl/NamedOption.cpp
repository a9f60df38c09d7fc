#include "NamedOption.h"

#include "CommandErrors.h"

namespace Orva::Orvactl {

NamedOption TakeNamedOption(std::span<const std::wstring> args, size_t& at) {
    NamedOption option{args[at], std::nullopt};
    if (const size_t equals = option.name.find(L'='); equals != std::wstring::npos) {
        option.value = option.name.substr(equals + 1);
        option.name.resize(equals);
    } else if (at + 1 < args.size()) {
        option.value = args[++at];
    }
    return option;
}

std::optional<int> TakeRequiredOptions(std::span<const std::wstring> args,
                                       std::span<const RequiredOption> options,
                                       std::wstring_view command, std::wstring_view valueNoun,
                                       std::wstring_view missing, ITextSink& err) {
    for (size_t at = 0; at < args.size(); ++at) {
        const auto [name, value] = TakeNamedOption(args, at);
        std::wstring* target = nullptr;
        for (const RequiredOption& option : options) {
            if (option.name == name) {
                target = option.value;
            }
        }
        if (target == nullptr) {
            return ReportUsageError(
                err, L"unknown option for '" + std::wstring(command) + L"': " + name);
        }
        if (!value || value->empty()) {
            return ReportUsageError(err, name + L" needs " + std::wstring(valueNoun));
        }
        *target = *value;
    }
    for (const RequiredOption& option : options) {
        if (!option.optional && option.value->empty()) {
            return ReportUsageError(err, missing);
        }
    }
    return std::nullopt;
}

}  // namespace Orva::Orvactl
