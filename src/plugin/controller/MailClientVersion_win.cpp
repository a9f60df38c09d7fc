#include "plugin/controller/MailClientVersion.h"
#include "settings/probes/FileVersionReader.h"

namespace Orva::Plugin {

std::optional<int> CMailClientVersion::MajorVersion() {
    const Orva::Settings::FileVersionReader reader(m_process.ExecutableFilePath());
    const std::optional<std::wstring> text = reader.Query(L"FileVersion");
    return text ? MajorVersionOf(*text) : std::nullopt;
}

}  // namespace Orva::Plugin
