#pragma once

#include <oaidl.h>
#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

namespace ZelCommon::Win32 {

// A VARIANT that clears what it holds.
class unique_variant {
public:
    unique_variant() { ::VariantInit(&m_value); }
    ~unique_variant() { ::VariantClear(&m_value); }
    unique_variant(unique_variant&& other) noexcept : unique_variant() {
        std::swap(m_value, other.m_value);
    }
    unique_variant& operator=(unique_variant&& other) noexcept {
        std::swap(m_value, other.m_value);
        return *this;
    }
    unique_variant(const unique_variant&) = delete;
    unique_variant& operator=(const unique_variant&) = delete;

    const VARIANT& get() const { return m_value; }
    VARIANT* put() {
        ::VariantClear(&m_value);
        return &m_value;
    }

private:
    VARIANT m_value;
};

// One argument of a late-bound call, owning its string.
class DispatchArg {
public:
    DispatchArg(int32_t value);
    DispatchArg(uint64_t value);
    DispatchArg(bool value);
    DispatchArg(const std::wstring& value);
    DispatchArg(const wchar_t* value) : DispatchArg(std::wstring(value)) {}

    const VARIANT& get() const { return m_value.get(); }

private:
    unique_variant m_value;
};

// What a call returned: its status, the object's own description of a failure (when it gave
// one), and the result.
struct DispatchResult {
    HRESULT status = E_FAIL;
    std::wstring description;
    unique_variant value;

    bool Succeeded() const { return SUCCEEDED(status); }
};

// Calls the member `name` of an automation object through its IDispatch, the member's id asked
// of the object by name, the arguments in their declared order. Never throws.
DispatchResult CallMethod(IDispatch& object, const wchar_t* name,
                          std::initializer_list<DispatchArg> args = {});
DispatchResult GetProperty(IDispatch& object, const wchar_t* name);

// The value as the type asked for, when the variant converts to it.
std::optional<int32_t> AsInt32(const VARIANT& value);
std::optional<uint64_t> AsUInt64(const VARIANT& value);
std::optional<std::wstring> AsString(const VARIANT& value);

}  // namespace ZelCommon::Win32
