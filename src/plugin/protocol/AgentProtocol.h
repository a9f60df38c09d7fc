#pragma once

#include <cstdint>
#include <string_view>

namespace Orva::Plugin {

// The agent process: its program, found in the add-in folder, and the title of its window,
// which is also its only command-line argument.
inline constexpr std::wstring_view kAgentProgramName = L"ORVA_WLM.exe";
inline constexpr std::wstring_view kAgentWindowTitle = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
// While a window with this title exists, the security suite's own agent is busy and the add-in
// leaves reporting and the on/off switch to it.
inline constexpr std::wstring_view kSuiteWindowTitle = L"{665DABCD-BE48-4086-8688-7BF074B6B8E4}";

// Messages to the agent window; none carries a payload.
namespace AgentMessage {
inline constexpr uint32_t Close = 16;  // WM_CLOSE, sent when the mail client shuts down
inline constexpr uint32_t UpdateSettingsApplied = 1030;
inline constexpr uint32_t AdvancedRequest = 1031;
inline constexpr uint32_t SenderListsChanged = 1033;
inline constexpr uint32_t EncodingsChanged = 1034;
inline constexpr uint32_t AdvancedChanged = 1035;
inline constexpr uint32_t DetectionChanged = 1036;
inline constexpr uint32_t LinkFilterChanged = 1037;
inline constexpr uint32_t ClassicCommand1038 = 1038;
inline constexpr uint32_t ClassicCommand1039 = 1039;
inline constexpr uint32_t ReportSpam = 1041;
inline constexpr uint32_t ReportNotSpam = 1042;
inline constexpr uint32_t ClassicCommand1043 = 1043;
inline constexpr uint32_t AdvancedApplied = 1044;
inline constexpr uint32_t RefreshStatistics = 1045;
inline constexpr uint32_t ResetStatistics = 1050;
inline constexpr uint32_t LogoWithShift = 1053;
inline constexpr uint32_t Stop = 1069;
inline constexpr uint32_t DefaultAccountChanged = 1077;
inline constexpr uint32_t DefaultAccountReady = 4027;
}  // namespace AgentMessage

// Whether a message to the agent is posted or sent (the sender then waits for the agent).
enum class AgentDelivery { Posted, Sent };

// How each message of AgentMessage is delivered; posted for any other id.
AgentDelivery DeliveryOf(uint32_t message);

// The toolbar commands that the suite's agent takes over while its window exists.
bool IsButtonCommand(uint32_t message);

}  // namespace Orva::Plugin
