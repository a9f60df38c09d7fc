#include "plugin/controller/LoaderStrings.h"

#pragma push_macro("LoadString")
#undef LoadString

namespace Orva::Plugin {

std::wstring CLoaderStrings::Load(const std::wstring& id) {
    if (!m_open) {
        m_open = m_loader.Initialize(kSection);
    }
    return m_open ? m_loader.LoadString(id) : std::wstring();
}

void CLoaderStrings::Release() {
    m_loader.UnInitialize();
    m_open = false;
}

}  // namespace Orva::Plugin

#pragma pop_macro("LoadString")
