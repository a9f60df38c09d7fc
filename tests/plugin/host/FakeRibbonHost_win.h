#pragma once

#include <oaidl.h>
#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "plugin/host/FakeHostObject_win.h"

namespace Orva::Testing {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// A minimal automation object owned by the test: members by name, each call answered by
// `OnCall`. Reference counts are kept but never delete.
class FakeAutomationObject : public IDispatch {
public:
    explicit FakeAutomationObject(std::vector<std::wstring> members)
        : m_members(std::move(members)) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IUnknown || iid == IID_IDispatch) {
            *object = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        return QueryOther(iid, object);
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        *info = nullptr;
        return E_NOTIMPL;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        for (UINT i = 0; i < count; ++i) {
            ids[i] = DISPID_UNKNOWN;
            for (size_t member = 0; member < m_members.size(); ++member) {
                if (m_members[member] == names[i]) {
                    ids[i] = static_cast<DISPID>(member + 1);
                }
            }
            if (ids[i] == DISPID_UNKNOWN) {
                return DISP_E_UNKNOWNNAME;
            }
        }
        return S_OK;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override {
        if (id < 1 || static_cast<size_t>(id) > m_members.size()) {
            return DISP_E_MEMBERNOTFOUND;
        }
        // The arguments arrive last first.
        std::vector<VARIANT> args(params->rgvarg, params->rgvarg + params->cArgs);
        std::reverse(args.begin(), args.end());
        return OnCall(m_members[static_cast<size_t>(id - 1)], args, result, exception);
    }

    ULONG references = 0;

protected:
    virtual HRESULT QueryOther(REFIID, void** object) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    virtual HRESULT OnCall(const std::wstring& member, const std::vector<VARIANT>& args,
                           VARIANT* result, EXCEPINFO* exception) = 0;

private:
    std::vector<std::wstring> m_members;
};

// A drop-down entry: its id, and the connection point its clicks come from.
class FakeRibbonEntry final : public FakeAutomationObject {
public:
    explicit FakeRibbonEntry(LONG entryId) : FakeAutomationObject({L"Id"}), id(entryId) {}

    LONG id;
    FakeHostObject points;

protected:
    HRESULT QueryOther(REFIID iid, void** object) override {
        return iid == IID_IConnectionPointContainer ? points.QueryInterface(iid, object)
                                                    : FakeAutomationObject::QueryOther(iid, object);
    }
    HRESULT OnCall(const std::wstring&, const std::vector<VARIANT>&, VARIANT* result,
                   EXCEPINFO*) override {
        V_VT(result) = VT_I4;
        V_I4(result) = id;
        return S_OK;
    }
};

// The host's API object as far as the ribbon goes: records each call as
// "Member(arg, ...)" with strings quoted, hands out ids from 500 and makes every drop-down entry
// an object of its own. `failing` names a member that fails as a host does, with a description.
// Its own events come from `events`.
class FakeRibbonHost final : public FakeAutomationObject {
public:
    FakeRibbonHost()
        : FakeAutomationObject({L"CreateToolbar", L"AddToolbarButton", L"AddToolbarSubButton",
                                L"SetToolbarButtonTooltip", L"SetToolbarButtonCaption",
                                L"EnableToolbarButton"}) {}

    std::vector<std::wstring> calls;
    std::vector<std::unique_ptr<FakeRibbonEntry>> entries;
    std::wstring failing;
    FakeHostObject events;

protected:
    HRESULT QueryOther(REFIID iid, void** object) override {
        return iid == IID_IConnectionPointContainer ? events.QueryInterface(iid, object)
                                                    : FakeAutomationObject::QueryOther(iid, object);
    }
    HRESULT OnCall(const std::wstring& member, const std::vector<VARIANT>& args, VARIANT* result,
                   EXCEPINFO* exception) override {
        std::wstring call = member + L"(";
        for (size_t i = 0; i < args.size(); ++i) {
            call += (i > 0 ? L", " : L"") + Describe(args[i]);
        }
        calls.push_back(call + L")");
        if (member == failing) {
            exception->scode = E_FAIL;
            exception->bstrDescription = ::SysAllocString(L"The ribbon is locked");
            return DISP_E_EXCEPTION;
        }
        const LONG id = m_nextId++;
        if (member == L"AddToolbarSubButton") {
            entries.push_back(std::make_unique<FakeRibbonEntry>(id));
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = entries.back().get();
            entries.back()->AddRef();
        } else if (member.starts_with(L"Create") || member.starts_with(L"Add")) {
            V_VT(result) = VT_I4;
            V_I4(result) = id;
        }
        return S_OK;
    }

private:
    static std::wstring Describe(const VARIANT& arg) {
        switch (V_VT(&arg)) {
            case VT_I4:
                return std::to_wstring(V_I4(&arg));
            case VT_BOOL:
                return V_BOOL(&arg) ? L"true" : L"false";
            case VT_BSTR:
                return L"\"" + std::wstring(V_BSTR(&arg), ::SysStringLen(V_BSTR(&arg))) + L"\"";
            default:
                return L"vt" + std::to_wstring(V_VT(&arg));
        }
    }

    LONG m_nextId = 500;
};
#pragma GCC diagnostic pop

}  // namespace Orva::Testing
