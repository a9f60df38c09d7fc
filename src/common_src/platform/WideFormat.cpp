#include "common_src/platform/WideFormat.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Text {
namespace {

// Widths and precisions beyond this are clamped, so a damaged format cannot exhaust memory.
constexpr int kMaxWidth = 100000;
constexpr int kMaxFloatPrecision = 500;

struct Directive {
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1;
    unsigned intBits = 32;
    // 'h' asks for narrow text and characters, 'l' or 'w' for wide ones; 0 takes the conversion's
    // own meaning.
    char textWidth = 0;
};

class ArgReader {
public:
    explicit ArgReader(std::span<const FormatArg> args) : m_args(args) {}
    const FormatArg* Next() { return m_next < m_args.size() ? &m_args[m_next++] : nullptr; }

private:
    std::span<const FormatArg> m_args;
    size_t m_next = 0;
};

bool IsInteger(const FormatArg* arg) {
    return arg != nullptr &&
           (arg->kind() == FormatArg::Kind::Signed || arg->kind() == FormatArg::Kind::Unsigned ||
            arg->kind() == FormatArg::Kind::Pointer);
}

uint64_t RawBits(const FormatArg& arg) {
    return arg.kind() == FormatArg::Kind::Signed ? static_cast<uint64_t>(arg.signedValue())
                                                 : arg.unsignedValue();
}

uint64_t Truncate(uint64_t value, unsigned bits) {
    return bits >= 64 ? value : value & ((uint64_t{1} << bits) - 1);
}

int64_t SignExtend(uint64_t value, unsigned bits) {
    if (bits >= 64) {
        return static_cast<int64_t>(value);
    }
    const uint64_t sign = uint64_t{1} << (bits - 1);
    return static_cast<int64_t>((value ^ sign) - sign);
}

int StarValue(const FormatArg* arg) {
    if (!IsInteger(arg)) {
        return 0;
    }
    const int64_t v = SignExtend(Truncate(RawBits(*arg), 32), 32);
    return static_cast<int>(v);
}

int ClampWidth(int64_t value) {
    return value > kMaxWidth ? kMaxWidth : static_cast<int>(value);
}

// Lays out [prefix][zeros][body] in the field, the way the Windows runtime pads: the '0' flag
// pads every conversion (text too) with zeros after the sign or base prefix.
void Emit(std::wstring& out, const Directive& directive, std::wstring_view prefix,
          std::wstring_view body) {
    const size_t used = prefix.size() + body.size();
    const size_t width = static_cast<size_t>(directive.width);
    const size_t pad = width > used ? width - used : 0;
    if (directive.left) {
        out.append(prefix);
        out.append(body);
        out.append(pad, L' ');
    } else if (directive.zero) {
        out.append(prefix);
        out.append(pad, L'0');
        out.append(body);
    } else {
        out.append(pad, L' ');
        out.append(prefix);
        out.append(body);
    }
}

void EmitInteger(std::wstring& out, const Directive& directive, wchar_t conversion,
                 const FormatArg& arg) {
    const uint64_t bits = Truncate(RawBits(arg), directive.intBits);
    const bool isSigned = conversion == L'd' || conversion == L'i';
    bool negative = false;
    uint64_t magnitude = bits;
    if (isSigned) {
        const int64_t value = SignExtend(bits, directive.intBits);
        negative = value < 0;
        magnitude = negative ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    }

    // Room for 64 bits in octal plus the leading zeros of any precision that still fits.
    wchar_t digits[160];
    wchar_t* const end = digits + sizeof(digits) / sizeof(digits[0]);
    wchar_t* p = end;
    const wchar_t* const alphabet = conversion == L'X' ? L"0123456789ABCDEF" : L"0123456789abcdef";
    const bool hex = conversion == L'x' || conversion == L'X';
    if (hex) {
        for (uint64_t v = magnitude; v != 0; v >>= 4) {
            *--p = alphabet[v & 15];
        }
    } else if (conversion == L'o') {
        for (uint64_t v = magnitude; v != 0; v >>= 3) {
            *--p = alphabet[v & 7];
        }
    } else {
        for (uint64_t v = magnitude; v != 0; v /= 10) {
            *--p = alphabet[v % 10];
        }
    }
    const size_t precision = directive.precision < 0 ? 1 : static_cast<size_t>(directive.precision);
    size_t length = static_cast<size_t>(end - p);
    const bool octalMark =
        conversion == L'o' && directive.alternate && length >= precision && length > 0;
    const size_t wanted = octalMark ? length + 1 : std::max(length, precision);

    std::wstring_view prefix;
    if (isSigned) {
        prefix = negative ? L"-" : directive.plus ? L"+" : directive.space ? L" " : L"";
    } else if (directive.alternate && magnitude != 0 && hex) {
        prefix = conversion == L'X' ? L"0X" : L"0x";
    }
    if (wanted <= static_cast<size_t>(p - digits) + length) {
        while (length < wanted) {
            *--p = L'0';
            ++length;
        }
        Emit(out, directive, prefix, std::wstring_view(p, length));
    } else {
        std::wstring padded(wanted - length, L'0');
        padded.append(p, length);
        Emit(out, directive, prefix, padded);
    }
}

// Older Windows runtimes print infinities and NaNs as "1.#INF", "1.#QNAN", "-1.#IND", treating
// the letters as if they were digits: precision cuts and even "rounds" them ("%.2f" gives
// "1.#J").
std::string SpecialDigits(double value, int precision, char conversion) {
    const char* letters = "#INF";
    if (std::isnan(value)) {
        uint64_t raw = 0;
        std::memcpy(&raw, &value, sizeof(raw));
        const bool quiet = (raw & 0x0008000000000000ull) != 0;
        letters = raw == 0xFFF8000000000000ull ? "#IND" : quiet ? "#QNAN" : "#SNAN";
    }
    const std::string all = std::string("1") + letters;
    const bool general = conversion == 'g' || conversion == 'G';
    size_t keep = 0;  // characters kept after the leading '1'
    if (general) {
        // Unlike finite values, a zero precision shows the whole text here.
        const size_t significant = precision == 0 ? all.size() : static_cast<size_t>(precision);
        keep = std::min(significant, all.size()) - 1;
    } else {
        keep = static_cast<size_t>(precision);
    }
    std::string tail = all.substr(1, std::min(keep, all.size() - 1));
    if (!tail.empty() && keep < all.size() - 1 && all[keep + 1] >= '5') {
        tail.back() = static_cast<char>(tail.back() + 1);
    }
    if (!general && tail.size() < keep) {
        tail.append(keep - tail.size(), '0');
    }
    std::string text = tail.empty() ? std::string("1") : "1." + tail;
    if (conversion == 'e' || conversion == 'E') {
        text += conversion;
        text += "+000";
    }
    return text;
}

// Windows runtimes print at least three exponent digits ("1e+020").
void WidenExponent(char* text, size_t& length, size_t capacity) {
    char* e = std::strpbrk(text, "eE");
    if (e == nullptr || e[1] == '\0') {
        return;
    }
    char* digits = e + 2;
    const size_t count = length - static_cast<size_t>(digits - text);
    if (count >= 3 || length + (3 - count) >= capacity) {
        return;
    }
    const size_t add = 3 - count;
    std::memmove(digits + add, digits, count + 1);
    std::memset(digits, '0', add);
    length += add;
}

// Whether `magnitude` lies exactly halfway between two values with `position` decimals
// (negative: rounding inside the integer part). That holds when magnitude * 10^position * 2 is an
// odd integer, which the binary mantissa and exponent answer exactly.
bool IsExactTie(double magnitude, int position) {
    if (magnitude == 0.0 || position > 1100 || position < -22) {
        return false;
    }
    int exponent = 0;
    const double fraction = std::frexp(magnitude, &exponent);
    auto mantissa = static_cast<uint64_t>(std::ldexp(fraction, 53));
    int lowBit = exponent - 53;
    while ((mantissa & 1) == 0) {
        mantissa >>= 1;
        ++lowBit;
    }
    if (lowBit != -(position + 1)) {
        return false;
    }
    uint64_t fives = 1;
    for (int i = position; i < 0; ++i) {
        fives *= 5;
    }
    return mantissa % fives == 0;
}

int DecimalExponent(double magnitude) {
    char text[40];
    std::snprintf(text, sizeof(text), "%.16e", magnitude);
    const char* e = std::strchr(text, 'e');
    return e == nullptr ? 0 : std::atoi(e + 1);
}

// The Windows runtime rounds an exact tie away from zero where glibc rounds it to even; nudging
// the value a hair up makes glibc pick the same digits.
double RoundTiesAway(double magnitude, int precision, char conversion) {
    if (magnitude == 0.0) {
        return magnitude;
    }
    int position = precision;
    if (conversion == 'e' || conversion == 'E') {
        position = precision - DecimalExponent(magnitude);
    } else if (conversion == 'g' || conversion == 'G') {
        position = std::max(precision, 1) - 1 - DecimalExponent(magnitude);
    }
    return IsExactTie(magnitude, position)
               ? std::nextafter(magnitude, std::numeric_limits<double>::infinity())
               : magnitude;
}

void EmitDouble(std::wstring& out, const Directive& directive, wchar_t conversion, double value) {
    const bool negative = std::signbit(value);
    const double magnitude = std::fabs(value);
    int precision = directive.precision < 0 ? 6 : std::min(directive.precision, kMaxFloatPrecision);
    const char narrowConversion = static_cast<char>(conversion);

    char buffer[1024];
    size_t length = 0;
    if (!std::isfinite(value)) {
        const std::string special = SpecialDigits(value, precision, narrowConversion);
        length = std::min(special.size(), sizeof(buffer) - 1);
        std::memcpy(buffer, special.data(), length);
        buffer[length] = '\0';
    } else {
        char format[8] = "%";
        size_t f = 1;
        if (directive.alternate) {
            format[f++] = '#';
        }
        format[f++] = '.';
        format[f++] = '*';
        format[f++] = narrowConversion;
        format[f] = '\0';
        // The format is built from a fixed set of letters above.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        const int written = std::snprintf(buffer, sizeof(buffer), format, precision,
                                          RoundTiesAway(magnitude, precision, narrowConversion));
#pragma GCC diagnostic pop
        if (written < 0) {
            return;
        }
        length = std::min(static_cast<size_t>(written), sizeof(buffer) - 1);
        WidenExponent(buffer, length, sizeof(buffer));
    }

    wchar_t wide[1024];
    for (size_t i = 0; i < length; ++i) {
        wide[i] = static_cast<wchar_t>(static_cast<unsigned char>(buffer[i]));
    }
    const std::wstring_view prefix = negative          ? L"-"
                                     : directive.plus  ? L"+"
                                     : directive.space ? L" "
                                                       : L"";
    Emit(out, directive, prefix, std::wstring_view(wide, length));
}

void EmitText(std::wstring& out, const Directive& directive, std::wstring_view text) {
    if (directive.precision >= 0 && text.size() > static_cast<size_t>(directive.precision)) {
        text = text.substr(0, static_cast<size_t>(directive.precision));
    }
    Emit(out, directive, {}, text);
}

void EmitNarrowText(std::wstring& out, const Directive& directive, std::string_view text) {
    bool ascii = true;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x80) {
            ascii = false;
            break;
        }
    }
    if (!ascii) {
        EmitText(out, directive, Utf8ToWide(text));
        return;
    }
    if (directive.precision >= 0 && text.size() > static_cast<size_t>(directive.precision)) {
        text = text.substr(0, static_cast<size_t>(directive.precision));
    }
    wchar_t small[256];
    if (text.size() <= sizeof(small) / sizeof(small[0])) {
        for (size_t i = 0; i < text.size(); ++i) {
            small[i] = static_cast<wchar_t>(text[i]);
        }
        Emit(out, directive, {}, std::wstring_view(small, text.size()));
    } else {
        Emit(out, directive, {}, std::wstring(text.begin(), text.end()));
    }
}

// A character is the low 16 bits (wide) or the low byte (narrow, read as Latin-1), as a 16-bit
// wchar_t on Windows holds it.
void EmitCharacter(std::wstring& out, const Directive& directive, bool narrow,
                   const FormatArg& arg) {
    if (directive.precision == 0) {
        Emit(out, directive, {}, {});
        return;
    }
    const uint64_t bits = Truncate(RawBits(arg), narrow ? 8 : 16);
    const wchar_t c = static_cast<wchar_t>(bits);
    Emit(out, directive, {}, std::wstring_view(&c, 1));
}

int ParseNumber(std::wstring_view format, size_t& i) {
    int64_t value = 0;
    while (i < format.size() && format[i] >= L'0' && format[i] <= L'9') {
        value = std::min<int64_t>(value * 10 + (format[i] - L'0'), kMaxWidth + 1);
        ++i;
    }
    return ClampWidth(value);
}

bool IsIntegerConversion(wchar_t c) {
    return c == L'd' || c == L'i' || c == L'u' || c == L'o' || c == L'x' || c == L'X' || c == L'p';
}

bool StartsWith(std::wstring_view format, size_t i, std::wstring_view what) {
    return format.substr(i, what.size()) == what;
}

// Reads the length prefix at `i`; false when the conversion turns out to be the 'I' itself.
bool ParseLength(std::wstring_view format, size_t& i, Directive& directive) {
    constexpr unsigned kPointerBits = sizeof(void*) * 8;
    while (i < format.size()) {
        const wchar_t c = format[i];
        if (c == L'h') {
            directive.intBits = 16;
            directive.textWidth = 'h';
            ++i;
        } else if (c == L'l') {
            if (StartsWith(format, i, L"ll")) {
                directive.intBits = 64;
                i += 2;
            } else {
                directive.intBits = 32;
                ++i;
            }
            directive.textWidth = 'l';
        } else if (c == L'w') {
            directive.intBits = 32;
            directive.textWidth = 'l';
            ++i;
        } else if (c == L'L' || c == L'j') {
            directive.intBits = 64;
            ++i;
        } else if (c == L'z' || c == L't') {
            directive.intBits = kPointerBits;
            ++i;
        } else if (c == L'I') {
            if (StartsWith(format, i, L"I64")) {
                directive.intBits = 64;
                i += 3;
            } else if (StartsWith(format, i, L"I32")) {
                directive.intBits = 32;
                i += 3;
            } else if (i + 1 < format.size() && IsIntegerConversion(format[i + 1])) {
                directive.intBits = kPointerBits;
                ++i;
            } else {
                return false;
            }
        } else {
            return true;
        }
    }
    return true;
}

}  // namespace

std::wstring FormatV(std::wstring_view format, std::span<const FormatArg> args) {
    std::wstring out;
    out.reserve(format.size() + 16 * args.size());
    ArgReader reader(args);
    size_t i = 0;
    while (i < format.size()) {
        const size_t percent = format.find(L'%', i);
        if (percent == std::wstring_view::npos) {
            out.append(format.substr(i));
            break;
        }
        out.append(format.substr(i, percent - i));
        i = percent + 1;

        Directive directive;
        for (; i < format.size(); ++i) {
            const wchar_t c = format[i];
            if (c == L'-') {
                directive.left = true;
            } else if (c == L'+') {
                directive.plus = true;
            } else if (c == L' ') {
                directive.space = true;
            } else if (c == L'#') {
                directive.alternate = true;
            } else if (c == L'0') {
                directive.zero = true;
            } else {
                break;
            }
        }
        if (i < format.size() && format[i] == L'*') {
            const int star = StarValue(reader.Next());
            if (star < 0) {
                directive.left = true;
                directive.width = ClampWidth(-static_cast<int64_t>(star));
            } else {
                directive.width = ClampWidth(star);
            }
            ++i;
        } else {
            directive.width = ParseNumber(format, i);
        }
        if (i < format.size() && format[i] == L'.') {
            ++i;
            if (i < format.size() && format[i] == L'*') {
                const int star = StarValue(reader.Next());
                directive.precision = star < 0 ? -1 : ClampWidth(star);
                ++i;
            } else {
                directive.precision = ParseNumber(format, i);
            }
        }
        if (directive.left) {
            directive.zero = false;
        }
        if (!ParseLength(format, i, directive)) {
            out.push_back(L'I');
            ++i;
            continue;
        }
        if (i >= format.size()) {
            break;
        }
        const wchar_t conversion = format[i++];
        switch (conversion) {
            case L'%':
                out.push_back(L'%');
                break;
            case L'd':
            case L'i':
            case L'u':
            case L'o':
            case L'x':
            case L'X': {
                const FormatArg* arg = reader.Next();
                if (IsInteger(arg)) {
                    EmitInteger(out, directive, conversion, *arg);
                }
                break;
            }
            case L'p': {
                const FormatArg* arg = reader.Next();
                if (IsInteger(arg)) {
                    Directive pointer = directive;
                    pointer.intBits = sizeof(void*) * 8;
                    pointer.precision = static_cast<int>(sizeof(void*) * 2);
                    EmitInteger(out, pointer, L'X', *arg);
                }
                break;
            }
            case L'e':
            case L'E':
            case L'f':
            case L'g':
            case L'G': {
                const FormatArg* arg = reader.Next();
                if (arg != nullptr && arg->kind() == FormatArg::Kind::Double) {
                    EmitDouble(out, directive, conversion, arg->doubleValue());
                }
                break;
            }
            case L's':
            case L'S': {
                const FormatArg* arg = reader.Next();
                const bool narrow =
                    directive.textWidth == 'h' || (directive.textWidth == 0 && conversion == L'S');
                if (arg == nullptr) {
                    break;
                }
                if (narrow && arg->kind() == FormatArg::Kind::NarrowText) {
                    EmitNarrowText(out, directive, arg->narrow());
                } else if (!narrow && arg->kind() == FormatArg::Kind::WideText) {
                    EmitText(out, directive, arg->wide());
                }
                break;
            }
            case L'c':
            case L'C': {
                const FormatArg* arg = reader.Next();
                const bool narrow =
                    directive.textWidth == 'h' || (directive.textWidth == 0 && conversion == L'C');
                if (IsInteger(arg)) {
                    EmitCharacter(out, directive, narrow, *arg);
                }
                break;
            }
            case L'F':
                // The older runtimes know no %F; they consume the argument and print nothing.
                reader.Next();
                break;
            default:
                out.push_back(conversion);
                break;
        }
    }
    return out;
}

}  // namespace ZelCommon::Text
