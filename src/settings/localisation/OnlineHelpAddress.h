#pragma once

#include <string>
#include <string_view>

namespace Orva::Settings {

// The section of the installation settings file that tells where in the registry the on-line
// help's parts are kept, and its keys (a topic's key is the topic itself, "FunID_...").
inline constexpr std::wstring_view kOnlineHelpSection = L"OnlinHelp";
inline constexpr std::wstring_view kProductRootRegKey = L"ProductRootRegKey";
inline constexpr std::wstring_view kUrlKey = L"URLKey";
inline constexpr std::wstring_view kPidKey = L"PIDKey";

// Splits a registry location "Sub\Key\Value" into the key part ("Sub\Key", empty when there
// is no backslash) and the value name ("Value").
struct RegistryLocation {
    std::wstring subKey;
    std::wstring valueName;
};
RegistryLocation SplitRegistryLocation(std::wstring_view location);

// The help address: the site, then the locale name, the product id and the topic's page, each
// joined by exactly one "/" ("https://help.example/en-US/1700/filter.htm"). Slashes around the
// parts are dropped so that a site written with or without its final "/" gives the same address.
std::wstring JoinHelpAddress(std::wstring_view site, std::wstring_view localeName,
                             std::wstring_view productId, std::wstring_view topicPage);

}  // namespace Orva::Settings
