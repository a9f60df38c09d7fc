#pragma once

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <utility>
#include <vector>

#include "plugin/host/HostEventRig_win.h"

namespace Orva::Testing {

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
    // A careless host: its container reports success and hands back no connection point.
    bool findsNullPoint = false;
    HRESULT unadviseResult = S_OK;
    Microsoft::WRL::ComPtr<ITypeInfo> classInfo;

    std::vector<std::wstring> calls;
    Microsoft::WRL::ComPtr<IDispatch> sink;
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
        if (findsNullPoint) {
            return S_OK;
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

}  // namespace Orva::Testing
