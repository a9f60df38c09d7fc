#pragma once

#include <cstdint>
#include <string>

namespace ZelCommon::Platform {

// The system's locale services the string tables are chosen by.
class ILocale {
public:
    virtual ~ILocale() = default;
    // The system default locale id (GetSystemDefaultLCID).
    virtual uint32_t SystemDefaultLcid() const = 0;
    // The locale name of an id ("en-US" for 0x0409); empty when the id is unknown or the
    // system cannot convert.
    virtual std::wstring LcidToLocaleName(uint32_t lcid) const = 0;
};

ILocale& SystemLocale();

// The locale id's language id, then its primary language (PRIMARYLANGID(LANGIDFROMLCID(id))).
constexpr uint16_t PrimaryLanguageOf(uint32_t lcid) {
    return static_cast<uint16_t>(lcid & 0x3FFu);
}

// The locale id of a primary language with its default sublanguage and the default sort order
// (MAKELCID(MAKELANGID(primary, SUBLANG_DEFAULT), SORT_DEFAULT)).
constexpr uint32_t DefaultLcidOfPrimaryLanguage(uint16_t primaryLanguage) {
    return (1u << 10) | (primaryLanguage & 0x3FFu);
}

inline constexpr uint32_t kLcidEnglishUnitedStates = 0x0409;

}  // namespace ZelCommon::Platform
