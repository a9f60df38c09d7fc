#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common_src/ZelCommon/ProfileApi.h"

class ZelResourceStringLoader;

namespace Orva::Settings {

inline constexpr std::wstring_view kProductNamePlaceholder = L"<$PRODUCT NAME>";
inline constexpr std::wstring_view kCorpNamePlaceholder = L"<$CORP_NAME>";
inline constexpr std::wstring_view kSpamNamePlaceholder = L"<$SPAM_NAME>";
// What "<$SPAM_NAME>" becomes when neither the installation file nor the table names it.
inline constexpr std::wstring_view kSpamNameFallback = L"Anti-Spam";

std::span<const std::wstring_view> KnownPlaceholders();

// Replaces every occurrence of `placeholder` in `text` by `value`.
std::wstring ReplaceAll(std::wstring_view text, std::wstring_view placeholder,
                        std::wstring_view value);

// The one expansion every dialog and message uses. Each placeholder present in `text` becomes
// the installation file's branding when it is set there (AboutProductName, CorpName and
// Anti-Spam in [General]), else the localised IDS_PRODUCT_NAME, IDS_CORP_NAME or IDS_SPAM_NAME.
// Without either, the spam name is "Anti-Spam" and the product and company names are left out,
// so that no placeholder ever reaches the user.
std::wstring ExpandPlaceholders(std::wstring_view text, const std::wstring& installFile,
                                ZelCommon::Storage::IProfileApi& api,
                                ZelResourceStringLoader& strings);

}  // namespace Orva::Settings
