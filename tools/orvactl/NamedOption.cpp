#include "NamedOption.h"

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

}  // namespace Orva::Orvactl
