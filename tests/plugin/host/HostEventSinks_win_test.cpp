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

template <class Sink>
ComPtr<CDispatchSink> Make(HostEventRig& rig) {
    return MakeSink<Sink>(rig.relay, rig.log);
}
const auto kApi = Make<CWLMAApiEventSink>;

struct Fired {
    DISPID id;
    std::vector<VARIANT> args;
};

// An entry of the drop-down, clicked through either of its click events.
std::vector<Fired> BothClicks() {
    return {{1, {}}, {2, {Int32Arg(5)}}};
}
std::vector<ControllerMessageRecord> EntryMessages(LPARAM index) {
    return {{4031, Signed(-1), index}, {4031, Signed(-1), index}};
}

struct EventCase {
    const char* name;
    std::function<ComPtr<CDispatchSink>(HostEventRig&)> make;
    std::vector<Fired> fired;
    std::vector<ControllerMessageRecord> messages;
};

// The folder id's halves are posted whatever integer carries it, the toolbar's button id sign
// extended; the API's other events post nothing.
TEST(HostEventSinks, Events_ReachTheControllerAsItsMessages) {
    VARIANT byRefTarget = Int64Arg(0x100000002LL);
    VARIANT unsignedId{};
    V_VT(&unsignedId) = VT_UI8;
    V_UI8(&unsignedId) = 0xFFFFFFFFFFFFFFFFull;
    VARIANT button = Int32Arg(-3);
    std::vector<Fired> others = {{2, {}}, {999, {Int32Arg(1), Int32Arg(2)}}};
    for (DISPID id = 4; id <= 10; ++id) {
        others.push_back({id, {Int32Arg(1)}});
    }
    const LPARAM kNone = static_cast<LPARAM>(0xFFFFFFFFu);
    const EventCase cases[] = {
        {"folder I8", kApi, {{kFolderChanged, {Int64Arg(0x100000002LL)}}}, {{1076, 1, 2}}},
        {"folder I8 by reference", kApi, {{kFolderChanged, {ByRef(byRefTarget)}}}, {{1076, 1, 2}}},
        {"folder I8 none", kApi, {{kFolderChanged, {Int64Arg(-1)}}}, {{1076, 0xFFFFFFFFu, kNone}}},
        {"folder UI8", kApi, {{kFolderChanged, {unsignedId}}}, {{1076, 0xFFFFFFFFu, kNone}}},
        {"folder I4", kApi, {{kFolderChanged, {Int32Arg(7)}}}, {{1076, 0, 7}}},
        {"toolbar clicks",
         kApi,
         {{kToolbarClicked, {Int32Arg(7), ByRef(button)}},
          {kToolbarClicked, {Int32Arg(-2), Int32Arg(9)}}},
         {{4031, 7, -3}, {4031, Signed(-2), 9}}},
        {"other API events", kApi, others, {}},
        {"ready", Make<CWLMApiInitEventSink>, {{1, {}}}, {{4029, 0, 0}}},
        {"shutdown", Make<CWLMApiInitEventSink>, {{2, {}}}, {{4030, 0, 0}, {WM_CLOSE, 0, 0}}},
        {"default account", Make<CWLMAMailAccountManagerEventSink>, {{1, {}}}, {{4028, 1, 1}}},
        {"settings", Make<CSettingBtnEventSink>, BothClicks(), EntryMessages(0)},
        {"statistics", Make<CStatisticBtnEventSink>, BothClicks(), EntryMessages(1)},
        {"on/off", Make<COnOffBtnEventSink>, BothClicks(), EntryMessages(2)},
        {"help", Make<CHelpBtnEventSink>, BothClicks(), EntryMessages(3)},
        {"about", Make<CAboutBtnEventSink>, BothClicks(), EntryMessages(4)},
    };
    for (const EventCase& each : cases) {
        SCOPED_TRACE(each.name);
        HostEventRig rig;
        const auto sink = each.make(rig);
        for (const Fired& fired : each.fired) {
            EXPECT_EQ(FireEvent(*sink.Get(), fired.id, fired.args), S_OK) << fired.id;
        }
        EXPECT_EQ(rig.Messages(), each.messages);
    }
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
    constexpr HRESULT kType = DISP_E_TYPEMISMATCH, kCount = DISP_E_BADPARAMCOUNT;
    constexpr wchar_t kClickType[] =
        L"XXX CWLMAApiEventSink::OnToolbarButtonClicked wrong arguments, hr(0x80020005)";
    constexpr wchar_t kFolderType[] =
        L"XXX CWLMAApiEventSink::OnFolderSelectionChanged wrong arguments, hr(0x80020005)";
    constexpr wchar_t kClickCount[] =
        L"XXX CWLMAApiEventSink::OnToolbarButtonClicked wrong arguments, hr(0x8002000E)";
    constexpr wchar_t kFolderCount[] =
        L"XXX CWLMAApiEventSink::OnFolderSelectionChanged wrong arguments, hr(0x8002000E)";
    VARIANT text{};
    V_VT(&text) = VT_BSTR;
    V_BSTR(&text) = ::SysAllocString(L"not a number");
    VARIANT empty{};
    VARIANT object{};
    V_VT(&object) = VT_UNKNOWN;
    V_UNKNOWN(&object) = nullptr;
    const BadCallCase cases[] = {
        {"text button id", kToolbarClicked, {Int32Arg(1), text}, kType, 0, kClickType},
        {"object toolbar id", kToolbarClicked, {object, Int32Arg(1)}, kType, 1, kClickType},
        {"too big", kToolbarClicked, {Int64Arg(1LL << 40), Int32Arg(1)}, kType, 1, kClickType},
        {"missing folder id", kFolderChanged, {empty}, kType, 0, kFolderType},
        {"one argument short", kToolbarClicked, {Int32Arg(1)}, kCount, 99, kClickCount},
        {"one argument over", kFolderChanged, {Int64Arg(1), Int64Arg(2)}, kCount, 99, kFolderCount},
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
