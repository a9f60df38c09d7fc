#include "common_src/ZelCommon/ProfileApi.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ZelCommon::Storage {

std::wstring ReadProfileString(IProfileApi& api, const std::wstring& file,
                               const std::wstring& section, const std::wstring& key,
                               const std::wstring& defaultValue) {
    std::vector<wchar_t> buffer(kSettingsBufferChars, L'\0');
    const uint32_t length = api.GetString(section.c_str(), key.c_str(), defaultValue.c_str(),
                                          buffer.data(), kSettingsBufferChars, file.c_str());
    const std::wstring_view text(buffer.data(), std::min(length, kSettingsBufferChars - 1));
    return std::wstring(text.substr(0, text.find(L'\0')));
}

}  // namespace ZelCommon::Storage
