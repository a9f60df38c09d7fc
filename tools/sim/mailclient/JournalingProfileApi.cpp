#include "JournalingProfileApi.h"

#include <string>

#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"

namespace Orva::Sim {

using ZelCommon::Text::Format;

bool JournalingProfileApi::WriteString(const wchar_t* section, const wchar_t* key,
                                       const wchar_t* value, const wchar_t* file) {
    const bool written = m_inner.WriteString(section, key, value, file);
    // A flush (all null) changes nothing worth showing.
    if (m_journal == nullptr || section == nullptr) {
        return written;
    }
    const std::wstring name(ZelCommon::Path::FileNameOf(file != nullptr ? file : L""));
    if (key == nullptr) {
        m_journal->Add(Format(L"ini %s [%s] deleted", name, section));
    } else if (value == nullptr) {
        m_journal->Add(Format(L"ini %s [%s] %s deleted", name, section, key));
    } else {
        m_journal->Add(Format(L"ini %s [%s] %s = \"%s\"", name, section, key, value));
    }
    if (!written) {
        m_journal->Add(L"ini write failed");
    }
    return written;
}

}  // namespace Orva::Sim
