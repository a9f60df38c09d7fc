#include "plugin/controller/LoaderStrings.h"

#pragma push_macro("LoadString")
#undef LoadString

namespace Orva::Plugin {

std::wstring CLoaderStrings::Load(const std::wstring& id) {
    if (m_state == TableState::NotTried) {
        m_state = m_loader.Initialize(kSection) ? TableState::Open : TableState::Failed;
    }
    return m_state == TableState::Open ? m_loader.LoadString(id) : std::wstring();
}

void CLoaderStrings::Release() {
    m_loader.UnInitialize();
    m_state = TableState::NotTried;
}

}  // namespace Orva::Plugin

#pragma pop_macro("LoadString")
