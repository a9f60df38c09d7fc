#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelCommon::Fakes::FakeWindowProcedureHook;

constexpr uint32_t kHook = 1058;
constexpr uint32_t kUnhook = 1059;
constexpr uintptr_t kMain = 0x7700;
constexpr uintptr_t kOriginal = 0x1234;
const std::wstring kIn = LogEntry(L"@@@ OnHookOE IN");
const std::wstring kOut = LogEntry(L"@@@ OnHookOE OUT");

TEST(ControllerHook, FirstHook_SavesTheProcedureAndInstallsTheHook) {
    ControllerRig rig;
    rig.hook.SetProcedure(kMain, kOriginal);
    EXPECT_EQ(rig.Dispatch(kHook, kMain), 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"hook read 0x7700", L"hook install 0x7700", kOut));
    EXPECT_EQ(rig.hook.ProcedureOf(kMain), FakeWindowProcedureHook::kHookProcedure);
    EXPECT_EQ(rig.Controller().SavedProcedure(), kOriginal);
    EXPECT_EQ(rig.Controller().HookedWindow(), kMain);
}

TEST(ControllerHook, SecondHook_ReturnsOneAndChangesNothing) {
    ControllerRig rig;
    rig.hook.SetProcedure(kMain, kOriginal);
    rig.hook.SetProcedure(0x8800, 0x5555);
    rig.Dispatch(kHook, kMain);
    rig.journal.Clear();
    EXPECT_EQ(rig.Dispatch(kHook, 0x8800), 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, kOut));
    EXPECT_EQ(rig.Controller().SavedProcedure(), kOriginal);
    EXPECT_EQ(rig.Controller().HookedWindow(), kMain);
    EXPECT_EQ(rig.hook.ProcedureOf(0x8800), 0x5555u);
}

TEST(ControllerHook, NullWindow_ReturnsOneWithoutHooking) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(kHook, 0), 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, kOut));
}

TEST(ControllerHook, ProcedureUnreadable_ReturnsZero) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(kHook, kMain), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"hook read 0x7700"));
    EXPECT_EQ(rig.Controller().HookedWindow(), 0u);
}

TEST(ControllerHook, HookRefused_ReturnsZeroAndKeepsTheSavedProcedure) {
    ControllerRig rig;
    rig.hook.SetProcedure(kMain, kOriginal);
    rig.hook.FailInstalls(true);
    EXPECT_EQ(rig.Dispatch(kHook, kMain), 0);
    EXPECT_EQ(rig.Controller().HookedWindow(), 0u);
    EXPECT_EQ(rig.Controller().SavedProcedure(), kOriginal);
    // A procedure is saved: the next request changes nothing.
    rig.hook.FailInstalls(false);
    EXPECT_EQ(rig.Dispatch(kHook, kMain), 1);
    EXPECT_EQ(rig.hook.ProcedureOf(kMain), kOriginal);
}

TEST(ControllerUnhook, Windows6_PutsTheProcedureBack) {
    ControllerRig rig;
    rig.hook.SetProcedure(kMain, kOriginal);
    rig.Dispatch(kHook, kMain);
    rig.journal.Clear();
    EXPECT_EQ(rig.Dispatch(kUnhook), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"hook restore 0x7700 0x1234"));
    EXPECT_EQ(rig.hook.ProcedureOf(kMain), kOriginal);
    EXPECT_EQ(rig.Controller().SavedProcedure(), 0u);
    EXPECT_EQ(rig.Controller().HookedWindow(), 0u);
}

TEST(ControllerUnhook, OtherWindowsVersions_KeepTheHook) {
    for (const uint32_t major : {5u, 10u}) {
        ControllerRig rig;
        rig.os.majorVersion = major;
        rig.hook.SetProcedure(kMain, kOriginal);
        rig.Dispatch(kHook, kMain);
        rig.journal.Clear();
        EXPECT_EQ(rig.Dispatch(kUnhook), 0);
        EXPECT_THAT(rig.Journal(), IsEmpty()) << major;
        EXPECT_EQ(rig.Controller().SavedProcedure(), kOriginal);
    }
}

TEST(ControllerUnhook, NothingHooked_DoesNothing) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(kUnhook), 0);
    EXPECT_THAT(rig.Journal(), IsEmpty());
}

}  // namespace
