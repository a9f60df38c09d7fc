#include "mailstore/SpamFolderStrings.h"

#include "settings/localisation/Placeholders.h"

#pragma push_macro("LoadString")
#undef LoadString

namespace Orva::MailStore {

bool CLoaderSpamFolderStrings::Initialize(const std::wstring& section) {
    return m_loader.Initialize(section);
}

std::wstring CLoaderSpamFolderStrings::LoadExpanded(const std::wstring& id) {
    return Orva::Settings::ExpandPlaceholders(m_loader.LoadString(id), m_installFile, m_profile,
                                              m_loader);
}

void CLoaderSpamFolderStrings::UnInitialize() {
    m_loader.UnInitialize();
}

}  // namespace Orva::MailStore

#pragma pop_macro("LoadString")
