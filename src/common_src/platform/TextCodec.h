#pragma once

#include <string>
#include <string_view>

namespace ZelCommon::Text {

// UTF-8 and UTF-16 conversions of in-memory wide text (UTF-16 on Windows, UTF-32 on Linux).
// Invalid input never fails: each bad sequence becomes U+FFFD.
std::wstring Utf8ToWide(std::string_view utf8);
std::string WideToUtf8(std::wstring_view wide);
std::wstring Utf16LeToWide(std::string_view bytes);  // bytes without the byte-order mark
std::string WideToUtf16Le(std::wstring_view wide);   // no byte-order mark written

// The system ANSI code page (CP_ACP) on Windows; UTF-8 natively.
std::string WideToAnsi(std::wstring_view wide);

// Lower-casing of wide text as the add-in's keys use it (Unicode simple case mapping on Windows,
// at least the Latin-1 and ASCII ranges natively).
std::wstring ToLower(std::wstring_view text);

// The text without the blanks " \t\r\n" at either end.
std::wstring_view TrimBlanks(std::wstring_view text);

}  // namespace ZelCommon::Text
