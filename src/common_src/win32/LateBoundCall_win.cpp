#include "common_src/win32/LateBoundCall_win.h"

#include <oleauto.h>

#include <cstdio>
#include <utility>

#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::Win32 {
namespace {

using Microsoft::WRL::ComPtr;

std::string Narrow(std::wstring_view text) {
    if (text.empty()) {
        return {};
    }
    const int size = ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                           nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<size_t>(size), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                          size, nullptr, nullptr);
    return narrow;
}

// Frees the strings an object put into an EXCEPINFO.
struct ExceptionInfo {
    EXCEPINFO info{};
    ~ExceptionInfo() {
        ::SysFreeString(info.bstrSource);
        ::SysFreeString(info.bstrDescription);
        ::SysFreeString(info.bstrHelpFile);
    }
    // The object's own failure, once its deferred fill-in has run.
    HRESULT Status() {
        if (info.pfnDeferredFillIn != nullptr) {
            info.pfnDeferredFillIn(&info);
        }
        return info.scode != 0 ? info.scode : DISP_E_EXCEPTION;
    }
};

std::string FailureText(std::wstring_view name, HRESULT status, std::wstring_view description) {
    const std::string reason = description.empty() ? StatusText(status) : Narrow(description);
    return Narrow(name) + ": " + reason;
}

Variant Converted(const Variant& value, VARTYPE type) {
    Variant converted;
    // VariantChangeType only reads its source, though its declaration says otherwise.
    const HRESULT status =
        ::VariantChangeType(converted.put(), const_cast<VARIANT*>(&value.get()), 0, type);
    if (FAILED(status)) {
        throw ComCallError(status, "conversion of a result: " + StatusText(status));
    }
    return converted;
}

}  // namespace

Variant::Variant(int32_t value) noexcept : Variant() {
    m_value.vt = VT_I4;
    m_value.lVal = value;
}

Variant::Variant(uint64_t value) noexcept : Variant() {
    m_value.vt = VT_UI8;
    m_value.ullVal = value;
}

Variant::Variant(std::wstring_view text) : Variant() {
    m_value.bstrVal = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (m_value.bstrVal == nullptr) {
        throw std::bad_alloc();
    }
    m_value.vt = VT_BSTR;
}

Variant::Variant(bool value) noexcept : Variant() {
    m_value.vt = VT_BOOL;
    m_value.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(IDispatch* object) noexcept : Variant() {
    m_value.vt = VT_DISPATCH;
    m_value.pdispVal = object;
    if (object != nullptr) {
        object->AddRef();
    }
}

Variant::Variant(Variant&& other) noexcept : Variant() {
    m_value = std::exchange(other.m_value, VARIANT{});
    ::VariantInit(&other.m_value);
}

Variant& Variant::operator=(Variant&& other) noexcept {
    if (this != &other) {
        ::VariantClear(&m_value);
        m_value = std::exchange(other.m_value, VARIANT{});
        ::VariantInit(&other.m_value);
    }
    return *this;
}

VARIANT* Variant::put() noexcept {
    ::VariantClear(&m_value);
    return &m_value;
}

int32_t Variant::ToInt32() const {
    return Converted(*this, VT_I4).get().lVal;
}

uint64_t Variant::ToUInt64() const {
    return Converted(*this, VT_UI8).get().ullVal;
}

std::wstring Variant::ToString() const {
    if (IsEmpty()) {
        return {};
    }
    const Variant text = Converted(*this, VT_BSTR);
    const BSTR value = text.get().bstrVal;
    return value == nullptr ? std::wstring() : std::wstring(value, ::SysStringLen(value));
}

ComPtr<IDispatch> Variant::ToDispatch() const {
    ComPtr<IDispatch> object;
    if (IsEmpty()) {
        return object;
    }
    if (m_value.vt == VT_DISPATCH) {
        object = m_value.pdispVal;
        return object;
    }
    if (m_value.vt == VT_UNKNOWN) {
        if (m_value.punkVal == nullptr) {
            return object;
        }
        const HRESULT status = m_value.punkVal->QueryInterface(IID_PPV_ARGS(&object));
        if (FAILED(status)) {
            throw ComCallError(status, "an object without IDispatch: " + StatusText(status));
        }
        return object;
    }
    throw ComCallError(DISP_E_TYPEMISMATCH, "a result that is no object");
}

HRESULT TryInvoke(IDispatch* object, std::wstring_view name, WORD flags, std::span<Variant> args,
                  Variant& result, std::string& text) {
    if (object == nullptr) {
        text = FailureText(name, E_POINTER, {});
        return E_POINTER;
    }
    std::wstring member(name);
    LPOLESTR names[] = {member.data()};
    DISPID id = DISPID_UNKNOWN;
    HRESULT status = object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(status)) {
        text = FailureText(name, status, {});
        return status;
    }
    // Invoke takes the arguments last first; the copies are shallow, the Variants own them.
    std::vector<VARIANT> reversed;
    reversed.reserve(args.size());
    for (auto arg = args.rbegin(); arg != args.rend(); ++arg) {
        reversed.push_back(arg->get());
    }
    DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    ExceptionInfo exception;
    UINT argError = 0;
    status = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, result.put(),
                            &exception.info, &argError);
    if (status == DISP_E_EXCEPTION) {
        status = exception.Status();
        const BSTR description = exception.info.bstrDescription;
        text = FailureText(name, status,
                           description == nullptr
                               ? std::wstring_view()
                               : std::wstring_view(description, ::SysStringLen(description)));
    } else if (FAILED(status)) {
        text = FailureText(name, status, {});
    }
    return status;
}

Variant Invoke(IDispatch* object, std::wstring_view name, WORD flags, std::span<Variant> args) {
    Variant result;
    std::string text;
    const HRESULT status = TryInvoke(object, name, flags, args, result, text);
    if (FAILED(status)) {
        throw ComCallError(status, text);
    }
    return result;
}

std::string StatusText(HRESULT status) {
    ZelCommon::Platform::unique_hlocal_ptr<char> buffer;
    const DWORD length = ::FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, static_cast<DWORD>(status), 0, reinterpret_cast<char*>(buffer.put()), 0, nullptr);
    std::string text;
    if (length != 0 && buffer) {
        text.assign(buffer.get(), length);
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' ' ||
                                 text.back() == '.')) {
            text.pop_back();
        }
    }
    if (text.empty()) {
        char hex[16];
        std::snprintf(hex, sizeof hex, "0x%08X", static_cast<unsigned>(status));
        text = hex;
    }
    return text;
}

ComPtr<IDispatch> CreateDispatchByProgId(const wchar_t* progId) {
    CLSID classId{};
    HRESULT status = ::CLSIDFromProgID(progId, &classId);
    ComPtr<IDispatch> object;
    if (SUCCEEDED(status)) {
        status = ::CoCreateInstance(classId, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&object));
    }
    if (FAILED(status)) {
        throw ComCallError(status, Narrow(progId) + ": " + StatusText(status));
    }
    return object;
}

}  // namespace ZelCommon::Win32
