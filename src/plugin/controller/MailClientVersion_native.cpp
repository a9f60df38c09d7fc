#include <cstdlib>

#include "common_src/platform/TextCodec.h"
#include "plugin/controller/MailClientVersion.h"

namespace Orva::Plugin {

std::optional<int> CMailClientVersion::MajorVersion() {
    // No mail client runs natively; the simulated one names the version it plays.
    const char* version = std::getenv("ORVA_MAIL_CLIENT_VERSION");
    if (version == nullptr) {
        return std::nullopt;
    }
    return MajorVersionOf(ZelCommon::Text::Utf8ToWide(version));
}

}  // namespace Orva::Plugin
