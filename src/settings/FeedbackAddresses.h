#pragma once

#include <string_view>

namespace Orva::Settings {

// The maker's addresses for the feedback programme, in one place: the service the agent sends
// the anonymous feedback to (a deployment overrides it with WTCWebServer), and the page that
// explains the programme (overridden with WTCLink).
inline constexpr std::wstring_view kFeedbackServer = L"http://wtc.halvion.com/";
inline constexpr std::wstring_view kFeedbackInformationPage = L"http://wtc.halvion.com/about/";

}  // namespace Orva::Settings
