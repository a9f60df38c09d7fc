#include "plugin/HostObjects_win.h"

#include <olectl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/DispatchSink_win.h"
#include "plugin/HostConnection_win.h"
#include "plugin/HostEventRig_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::ControllerMessageRecord;
using testing::ElementsAre;
using Testing::FireEvent;
using Testing::HostEventRig;
using Testing::Int32Arg;
using Testing::Int64Arg;
using testing::IsEmpty;

constexpr IID kEventIid = {
    0x6d1a3c21, 0x44b0, 0x4c4e, {0x9a, 0x1f, 0x2b, 0x51, 0x77, 0x0e, 0x8c, 0x13}};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// An in-process stand-in for a host object with one connection point, owned by the test. Like
// a host it asks the sink for the event interface when advised and keeps that reference.
class FakeHostObject final : public IConnectionPointContainer,
                             public IConnectionPoint,
                             public IEnumConnectionPoints,
                             public IProvideClassInfo2 {
public:
    // Which ways of naming its event interface the object offers.
    bool enumerates = true;
    bool providesClassInfo = false;
    HRESULT unadviseResult = S_OK;
    ComPtr<ITypeInfo> classInfo;

    std::vector<std::wstring> calls;
    ComPtr<IDispatch> sink;
    ULONG references = 0;

    HRESULT Fire(DISPID id, std::vector<VARIANT> args) {
        return sink ? FireEvent(*sink.Get(), id, std::move(args)) : E_UNEXPECTED;
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IUnknown || iid == IID_IConnectionPointContainer) {
            *object = static_cast<IConnectionPointContainer*>(this);
        } else if (iid == IID_IConnectionPoint) {
            *object = static_cast<IConnectionPoint*>(this);
        } else if (iid == IID_IEnumConnectionPoints) {
            *object = static_cast<IEnumConnectionPoints*>(this);
        } else if (providesClassInfo &&
                   (iid == IID_IProvideClassInfo2 || iid == IID_IProvideClassInfo)) {
            *object = static_cast<IProvideClassInfo2*>(this);
        } else {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override {
        if (!enumerates) {
            *points = nullptr;
            return E_NOTIMPL;
        }
        m_position = 0;
        *points = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override {
        *point = nullptr;
        if (iid != kEventIid) {
            return CONNECT_E_NOCONNECTION;
        }
        *point = this;
        AddRef();
        return S_OK;
    }

    STDMETHODIMP GetConnectionInterface(IID* iid) override {
        *iid = kEventIid;
        return S_OK;
    }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override {
        *container = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP Advise(IUnknown* client, DWORD* cookie) override {
        calls.push_back(L"advise");
        if (sink || FAILED(client->QueryInterface(kEventIid,
                                                  reinterpret_cast<void**>(sink.GetAddressOf())))) {
            return CONNECT_E_CANNOTCONNECT;
        }
        *cookie = 42;
        return S_OK;
    }
    STDMETHODIMP Unadvise(DWORD cookie) override {
        calls.push_back(L"unadvise " + std::to_wstring(cookie));
        if (FAILED(unadviseResult)) {
            return unadviseResult;
        }
        sink.Reset();
        return S_OK;
    }
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override {
        *connections = nullptr;
        return E_NOTIMPL;
    }

    STDMETHODIMP Next(ULONG count, IConnectionPoint** points, ULONG* fetched) override {
        ULONG given = 0;
        if (count > 0 && m_position == 0) {
            points[0] = this;
            AddRef();
            given = 1;
            ++m_position;
        }
        if (fetched != nullptr) {
            *fetched = given;
        }
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        m_position += count;
        return S_OK;
    }
    STDMETHODIMP Reset() override {
        m_position = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumConnectionPoints** copy) override {
        *copy = nullptr;
        return E_NOTIMPL;
    }

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
        *info = classInfo.Get();
        if (classInfo == nullptr) {
            return E_NOTIMPL;
        }
        classInfo->AddRef();
        return S_OK;
    }
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override {
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) {
            return E_INVALIDARG;
        }
        *guid = kEventIid;
        return S_OK;
    }

private:
    ULONG m_position = 0;
};
#pragma GCC diagnostic pop

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

// The adapter over the fake host object, with the ProgIDs it was asked for.
struct HostObjectsRig {
    HostObjectsRig() {
        host = CreateHostObjects(events.relay, events.log, [this](const wchar_t* progId) {
            progIds.push_back(progId);
            return available ? ComPtr<IUnknown>(static_cast<IConnectionPointContainer*>(&object))
                             : nullptr;
        });
    }

    HostEventRig events;
    FakeHostObject object;
    bool available = true;
    std::vector<std::wstring> progIds;
    std::unique_ptr<IHostObjects> host;
};

TEST(HostObjects, InitObject_IsCreatedByProgIdAndRelaysTheReadyEvent) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.host->CreateInitObject());
    ASSERT_TRUE(rig.host->AdviseInitSink());

    EXPECT_EQ(rig.object.Fire(1, {}), S_OK);
    EXPECT_THAT(rig.progIds, ElementsAre(L"NktWLMailApiInit.WLMailApiInit"));
    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise"));
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{4029, 0, 0}));
}

TEST(HostObjects, ApiObject_RelaysFolderSelectionAndIsReleasedWithItsSink) {
    HostObjectsRig rig;
    const long liveBefore = CDispatchSink::LiveSinks();
    ASSERT_FALSE(rig.host->HasApiObject());
    ASSERT_TRUE(rig.host->CreateApiObject());
    ASSERT_TRUE(rig.host->AdviseApiSink());
    EXPECT_TRUE(rig.host->HasApiObject());
    EXPECT_EQ(rig.object.Fire(3, {Int64Arg(0x100000002LL)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{1076, 1, 2}));

    rig.host->UnadviseApiSink();

    EXPECT_THAT(rig.progIds, ElementsAre(L"NktWLMailApi.WLMailApi"));
    EXPECT_THAT(rig.object.calls, ElementsAre(L"advise", L"unadvise 42"));
    EXPECT_FALSE(rig.host->HasApiObject());
    EXPECT_EQ(rig.object.references, 0u);
    EXPECT_EQ(CDispatchSink::LiveSinks(), liveBefore);
}

TEST(HostObjects, UnadviseInitSink_KeepsTheObjectUntilReleased) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.host->CreateInitObject());
    ASSERT_TRUE(rig.host->AdviseInitSink());
    rig.host->UnadviseInitSink();
    EXPECT_GT(rig.object.references, 0u);
    rig.host->ReleaseInitObject();
    EXPECT_EQ(rig.object.references, 0u);
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
    ASSERT_TRUE(rig.host->CreateApiObject());
    ASSERT_TRUE(rig.host->AdviseApiSink());
    EXPECT_EQ(rig.object.Fire(1, {Int32Arg(7), Int32Arg(8)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{4031, 7, 8}));
}

TEST(HostObjects, HostTypeLibrary_RenumbersTheEventsItNames) {
    HostObjectsRig rig;
    rig.object.providesClassInfo = true;
    rig.object.classInfo = ClassWithRenumberedFolderEvent();
    ASSERT_NE(rig.object.classInfo, nullptr);
    ASSERT_TRUE(rig.host->CreateApiObject());
    ASSERT_TRUE(rig.host->AdviseApiSink());

    EXPECT_EQ(rig.object.Fire(3, {Int64Arg(5)}), S_OK);
    EXPECT_EQ(rig.object.Fire(33, {Int64Arg(6)}), S_OK);
    EXPECT_THAT(rig.events.Messages(), ElementsAre(ControllerMessageRecord{1076, 0, 6}));
}

TEST(HostObjects, EventInterfaceUnknown_AdviseFails) {
    HostObjectsRig rig;
    rig.object.enumerates = false;
    const long liveBefore = CDispatchSink::LiveSinks();
    ASSERT_TRUE(rig.host->CreateApiObject());
    EXPECT_FALSE(rig.host->AdviseApiSink());
    EXPECT_THAT(rig.object.calls, IsEmpty());
    EXPECT_EQ(CDispatchSink::LiveSinks(), liveBefore);
}

TEST(HostObjects, RefusedUnadvise_ThrowsTheHostsReasonAndLetsGo) {
    HostObjectsRig rig;
    ASSERT_TRUE(rig.host->CreateApiObject());
    ASSERT_TRUE(rig.host->AdviseApiSink());
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
    ASSERT_TRUE(rig.host->CreateInitObject());
    ASSERT_TRUE(rig.host->AdviseInitSink());
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
