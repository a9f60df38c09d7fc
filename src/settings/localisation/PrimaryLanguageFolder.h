#pragma once

#include <cstdint>
#include <string_view>

namespace Orva::Settings {

// The locale folder that serves every locale of the language of `lcid`: the language's main
// locale, in the script the locale is written in. Empty for an id of no known language.
std::wstring_view PrimaryLanguageFolder(uint32_t lcid);

}  // namespace Orva::Settings
