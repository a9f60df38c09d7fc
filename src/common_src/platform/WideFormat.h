#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace ZelCommon::Text {

// One argument of a printf-style format, captured with its type so that formatting is safe and
// gives the same text on every platform.
class FormatArg {
public:
    enum class Kind { Signed, Unsigned, Double, WideText, NarrowText, Pointer };

    template <class T>
    requires(std::is_integral_v<T> && !std::is_same_v<T, bool> && std::is_signed_v<T>)
        FormatArg(T v)
        : m_kind(Kind::Signed), m_signed(v), m_bytes(sizeof(T)) {}  // NOLINT
    template <class T>
    requires(std::is_integral_v<T> && !std::is_same_v<T, bool> && std::is_unsigned_v<T>)
        FormatArg(T v)
        : m_kind(Kind::Unsigned), m_unsigned(v), m_bytes(sizeof(T)) {}  // NOLINT
    FormatArg(bool v)
        : m_kind(Kind::Signed), m_signed(v ? 1 : 0), m_bytes(sizeof(int)) {}            // NOLINT
    FormatArg(double v) : m_kind(Kind::Double), m_double(v) {}                          // NOLINT
    FormatArg(const wchar_t* v) : m_kind(Kind::WideText), m_wide(v ? v : L"(null)") {}  // NOLINT
    FormatArg(const std::wstring& v) : m_kind(Kind::WideText), m_wide(v) {}             // NOLINT
    FormatArg(std::wstring_view v) : m_kind(Kind::WideText), m_wide(v) {}               // NOLINT
    FormatArg(const char* v) : m_kind(Kind::NarrowText), m_narrow(v ? v : "(null)") {}  // NOLINT
    FormatArg(const std::string& v) : m_kind(Kind::NarrowText), m_narrow(v) {}          // NOLINT
    FormatArg(const void* v)                                                            // NOLINT
        : m_kind(Kind::Pointer),
          m_unsigned(reinterpret_cast<std::uintptr_t>(v)),
          m_bytes(sizeof(v)) {}

    Kind kind() const { return m_kind; }
    int64_t signedValue() const { return m_signed; }
    uint64_t unsignedValue() const { return m_unsigned; }
    unsigned byteSize() const { return m_bytes; }
    double doubleValue() const { return m_double; }
    std::wstring_view wide() const { return m_wide; }
    std::string_view narrow() const { return m_narrow; }

private:
    Kind m_kind;
    int64_t m_signed = 0;
    uint64_t m_unsigned = 0;
    unsigned m_bytes = 0;
    double m_double = 0;
    std::wstring_view m_wide;
    std::string_view m_narrow;
};

// Formats with the meaning the Windows C runtime (msvcrt) gives a wide format string, on every
// platform: %s is a wide string and %S a narrow one (%ls and %hs say so explicitly), %c a wide
// character and %C a narrow one; d i u x X o p with the h, hh, l, ll, w, I, I32, I64, z length
// prefixes, integers cut to the size the prefix names (l is 32 bits, hh is 16 as in msvcrt);
// e E f g G with three exponent digits, exact ties rounded away from zero and "1.#INF"-style
// infinities; flags - + space # 0 (0 pads text too), width and precision (also *). Narrow text
// is decoded as UTF-8. An argument that does not fit its conversion, or a missing one, prints
// nothing; an unknown conversion prints its letter alone. Widths are clamped at 100000.
std::wstring FormatV(std::wstring_view format, std::span<const FormatArg> args);

template <class... Args>
std::wstring Format(std::wstring_view format, const Args&... args) {
    if constexpr (sizeof...(Args) == 0) {
        return FormatV(format, {});
    } else {
        const FormatArg list[] = {FormatArg(args)...};
        return FormatV(format, list);
    }
}

}  // namespace ZelCommon::Text
