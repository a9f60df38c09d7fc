#include "common_src/win32/DispatchCall_win.h"

#include <oleauto.h>

#include <vector>

namespace ZelCommon::Win32 {
namespace {

// Takes the strings of an exception record, which the caller owns.
std::wstring TakeDescription(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn != nullptr) {
        exception.pfnDeferredFillIn(&exception);
    }
    std::wstring description;
    if (exception.bstrDescription != nullptr) {
        description.assign(exception.bstrDescription, ::SysStringLen(exception.bstrDescription));
    }
    ::SysFreeString(exception.bstrSource);
    ::SysFreeString(exception.bstrDescription);
    ::SysFreeString(exception.bstrHelpFile);
    return description;
}

DispatchResult Invoke(IDispatch& object, const wchar_t* name, WORD kind,
                      std::initializer_list<DispatchArg> args) {
    DispatchResult result;
    DISPID member = DISPID_UNKNOWN;
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    result.status = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member);
    if (FAILED(result.status)) {
        return result;
    }
    // IDispatch takes the arguments last first; they are only read, never changed.
    std::vector<VARIANT> reversed;
    reversed.reserve(args.size());
    for (auto arg = std::rbegin(args); arg != std::rend(args); ++arg) {
        reversed.push_back(arg->get());
    }
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    EXCEPINFO exception{};
    UINT badArgument = 0;
    result.status = object.Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                  result.value.put(), &exception, &badArgument);
    if (result.status == DISP_E_EXCEPTION) {
        const HRESULT reported = exception.scode != 0 ? exception.scode : E_FAIL;
        result.description = TakeDescription(exception);
        result.status = FAILED(reported) ? reported : E_FAIL;
    }
    return result;
}

// The value converted to `type`; VariantChangeType only reads its source, whatever its
// declaration says.
bool ChangeType(unique_variant& converted, const VARIANT& value, VARTYPE type) {
    return SUCCEEDED(::VariantChangeType(converted.put(), const_cast<VARIANT*>(&value), 0, type));
}

}  // namespace

DispatchArg::DispatchArg(int32_t value) {
    VARIANT* variant = m_value.put();
    variant->vt = VT_I4;
    variant->lVal = value;
}

DispatchArg::DispatchArg(uint64_t value) {
    VARIANT* variant = m_value.put();
    variant->vt = VT_UI8;
    variant->ullVal = value;
}

DispatchArg::DispatchArg(bool value) {
    VARIANT* variant = m_value.put();
    variant->vt = VT_BOOL;
    variant->boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

DispatchArg::DispatchArg(const std::wstring& value) {
    VARIANT* variant = m_value.put();
    variant->vt = VT_BSTR;
    variant->bstrVal = ::SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
}

DispatchResult CallMethod(IDispatch& object, const wchar_t* name,
                          std::initializer_list<DispatchArg> args) {
    return Invoke(object, name, DISPATCH_METHOD, args);
}

DispatchResult GetProperty(IDispatch& object, const wchar_t* name) {
    return Invoke(object, name, DISPATCH_PROPERTYGET, {});
}

std::optional<int32_t> AsInt32(const VARIANT& value) {
    unique_variant converted;
    if (!ChangeType(converted, value, VT_I4)) {
        return std::nullopt;
    }
    return converted.get().lVal;
}

std::optional<uint64_t> AsUInt64(const VARIANT& value) {
    unique_variant converted;
    if (!ChangeType(converted, value, VT_UI8)) {
        return std::nullopt;
    }
    return converted.get().ullVal;
}

std::optional<std::wstring> AsString(const VARIANT& value) {
    unique_variant converted;
    if (!ChangeType(converted, value, VT_BSTR)) {
        return std::nullopt;
    }
    const BSTR text = converted.get().bstrVal;
    return text != nullptr ? std::wstring(text, ::SysStringLen(text)) : std::wstring();
}

}  // namespace ZelCommon::Win32
