#pragma once

#include <string>

namespace Orva::Lists {

// One sender of a list: the display name (may be empty) and the address or "*" pattern.
struct SenderEntry {
    std::wstring name;
    std::wstring address;

    friend bool operator==(const SenderEntry&, const SenderEntry&) = default;
};

}  // namespace Orva::Lists
