#pragma once

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace Orva::Testing {

// Fills in the result from the arguments (in their declared order), or fails.
using Member = std::function<HRESULT(const std::vector<VARIANT>& args, VARIANT& result)>;

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// An automation object that knows its members only by name, as the host's objects do. A failing
// member reports itself through EXCEPINFO with `refusal`, as automation objects do. When the
// test gives it `connections`, that object is its connection points.
class MemberDispatch final : public IDispatch {
public:
    std::map<std::wstring, Member> members;
    std::wstring refusal = L"the object is busy";
    IUnknown* connections = nullptr;

    ULONG References() const { return m_references; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IConnectionPointContainer && connections != nullptr) {
            return connections->QueryInterface(iid, object);
        }
        if (iid != IID_IUnknown && iid != IID_IDispatch) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const auto found = members.find(names[0]);
        *ids = found == members.end() ? DISPID_UNKNOWN
                                      : static_cast<DISPID>(std::distance(members.begin(), found));
        return found == members.end() ? DISP_E_UNKNOWNNAME : S_OK;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override {
        if ((flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0 || result == nullptr) {
            return DISP_E_MEMBERNOTFOUND;
        }
        std::vector<VARIANT> args(params->rgvarg, params->rgvarg + params->cArgs);
        std::reverse(args.begin(), args.end());
        const HRESULT status = std::next(members.begin(), id)->second(args, *result);
        if (SUCCEEDED(status)) {
            return status;
        }
        *exception = {};
        exception->scode = status;
        exception->bstrDescription = ::SysAllocString(refusal.c_str());
        return DISP_E_EXCEPTION;
    }

private:
    ~MemberDispatch() = default;
    ULONG m_references = 1;
};
#pragma GCC diagnostic pop

// The one place a fake object is made; it deletes itself on its last Release.
inline Microsoft::WRL::ComPtr<MemberDispatch> MakeMemberDispatch() {
    Microsoft::WRL::ComPtr<MemberDispatch> object;
    object.Attach(new MemberDispatch());
    return object;
}

}  // namespace Orva::Testing
