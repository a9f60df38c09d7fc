#pragma once

#include <optional>
#include <string>

namespace Orva::Orvactl {

// Each returns why the path cannot serve, or nothing when it can.
std::optional<std::wstring> WhyNotReadableFile(const std::wstring& path);
// The file may be missing, but its folder must exist and the path must not be a folder.
std::optional<std::wstring> WhyNotWritableFile(const std::wstring& path);
std::optional<std::wstring> WhyNotFolder(const std::wstring& path);

}  // namespace Orva::Orvactl
