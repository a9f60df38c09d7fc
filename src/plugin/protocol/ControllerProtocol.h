#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Orva::Plugin {

// The controller window: everyone finds it by its class, with no title.
inline constexpr std::wstring_view kControllerClassName = L"{459F0EC1-7A80-47c5-A264-B8285F4041DD}";
inline constexpr std::wstring_view kControllerWindowTitle =
    L"{113194CA-A0F5-4510-9814-D82C70CF9C6C}";
inline constexpr uint32_t kControllerWindowStyle = 0x80080000;  // WS_POPUP | WS_SYSMENU
// The mail client's main window, looked for by class with no title.
inline constexpr std::wstring_view kMailClientMainClass = L"Outlook Express Browser Class";

// Messages the controller window handles.
namespace ControllerMessage {
inline constexpr uint32_t Create = 1;       // WM_CREATE
inline constexpr uint32_t Close = 16;       // WM_CLOSE
inline constexpr uint32_t CopyData = 74;    // WM_COPYDATA
inline constexpr uint32_t Timer = 275;      // WM_TIMER
inline constexpr uint32_t NcDestroy = 130;  // WM_NCDESTROY, seen by the main-window hook
inline constexpr uint32_t BuildClassicUi = 1055;
inline constexpr uint32_t TearDownClassicUi = 1056;
inline constexpr uint32_t HookMainWindow = 1058;
inline constexpr uint32_t UnhookMainWindow = 1059;
inline constexpr uint32_t Tick = 1070;
inline constexpr uint32_t AgentReady = 1075;
inline constexpr uint32_t FolderSelected = 1076;
inline constexpr uint32_t ReQueryDefaultAccount = 4028;
inline constexpr uint32_t BuildUi = 4029;
inline constexpr uint32_t MailClientShutdown = 4030;
inline constexpr uint32_t ButtonClicked = 4031;
inline constexpr uint32_t ImportContacts = 4032;
}  // namespace ControllerMessage

inline constexpr uintptr_t kMainWindowTimerId = 1;
inline constexpr uint32_t kMainWindowTimerPeriod = 1000;
// The parameters that mark a classic-toolbar build started by the timer rather than by the
// build of the user interface (0, 0).
inline constexpr uintptr_t kTimerBuildWParam = 11111;
inline constexpr intptr_t kTimerBuildLParam = 22222;
// From this arrival of the agent's tick on, the deferred band object is made.
inline constexpr uint32_t kTicksBeforeDeferredBand = 24;
inline constexpr uint32_t kShutdownWaitMilliseconds = 10000;

// The agent's delete-all-spam request, in a WM_COPYDATA record: the folder id and a message id
// as little-endian 64-bit values (two 32-bit halves each, lower half first), then a flag byte
// that asks for every marked message of the folder.
inline constexpr uintptr_t kDeleteAllSpamCopyDataId = 1078;
inline constexpr std::size_t kDeleteAllSpamPayloadSize = 17;

// wParam of ButtonClicked for the entries of the logo's drop-down, whose lParam is the entry.
inline constexpr int32_t kDropDownEntryGroup = -1;
namespace DropDownEntry {
inline constexpr int32_t Settings = 0;
inline constexpr int32_t Statistics = 1;
inline constexpr int32_t OnOff = 2;
inline constexpr int32_t Help = 3;
inline constexpr int32_t About = 4;
}  // namespace DropDownEntry

}  // namespace Orva::Plugin
