#pragma once

#include <windows.h>

#include <utility>

namespace ZelCommon::Platform {

namespace UniqueAnyDetail {

template <class T>
constexpr bool IsNull(T value) noexcept {
    return value == T{};
}

// CreateFileW and a few others give INVALID_HANDLE_VALUE where the rest give null.
inline bool IsNoHandle(HANDLE handle) noexcept {
    return handle == nullptr || handle == INVALID_HANDLE_VALUE;
}

// Window classes registered by the executable, as the tests and the simulated agent register
// them.
inline void UnregisterClassOfProcess(ATOM atom) noexcept {
    ::UnregisterClassW(MAKEINTATOM(atom), ::GetModuleHandleW(nullptr));
}

template <class T>
void DeleteGdiObject(T object) noexcept {
    ::DeleteObject(object);
}

inline void DeleteMemoryDc(HDC dc) noexcept {
    ::DeleteDC(dc);
}

}  // namespace UniqueAnyDetail

// Owns one Win32 resource and frees it with `Close` when the owner goes, in the manner of WIL's
// unique_any (which does not build with mingw-w64). `IsNone` tells the values that own nothing.
// Move-only.
template <class T, auto Close, auto IsNone = &UniqueAnyDetail::IsNull<T>>
class unique_any {
public:
    unique_any() noexcept = default;
    explicit unique_any(T value) noexcept : m_value(value) {}
    unique_any(unique_any&& other) noexcept : m_value(other.release()) {}
    unique_any& operator=(unique_any&& other) noexcept {
        reset(other.release());
        return *this;
    }
    unique_any(const unique_any&) = delete;
    unique_any& operator=(const unique_any&) = delete;
    ~unique_any() { reset(); }

    T get() const noexcept { return m_value; }
    explicit operator bool() const noexcept { return !IsNone(m_value); }

    // Hands the value over without freeing it.
    T release() noexcept { return std::exchange(m_value, T{}); }
    // Frees what is owned, then owns `value`.
    void reset(T value = T{}) noexcept {
        const T old = std::exchange(m_value, value);
        if (!IsNone(old)) {
            Close(old);
        }
    }
    // For a function's out-parameter: frees what is owned and gives the place of the value.
    T* put() noexcept {
        reset();
        return &m_value;
    }

private:
    T m_value{};
};

// Kernel objects: processes, threads, events, files.
using unique_handle = unique_any<HANDLE, &::CloseHandle, &UniqueAnyDetail::IsNoHandle>;
using unique_hkey = unique_any<HKEY, &::RegCloseKey>;
using unique_hmodule = unique_any<HMODULE, &::FreeLibrary>;
// LocalAlloc'd memory handed out by the system, typed as the function hands it out.
template <class T>
using unique_hlocal_ptr = unique_any<T*, &::LocalFree>;
using unique_hlocal = unique_hlocal_ptr<void>;
using unique_hwnd = unique_any<HWND, &::DestroyWindow>;
using unique_window_class = unique_any<ATOM, &UniqueAnyDetail::UnregisterClassOfProcess>;
// GDI objects a window creates for its own drawing, and the memory contexts it draws them in.
using unique_hfont = unique_any<HFONT, &UniqueAnyDetail::DeleteGdiObject<HFONT>>;
using unique_hbrush = unique_any<HBRUSH, &UniqueAnyDetail::DeleteGdiObject<HBRUSH>>;
using unique_hbitmap = unique_any<HBITMAP, &UniqueAnyDetail::DeleteGdiObject<HBITMAP>>;
using unique_hpen = unique_any<HPEN, &UniqueAnyDetail::DeleteGdiObject<HPEN>>;
using unique_hdc = unique_any<HDC, &UniqueAnyDetail::DeleteMemoryDc>;

}  // namespace ZelCommon::Platform
