#include "plugin/host/HostObjects_win.h"

#include <olectl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/host/DispatchSink_win.h"
#include "plugin/host/FakeHostObject_win.h"
#include "plugin/host/HostConnection_win.h"
#include "plugin/host/HostEventRig_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::ControllerMessageRecord;
using testing::ElementsAre;
using Testing::FakeHostObject;
using Testing::FireEvent;
using Testing::HostEventRig;
using Testing::Int32Arg;
using Testing::Int64Arg;
using testing::IsEmpty;
using Testing::kEventIid;

// A class whose default source interface numbers the folder event 33, as a host's type
// library might.
ComPtr<ITypeInfo> ClassWithRenumberedFolderEvent() {
    ComPtr<ICreateTypeLib2> library;
    ComPtr<ICreateTypeInfo> events;
    ComPtr<ICreateTypeInfo> coclass;
    if (FAILED(::CreateTypeLib2(SYS_WIN64, L"OrvaHostTest.tlb", &library)) ||
        FAILED(library->CreateTypeInfo(const_cast<wchar_t*>(L"HostEvents"), TKIND_DISPATCH,
                                       &events)) ||
        FAILED(library->CreateTypeInfo(const_cast<wchar_t*>(L"Host"), TKIND_COCLASS, &coclass))) {
        return nullptr;
    }
    events->SetGuid(kEventIid);
    ELEMDESC folderId{};
    folderId.tdesc.vt = VT_I8;
    FUNCDESC folderEvent{};
    folderEvent.memid = 33;
    folderEvent.funckind = FUNC_DISPATCH;
    folderEvent.invkind = INVOKE_FUNC;
    folderEvent.callconv = CC_STDCALL;
    folderEvent.cParams = 1;
    folderEvent.lprgelemdescParam = &folderId;
    folderEvent.elemdescFunc.tdesc.vt = VT_VOID;
    wchar_t eventName[] = L"OnFolderSelectionChanged";
    wchar_t parameterName[] = L"folderId";
    LPOLESTR names[] = {eventName, parameterName};
    ComPtr<ITypeInfo> eventsInfo;
    ComPtr<ITypeInfo> classInfo;
    HREFTYPE reference = 0;
    if (FAILED(events->AddFuncDesc(0, &folderEvent)) ||
        FAILED(events->SetFuncAndParamNames(0, names, 2)) || FAILED(events->LayOut()) ||
        FAILED(events.As(&eventsInfo)) ||
        FAILED(coclass->AddRefTypeInfo(eventsInfo.Get(), &reference)) ||
        FAILED(coclass->AddImplType(0, reference)) ||
        FAILED(coclass->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) ||
        FAILED(coclass->LayOut()) || FAILED(coclass.As(&classInfo))) {
        return nullptr;
    }
    return classInfo;
}

// The adapter over the fake host object, whichever ProgID it asks for (the loaded add-in's
// tests register the host's classes under their real ones).
struct HostObjectsRig {
    HostObjectsRig() {
        host = CreateHostObjects(events.relay, events.log, [this](const wchar_t*) {
            return available ? ComPtr<IUnknown>(static_cast<IConnectionPointContainer*>(&object))
                             : nullptr;
        });
    }

    bool InitAdvised() { return host->CreateInitObject() && host->AdviseInitSink(); }
    bool ApiAdvised() { return host->CreateApiObject() && host->AdviseApiSink(); }

    HostEventRig events;
    FakeHostObject object;
    bool available = true;
    std::unique_ptr<IHostObjects> host;
};

// Unadvising lets go of the sink; the object itself stays until it is released.
TEST(HostObjects, InitObject_RelaysTheReadyEventAndIsReleasedLast) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.InitAdvised());

    EXPECT_EQ(rig.object.Fire(1, {}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{4029, 0, 0}));

    rig.host->UnadviseInitSink();
    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise", L"unadvise 42"));
    EXPECT_GT(rig.object.references, 0u);
    rig.host->ReleaseInitObject();
    EXPECT_EQ(rig.object.references, 0u);
}

TEST(HostObjects, ApiObject_RelaysFolderSelectionAndIsReleasedWithItsSink) {
    HostObjectsRig rig;
    const long liveBefore = CDispatchSink::LiveSinks();
    ASSERT_FALSE(rig.host->HasApiObject());
    ASSERT_TRUE(rig.ApiAdvised());
    EXPECT_TRUE(rig.host->HasApiObject());
    EXPECT_EQ(rig.object.Fire(3, {Int64Arg(0x100000002LL)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{1076, 1, 2}));

    rig.host->UnadviseApiSink();

    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise", L"unadvise 42"));
    EXPECT_FALSE(rig.host->HasApiObject());
    EXPECT_EQ(rig.object.references, 0u);
    EXPECT_EQ(CDispatchSink::LiveSinks(), liveBefore);
}

TEST(HostObjects, NoHostObject_NothingIsCreatedOrAdvised) {
    HostObjectsRig rig;
    rig.available = false;
    EXPECT_FALSE(rig.host->CreateInitObject());
    EXPECT_FALSE(rig.host->AdviseInitSink());
    EXPECT_FALSE(rig.host->CreateApiObject());
    EXPECT_FALSE(rig.host->HasApiObject());
    EXPECT_FALSE(rig.host->AdviseApiSink());
    EXPECT_NO_THROW(rig.host->UnadviseApiSink());
    EXPECT_THAT(rig.object.calls, IsEmpty());
}

TEST(HostObjects, EventInterface_ComesFromClassInfoWhenPointsCannotBeListed) {
    HostObjectsRig rig;
    rig.object.enumerates = false;
    rig.object.providesClassInfo = true;
    ASSERT_TRUE(rig.ApiAdvised());
    EXPECT_EQ(rig.object.Fire(1, {Int32Arg(7), Int32Arg(8)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{4031, 7, 8}));
}

// Events the host does not name keep their assumed numbers.
TEST(HostObjects, HostTypeLibrary_RenumbersTheEventsItNames) {
    HostObjectsRig rig;
    rig.object.providesClassInfo = true;
    rig.object.classInfo = ClassWithRenumberedFolderEvent();
    ASSERT_NE(rig.object.classInfo, nullptr);
    ASSERT_TRUE(rig.ApiAdvised());

    EXPECT_EQ(rig.object.Fire(3, {Int64Arg(5)}), S_OK);
    EXPECT_EQ(rig.object.Fire(33, {Int64Arg(6)}), S_OK);
    EXPECT_EQ(rig.object.Fire(1, {Int32Arg(1), Int32Arg(2)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{1076, 0, 6},
                                                   ControllerMessageRecord{4031, 1, 2}));
}

TEST(HostObjects, NoConnectionPoint_AdviseFailsAndKeepsNoSink) {
    // The event interface cannot be named, or the host hands back a null connection point.
    for (const bool nullPoint : {false, true}) {
        SCOPED_TRACE(nullPoint);
        HostObjectsRig rig;
        rig.object.enumerates = nullPoint;
        rig.object.findsNullPoint = nullPoint;
        const long liveBefore = CDispatchSink::LiveSinks();
        ASSERT_TRUE(rig.host->CreateApiObject());
        EXPECT_FALSE(rig.host->AdviseApiSink());
        EXPECT_THAT(rig.object.calls, IsEmpty());
        EXPECT_EQ(CDispatchSink::LiveSinks(), liveBefore);
    }
}

TEST(HostObjects, RefusedUnadvise_ThrowsTheHostsReasonAndLetsGo) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.ApiAdvised());
    rig.object.unadviseResult = E_FAIL;
    try {
        rig.host->UnadviseApiSink();
        ADD_FAILURE() << "no HostCallError";
    } catch (const HostCallError& error) {
        EXPECT_EQ(error.what(), HResultText(E_FAIL));
    }
    EXPECT_FALSE(rig.host->HasApiObject());
    // Refused once, the connection is not tried again.
    rig.host.reset();
    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise", L"unadvise 42"));
}

TEST(HostObjects, DroppedWhileAdvised_UnadvisesQuietly) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.InitAdvised());
    rig.host.reset();
    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise", L"unadvise 42"));
    EXPECT_EQ(rig.object.references, 0u);
}

TEST(HResultText, KnownStatus_IsTheSystemsTextAndUnknownIsHex) {
    EXPECT_THAT(HResultText(E_OUTOFMEMORY), testing::Not(testing::StartsWith("0x")));
    EXPECT_THAT(HResultText(E_OUTOFMEMORY), testing::Not(testing::EndsWith("\n")));
    EXPECT_EQ(HResultText(static_cast<HRESULT>(0x8004DEADu)), "0x8004DEAD");
}

TEST(HostObjects, Com_IsUninitialisedOnlyAsOftenAsItWasInitialised) {
    ASSERT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
    {
        HostObjectsRig rig;
        rig.host->InitializeCom();
        rig.host->UninitializeCom();
        rig.host->UninitializeCom();
    }
    // Our own initialisation still stands: a further one only counts.
    EXPECT_EQ(::CoInitialize(nullptr), S_FALSE);
    ::CoUninitialize();
    ::CoUninitialize();
}

}  // namespace
}  // namespace Orva::Plugin
