#include "support/fakes/platform/FakeLocale.h"

#include <utility>

namespace ZelCommon::Fakes {

FakeLocale::FakeLocale()
    : m_names{{0x0409, L"en-US"}, {0x0809, L"en-GB"}, {0x0407, L"de-DE"}, {0x0807, L"de-CH"},
              {0x0C07, L"de-AT"}, {0x040C, L"fr-FR"}, {0x0411, L"ja-JP"}} {}

std::wstring FakeLocale::LcidToLocaleName(uint32_t lcid) const {
    const auto found = m_names.find(lcid);
    return found == m_names.end() ? std::wstring() : found->second;
}

void FakeLocale::SetName(uint32_t lcid, std::wstring name) {
    m_names[lcid] = std::move(name);
}

}  // namespace ZelCommon::Fakes
