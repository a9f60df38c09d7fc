#include "plugin/controller/AbsentClassicBand.h"

namespace Orva::Plugin {

void CAbsentClassicBand::Requested() {
    if (!m_reported) {
        m_reported = true;
        m_log.LogText(L"### The classic toolbar band is not part of this build");
    }
}

}  // namespace Orva::Plugin
