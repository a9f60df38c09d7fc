#pragma once

#include "ui/PasswordProtector.h"

namespace Orva::Testing {

// Protects by flipping bits behind a marker byte; bytes without the marker, or a protector told
// to refuse, fail as the system's would.
class FakePasswordProtector final : public Ui::IPasswordProtector {
public:
    std::optional<Ui::ProtectedBytes> Protect(const Ui::ProtectedBytes& plain) override {
        if (refuses) {
            return std::nullopt;
        }
        Ui::ProtectedBytes sealed{kMarker};
        for (const uint8_t byte : plain) {
            sealed.push_back(static_cast<uint8_t>(byte ^ 0x5A));
        }
        return sealed;
    }
    std::optional<Ui::ProtectedBytes> Unprotect(const Ui::ProtectedBytes& sealed) override {
        if (refuses || sealed.empty() || sealed.front() != kMarker) {
            return std::nullopt;
        }
        Ui::ProtectedBytes plain;
        for (auto at = sealed.begin() + 1; at != sealed.end(); ++at) {
            plain.push_back(static_cast<uint8_t>(*at ^ 0x5A));
        }
        return plain;
    }

    bool refuses = false;

private:
    static constexpr uint8_t kMarker = 0xD1;
};

}  // namespace Orva::Testing
