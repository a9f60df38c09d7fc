#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ZelCommon::Win32 {

// A failed late-bound call: its HRESULT and a narrow text naming the member and the reason
// (the object's own description when it gave one, else the system's).
class ComCallError : public std::runtime_error {
public:
    ComCallError(HRESULT result, const std::string& text)
        : std::runtime_error(text), m_result(result) {}
    HRESULT Result() const { return m_result; }

private:
    HRESULT m_result;
};

// Owns one VARIANT (cleared with its owner, BSTRs and interfaces released). Move-only.
class Variant {
public:
    Variant() noexcept { ::VariantInit(&m_value); }
    Variant(int32_t value) noexcept;   // NOLINT: VT_I4
    Variant(uint64_t value) noexcept;  // NOLINT: VT_UI8
    Variant(std::wstring_view text);   // NOLINT: VT_BSTR
    Variant(const wchar_t* text)       // NOLINT: VT_BSTR, empty for null
        : Variant(text == nullptr ? std::wstring_view() : std::wstring_view(text)) {}
    // A narrow text would otherwise become a VT_BOOL.
    Variant(const char*) = delete;
    Variant(bool value) noexcept;         // NOLINT: VT_BOOL
    Variant(IDispatch* object) noexcept;  // NOLINT: VT_DISPATCH, holding its own reference
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant&& other) noexcept;
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { ::VariantClear(&m_value); }

    const VARIANT& get() const noexcept { return m_value; }
    // Clears the value and gives its place, for a call that fills it in.
    VARIANT* put() noexcept;
    VARTYPE Type() const noexcept { return m_value.vt; }
    bool IsEmpty() const noexcept { return m_value.vt == VT_EMPTY || m_value.vt == VT_NULL; }

    // Conversions by VariantChangeType; a value that does not convert throws ComCallError.
    int32_t ToInt32() const;
    uint64_t ToUInt64() const;
    // Empty for VT_EMPTY, VT_NULL and a null BSTR.
    std::wstring ToString() const;
    // The object's IDispatch; null for VT_EMPTY, VT_NULL and a null interface.
    Microsoft::WRL::ComPtr<IDispatch> ToDispatch() const;

private:
    VARIANT m_value;
};

// Calls the member `name` of `object` by GetIDsOfNames and Invoke with `flags`
// (DISPATCH_METHOD, DISPATCH_PROPERTYGET or both); `args` in their declared order. A null
// object throws E_POINTER; a failing HRESULT throws ComCallError.
Variant Invoke(IDispatch* object, std::wstring_view name, WORD flags, std::span<Variant> args);
// The same, answering the HRESULT instead of throwing; `text` gets the reason of a failure.
HRESULT TryInvoke(IDispatch* object, std::wstring_view name, WORD flags, std::span<Variant> args,
                  Variant& result, std::string& text);

template <class... Args>
Variant CallMethod(IDispatch* object, std::wstring_view name, Args&&... args) {
    Variant list[] = {Variant(std::forward<Args>(args))..., Variant()};
    return Invoke(object, name, DISPATCH_METHOD, std::span<Variant>(list, sizeof...(Args)));
}

inline Variant GetProperty(IDispatch* object, std::wstring_view name) {
    return Invoke(object, name, DISPATCH_PROPERTYGET, {});
}

// The system's narrow text of a status, or "0x%08X" when it has none.
std::string StatusText(HRESULT status);

// Makes the object registered under a ProgID and asks it for IDispatch; throws ComCallError.
Microsoft::WRL::ComPtr<IDispatch> CreateDispatchByProgId(const wchar_t* progId);

}  // namespace ZelCommon::Win32
