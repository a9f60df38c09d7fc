#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;

constexpr uintptr_t kMain = 0x7700;
const std::wstring kClosing = LogEntry(L"@@@ WLM will close and notice WLMA to quit at once");
const std::wstring kTearDown = L"send {113194CA-A0F5-4510-9814-D82C70CF9C6C} 1056 0 0";

struct HookedRig : ControllerRig {
    HookedRig() {
        hook.SetProcedure(kMain, 0x1234);
        Dispatch(1058, kMain);
        journal.Clear();
        hook.answer = 77;
    }
};

TEST(ControllerHookProcedure, Close_TearsDownRestoresAndPassesOn) {
    HookedRig rig;
    EXPECT_EQ(rig.Controller().HookProcedure(kMain, 16, 0, 0), 77);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kClosing, kTearDown, L"hook restore 0x7700 0x1234",
                            LogEntry(L"@@@ WndProc Set back OK"), L"call 0x1234 16"));
    EXPECT_EQ(rig.Controller().SavedProcedure(), 0u);
    EXPECT_EQ(rig.hook.ProcedureOf(kMain), 0x1234u);
}

TEST(ControllerHookProcedure, CloseWithoutController_LogsAndStillRestores) {
    HookedRig rig;
    rig.messaging.RemoveWindow(rig.controllerWindow);
    rig.Controller().HookProcedure(kMain, 16, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kClosing, LogEntry(L"@@@ Error : find oea failed when close oe"),
                            L"hook restore 0x7700 0x1234", LogEntry(L"@@@ WndProc Set back OK"),
                            L"call 0x1234 16"));
}

TEST(ControllerHookProcedure, CloseRestoreRefused_LogsAndPassesToTheSavedProcedure) {
    HookedRig rig;
    rig.hook.FailRestores(true);
    rig.Controller().HookProcedure(kMain, 16, 0, 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(kClosing, kTearDown, L"hook restore 0x7700 0x1234",
                                           LogEntry(L"@@@ Error : set the old oe winproc failed"),
                                           L"call 0x1234 16"));
    EXPECT_EQ(rig.Controller().SavedProcedure(), 0x1234u);
}

TEST(ControllerHookProcedure, CloseWithNothingSaved_DefaultProcessing) {
    ControllerRig rig;
    rig.Controller().HookProcedure(kMain, 16, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kClosing, kTearDown, LogEntry(L"@@@ Proc is NULL"), L"default 16"));
}

TEST(ControllerHookProcedure, NcDestroy_LoggedAndPassedOn) {
    HookedRig rig;
    rig.Controller().HookProcedure(kMain, 130, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ OE WM_NCDESTROY come in"), L"call 0x1234 130"));
}

TEST(ControllerHookProcedure, OtherMessages_GoToTheSavedProcedure) {
    HookedRig rig;
    EXPECT_EQ(rig.Controller().HookProcedure(kMain, 0x0F, 1, 2), 77);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"call 0x1234 15"));
}

}  // namespace
