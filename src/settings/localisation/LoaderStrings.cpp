#include "settings/localisation/LoaderStrings.h"

#include "settings/localisation/Placeholders.h"

#pragma push_macro("LoadString")
#undef LoadString

namespace Orva::Settings {

std::wstring CLoaderStrings::Load(const std::wstring& id) {
    if (m_state == TableState::NotTried) {
        m_state = m_loader.Initialize(kSection) ? TableState::Open : TableState::Failed;
    }
    return m_state == TableState::Open ? m_loader.LoadString(id) : std::wstring();
}

std::wstring CLoaderStrings::LoadShown(const std::wstring& id) {
    const std::wstring text = Load(id);
    if (m_state != TableState::Open) {
        return text;
    }
    return ExpandPlaceholders(text, m_installFile, m_profile, m_loader);
}

void CLoaderStrings::Release() {
    m_loader.UnInitialize();
    m_state = TableState::NotTried;
}

}  // namespace Orva::Settings

#pragma pop_macro("LoadString")
