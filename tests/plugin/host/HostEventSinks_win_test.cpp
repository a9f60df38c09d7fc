#include "plugin/host/HostEventSinks_win.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "plugin/host/HostEventRig_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::ByRef;
using Testing::ControllerMessageRecord;
using testing::ElementsAre;
using Testing::FireEvent;
using Testing::HostEventRig;
using Testing::Int32Arg;
using Testing::Int64Arg;
using testing::IsEmpty;
using Testing::Signed;

constexpr DISPID kToolbarClicked = 1;
constexpr DISPID kFolderChanged = 3;

struct FolderCase {
    const char* name;
    VARIANT argument;
    WPARAM high;
    LPARAM low;
};

TEST(HostEventSinks, FolderSelection_PostsTheIdsHalvesWhateverIntegerCarriesIt) {
    VARIANT byRefTarget = Int64Arg(0x100000002LL);
    VARIANT unsignedId{};
    V_VT(&unsignedId) = VT_UI8;
    V_UI8(&unsignedId) = 0xFFFFFFFFFFFFFFFFull;
    const FolderCase cases[] = {
        {"I8", Int64Arg(0x100000002LL), 1, 2},
        {"I8 by reference", ByRef(byRefTarget), 1, 2},
        {"I8 no folder", Int64Arg(-1), 0xFFFFFFFFu, static_cast<LPARAM>(0xFFFFFFFFu)},
        {"UI8", unsignedId, 0xFFFFFFFFu, static_cast<LPARAM>(0xFFFFFFFFu)},
        {"I4", Int32Arg(7), 0, 7},
    };
    for (const FolderCase& each : cases) {
        SCOPED_TRACE(each.name);
        HostEventRig rig;
        const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
        EXPECT_EQ(FireEvent(*sink.Get(), kFolderChanged, {each.argument}), S_OK);
        EXPECT_THAT(rig.Messages(),
                    ElementsAre(ControllerMessageRecord{1076, each.high, each.low}));
    }
}

TEST(HostEventSinks, ToolbarClick_PostsToolbarThenButtonSignExtended) {
    HostEventRig rig;
    const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
    VARIANT button = Int32Arg(-3);
    EXPECT_EQ(FireEvent(*sink.Get(), kToolbarClicked, {Int32Arg(7), ByRef(button)}), S_OK);
    EXPECT_EQ(FireEvent(*sink.Get(), kToolbarClicked, {Int32Arg(-2), Int32Arg(9)}), S_OK);
    EXPECT_THAT(rig.Messages(), ElementsAre(ControllerMessageRecord{4031, 7, -3},
                                            ControllerMessageRecord{4031, Signed(-2), 9}));
}

TEST(HostEventSinks, OtherApiEvents_PostNothing) {
    HostEventRig rig;
    const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
    for (DISPID id = 4; id <= 10; ++id) {
        EXPECT_EQ(FireEvent(*sink.Get(), id, {Int32Arg(1)}), S_OK);
    }
    EXPECT_EQ(FireEvent(*sink.Get(), 2, {}), S_OK);
    EXPECT_EQ(FireEvent(*sink.Get(), 999, {Int32Arg(1), Int32Arg(2)}), S_OK);
    EXPECT_THAT(rig.Messages(), IsEmpty());
}

struct BadCallCase {
    const char* name;
    DISPID id;
    std::vector<VARIANT> args;
    HRESULT expected;
    // The argument slot named back, counted in the host's reversed order; 99: none.
    UINT slot;
    const wchar_t* line;
};

TEST(HostEventSinks, WrongArguments_AreRefusedWithOneLineAndNoMessage) {
    constexpr wchar_t kToolbarMismatch[] =
        L"XXX CWLMAApiEventSink::OnToolbarButtonClicked wrong arguments, hr(0x80020005)";
    constexpr wchar_t kFolderMismatch[] =
        L"XXX CWLMAApiEventSink::OnFolderSelectionChanged wrong arguments, hr(0x80020005)";
    VARIANT text{};
    V_VT(&text) = VT_BSTR;
    V_BSTR(&text) = ::SysAllocString(L"not a number");
    VARIANT empty{};
    VARIANT object{};
    V_VT(&object) = VT_UNKNOWN;
    V_UNKNOWN(&object) = nullptr;
    const BadCallCase cases[] = {
        {"text button id",
         kToolbarClicked,
         {Int32Arg(1), text},
         DISP_E_TYPEMISMATCH,
         0,
         kToolbarMismatch},
        {"object toolbar id",
         kToolbarClicked,
         {object, Int32Arg(1)},
         DISP_E_TYPEMISMATCH,
         1,
         kToolbarMismatch},
        {"too big for 32 bits",
         kToolbarClicked,
         {Int64Arg(1LL << 40), Int32Arg(1)},
         DISP_E_TYPEMISMATCH,
         1,
         kToolbarMismatch},
        {"missing folder id", kFolderChanged, {empty}, DISP_E_TYPEMISMATCH, 0, kFolderMismatch},
        {"one argument short",
         kToolbarClicked,
         {Int32Arg(1)},
         DISP_E_BADPARAMCOUNT,
         99,
         L"XXX CWLMAApiEventSink::OnToolbarButtonClicked wrong arguments, hr(0x8002000E)"},
        {"one argument over",
         kFolderChanged,
         {Int64Arg(1), Int64Arg(2)},
         DISP_E_BADPARAMCOUNT,
         99,
         L"XXX CWLMAApiEventSink::OnFolderSelectionChanged wrong arguments, hr(0x8002000E)"},
    };
    for (const BadCallCase& each : cases) {
        SCOPED_TRACE(each.name);
        HostEventRig rig;
        const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
        UINT slot = 99;
        EXPECT_EQ(FireEvent(*sink.Get(), each.id, each.args, &slot), each.expected);
        EXPECT_EQ(slot, each.slot);
        EXPECT_THAT(rig.Messages(), IsEmpty());
        EXPECT_THAT(rig.journal.Entries(), ElementsAre(L"log " + std::wstring(each.line)));
    }
    ::SysFreeString(V_BSTR(&text));
}

struct EventCase {
    const char* name;
    std::function<ComPtr<CDispatchSink>(HostEventRig&)> make;
    DISPID id;
    std::vector<ControllerMessageRecord> messages;
};

template <class Sink>
ComPtr<CDispatchSink> MakeAny(HostEventRig& rig) {
    return MakeSink<Sink>(rig.relay, rig.log);
}

TEST(HostEventSinks, InitAndAccountEvents_ReachTheController) {
    const EventCase cases[] = {
        {"ready", MakeAny<CWLMApiInitEventSink>, 1, {{4029, 0, 0}}},
        {"shutdown", MakeAny<CWLMApiInitEventSink>, 2, {{4030, 0, 0}, {WM_CLOSE, 0, 0}}},
        {"default account", MakeAny<CWLMAMailAccountManagerEventSink>, 1, {{4028, 1, 1}}},
    };
    for (const EventCase& each : cases) {
        SCOPED_TRACE(each.name);
        HostEventRig rig;
        const auto sink = each.make(rig);
        EXPECT_EQ(FireEvent(*sink.Get(), each.id, {}), S_OK);
        EXPECT_EQ(rig.Messages(), each.messages);
    }
}

struct EntryCase {
    const char* name;
    std::function<ComPtr<CDispatchSink>(HostEventRig&)> make;
    LPARAM index;
};

TEST(HostEventSinks, DropDownEntries_PostTheirIndexForEitherClickEvent) {
    const EntryCase cases[] = {
        {"settings", MakeAny<CSettingBtnEventSink>, 0},
        {"statistics", MakeAny<CStatisticBtnEventSink>, 1},
        {"on/off", MakeAny<COnOffBtnEventSink>, 2},
        {"help", MakeAny<CHelpBtnEventSink>, 3},
        {"about", MakeAny<CAboutBtnEventSink>, 4},
    };
    for (const EntryCase& each : cases) {
        SCOPED_TRACE(each.name);
        HostEventRig rig;
        const auto sink = each.make(rig);
        EXPECT_EQ(FireEvent(*sink.Get(), 1, {}), S_OK);
        EXPECT_EQ(FireEvent(*sink.Get(), 2, {Int32Arg(5)}), S_OK);
        EXPECT_THAT(rig.Messages(),
                    ElementsAre(ControllerMessageRecord{4031, Signed(-1), each.index},
                                ControllerMessageRecord{4031, Signed(-1), each.index}));
    }
}

TEST(HostEventSinks, GetIDsOfNames_AnswersDeclaredNamesInAnyCase) {
    HostEventRig rig;
    const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
    wchar_t known[] = L"onfolderselectionchanged";
    wchar_t unknown[] = L"OnSomethingElse";
    LPOLESTR names[] = {known};
    DISPID id = 0;
    EXPECT_EQ(sink->GetIDsOfNames(IID_NULL, names, 1, 0, &id), S_OK);
    EXPECT_EQ(id, kFolderChanged);
    names[0] = unknown;
    EXPECT_EQ(sink->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST(HostEventSinks, QueryInterface_AnswersTheAdvisedEventInterfaceOnly) {
    HostEventRig rig;
    const auto sink = MakeSink<CWLMAApiEventSink>(rig.relay, rig.log);
    constexpr IID kEvents = {0x1234, 0x5678, 0x9abc, {1, 2, 3, 4, 5, 6, 7, 8}};
    ComPtr<IUnknown> answer;
    EXPECT_EQ(sink->QueryInterface(kEvents, &answer), E_NOINTERFACE);
    sink->SetEventIid(kEvents);
    EXPECT_EQ(sink->QueryInterface(kEvents, &answer), S_OK);
    EXPECT_EQ(sink->QueryInterface(IID_IDispatch, &answer), S_OK);
    EXPECT_EQ(sink->QueryInterface(IID_IConnectionPoint, &answer), E_NOINTERFACE);
}

TEST(HostEventSinks, LastRelease_DeletesTheSink) {
    HostEventRig rig;
    const long before = CDispatchSink::LiveSinks();
    auto sink = MakeSink<CHelpBtnEventSink>(rig.relay, rig.log);
    ComPtr<IDispatch> hostReference = sink;
    EXPECT_EQ(CDispatchSink::LiveSinks(), before + 1);
    sink.Reset();
    EXPECT_EQ(CDispatchSink::LiveSinks(), before + 1);
    hostReference.Reset();
    EXPECT_EQ(CDispatchSink::LiveSinks(), before);
}

}  // namespace
}  // namespace Orva::Plugin
