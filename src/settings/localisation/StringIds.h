#pragma once

#include <span>
#include <string_view>

namespace Orva::Settings {

// The string table section the add-in's own texts live in.
inline constexpr std::wstring_view kAddinStringSection = L"ORVA_WLM";

// Every id the add-in loads from that section by name; a shipped table must hold them all.
std::span<const std::wstring_view> AddinStringIds();

}  // namespace Orva::Settings
