#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

constexpr uintptr_t kMain = 0x7700;
constexpr uintptr_t kOriginal = 0x1234;
const Sent kHook{1058, kMain};
const Sent kUnhook{1059};
const std::wstring kIn = LogEntry(L"@@@ OnHookOE IN");
const std::wstring kOut = LogEntry(L"@@@ OnHookOE OUT");
const std::wstring kClosing = LogEntry(L"@@@ WLM will close and notice WLMA to quit at once");
const std::wstring kTearDown = L"send {113194CA-A0F5-4510-9814-D82C70CF9C6C} 1056 0 0";
const std::wstring kRestore = L"hook restore 0x7700 0x1234";
const std::wstring kSetBack = LogEntry(L"@@@ WndProc Set back OK");

// A message to the mail client's main window, through the add-in's procedure.
Sent ToMain(uint32_t message) {
    return Sent{message, 0, 0, kMain};
}

void MainWindow(ControllerRig& rig) {
    rig.hook.SetProcedure(kMain, kOriginal);
    rig.hook.answer = 77;
}
void Hooked(ControllerRig& rig) {
    MainWindow(rig);
    rig.Dispatch(kHook.message, kHook.wParam);
}

// 1058 saves the main window's procedure once and puts the add-in's in its place; 1059 gives
// it back on Windows 6 only. The add-in's procedure passes everything on, and on WM_CLOSE tears
// the classic band down and gives the window its own procedure back first.
TEST(ControllerHook, HookUnhookAndTheMainWindowsMessages) {
    RunControllerCases({
        {"first hook",
         MainWindow,
         {kHook, ToMain(0x0F)},
         {kIn, L"hook read 0x7700", L"hook install 0x7700", kOut, Answer(1), L"call 0x1234 15",
          Answer(77)}},
        {"second hook changes nothing",
         [](ControllerRig& rig) {
             Hooked(rig);
             rig.hook.SetProcedure(0x8800, 0x5555);
         },
         {{1058, 0x8800}, kUnhook},
         {kIn, kOut, Answer(1), kRestore, Answer(0)}},
        {"null window", nullptr, {{1058, 0}}, {kIn, kOut, Answer(1)}},
        {"procedure unreadable",
         nullptr,
         {kHook, kUnhook},
         {kIn, L"hook read 0x7700", Answer(0), Answer(0)}},
        {"hook refused: the saved procedure stays",
         [](ControllerRig& rig) {
             MainWindow(rig);
             rig.hook.FailInstalls(true);
         },
         {kHook, kHook},
         {kIn, L"hook read 0x7700", L"hook install 0x7700", Answer(0), kIn, kOut, Answer(1)},
         [](ControllerRig& rig) {
             EXPECT_EQ(rig.Controller().HookedWindow(), 0u);
             EXPECT_EQ(rig.Controller().SavedProcedure(), kOriginal);
         }},
        {"unhook on Windows 6", Hooked, {kUnhook, kUnhook}, {kRestore, Answer(0), Answer(0)}},
        {"unhook on Windows 5 keeps the hook",
         [](ControllerRig& rig) {
             rig.os.majorVersion = 5;
             Hooked(rig);
         },
         {kUnhook, ToMain(0x0F)},
         {Answer(0), L"call 0x1234 15", Answer(77)}},
        {"unhook on Windows 10 keeps the hook",
         [](ControllerRig& rig) {
             rig.os.majorVersion = 10;
             Hooked(rig);
         },
         {kUnhook, ToMain(0x0F)},
         {Answer(0), L"call 0x1234 15", Answer(77)}},
        {"unhook with nothing hooked", nullptr, {kUnhook}, {Answer(0)}},
        {"close",
         Hooked,
         {ToMain(16), ToMain(0x0F)},
         {kClosing, kTearDown, kRestore, kSetBack, L"call 0x1234 16", Answer(77), L"default 15",
          Answer(77)}},
        {"close without the controller",
         [](ControllerRig& rig) {
             Hooked(rig);
             rig.messaging.RemoveWindow(rig.controllerWindow);
         },
         {ToMain(16)},
         {kClosing, LogEntry(L"@@@ Error : find oea failed when close oe"), kRestore, kSetBack,
          L"call 0x1234 16", Answer(77)}},
        {"close with the restore refused",
         [](ControllerRig& rig) {
             Hooked(rig);
             rig.hook.FailRestores(true);
         },
         {ToMain(16), ToMain(0x0F)},
         {kClosing, kTearDown, kRestore, LogEntry(L"@@@ Error : set the old oe winproc failed"),
          L"call 0x1234 16", Answer(77), L"call 0x1234 15", Answer(77)}},
        {"close with nothing saved",
         nullptr,
         {ToMain(16)},
         {kClosing, kTearDown, LogEntry(L"@@@ Proc is NULL"), L"default 16", Answer(0)}},
        {"WM_NCDESTROY",
         Hooked,
         {ToMain(130)},
         {LogEntry(L"@@@ OE WM_NCDESTROY come in"), L"call 0x1234 130", Answer(77)}},
    });
}

}  // namespace
}  // namespace Orva::Testing
