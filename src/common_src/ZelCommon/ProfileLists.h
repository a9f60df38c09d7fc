#pragma once

#include <string>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Storage {

// The section names of an ini file and the key names of one section, in file order, read with
// a buffer that grows until the whole list fits.
std::vector<std::wstring> ReadSectionNames(ZelCommon::Storage::IProfileApi& api,
                                           const std::wstring& file);
std::vector<std::wstring> ReadKeyNames(ZelCommon::Storage::IProfileApi& api,
                                       const std::wstring& file, const std::wstring& section);

}  // namespace ZelCommon::Storage
