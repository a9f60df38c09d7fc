#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "common_src/platform/Locale.h"

namespace ZelCommon::Fakes {

// A system locale a test chooses, with the id-to-name table it wants the system to know.
// Starts as English (United States) knowing a handful of locales.
class FakeLocale final : public Platform::ILocale {
public:
    FakeLocale();

    uint32_t SystemDefaultLcid() const override { return m_systemLcid; }
    std::wstring LcidToLocaleName(uint32_t lcid) const override;

    void SetSystemDefaultLcid(uint32_t lcid) { m_systemLcid = lcid; }
    void SetName(uint32_t lcid, std::wstring name);

private:
    uint32_t m_systemLcid = Platform::kLcidEnglishUnitedStates;
    std::map<uint32_t, std::wstring> m_names;
};

}  // namespace ZelCommon::Fakes
