#pragma once

#include <optional>

namespace Orva::Plugin {

// The major file version of the mail client's executable (14, 15, 16 ...); none when it cannot
// be read.
class IMailClientVersion {
public:
    virtual ~IMailClientVersion() = default;
    virtual std::optional<int> MajorVersion() = 0;
};

}  // namespace Orva::Plugin
