#include "common_src/ZelCommon/ProfileDocument.h"

#include <cstdint>

#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage::ProfileFile {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeBom = "\xFF\xFE";
constexpr std::string_view kUtf16BeBom = "\xFE\xFF";

std::string SwapByteOrder(std::string_view bytes) {
    std::string out(bytes.substr(0, bytes.size() & ~size_t{1}));
    for (size_t i = 0; i + 1 < out.size(); i += 2) {
        std::swap(out[i], out[i + 1]);
    }
    return out;
}

std::wstring DecodeText(std::string_view bytes, Encoding& encoding) {
    if (bytes.starts_with(kUtf8Bom)) {
        encoding = Encoding::Utf8;
        return Text::Utf8ToWide(bytes.substr(kUtf8Bom.size()));
    }
    if (bytes.starts_with(kUtf16LeBom)) {
        encoding = Encoding::Utf16Le;
        return Text::Utf16LeToWide(bytes.substr(kUtf16LeBom.size()));
    }
    if (bytes.starts_with(kUtf16BeBom)) {
        encoding = Encoding::Utf16Be;
        return Text::Utf16LeToWide(SwapByteOrder(bytes.substr(kUtf16BeBom.size())));
    }
    encoding = Encoding::Ansi;
    return AnsiToWide(bytes);
}

// Names and values are C strings to the profile functions: an embedded zero ends them.
std::wstring UpToZero(std::wstring_view text) {
    const size_t zero = text.find(L'\0');
    return std::wstring(zero == std::wstring_view::npos ? text : text.substr(0, zero));
}

std::wstring_view TrimEnd(std::wstring_view text) {
    while (!text.empty() && IsProfileSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool IsLineBreak(wchar_t c) {
    return c == L'\n' || c == L'\r';
}

void AddLine(Document& document, std::wstring_view line, bool& lastNameEmpty, bool& haveLast) {
    if (line.front() == L'[') {
        const size_t close = line.rfind(L']');
        if (close != std::wstring_view::npos && close > 0) {
            document.sections.push_back(
                MakeSection(UpToZero(TrimProfileSpaces(line.substr(1, close - 1)))));
            haveLast = false;
            return;
        }
    }
    std::wstring_view name = line;
    std::optional<std::wstring> value;
    const size_t equals = line.find(L'=');
    if (equals != std::wstring_view::npos) {
        name = TrimEnd(line.substr(0, equals));
        value = UpToZero(TrimLeadingProfileSpaces(line.substr(equals + 1)));
    }
    // A second nameless line in a row is dropped, as the profile functions do.
    if (name.empty() && haveLast && lastNameEmpty) {
        return;
    }
    Entry entry = MakeEntry(UpToZero(name), std::move(value));
    lastNameEmpty = entry.name.empty();
    haveLast = true;
    document.sections.back().entries.push_back(std::move(entry));
}

void AppendEncoded(std::string& out, std::wstring_view text, Encoding encoding) {
    switch (encoding) {
        case Encoding::Ansi:
            out += WideToAnsi(text);
            break;
        case Encoding::Utf8:
            out += Text::WideToUtf8(text);
            break;
        case Encoding::Utf16Le:
            out += Text::WideToUtf16Le(text);
            break;
        case Encoding::Utf16Be:
            out += SwapByteOrder(Text::WideToUtf16Le(text));
            break;
    }
}

}  // namespace

bool IsProfileSpace(wchar_t c) {
    return (c >= 0x09 && c <= 0x0D) || c == 0x1A || c == 0x20;
}

std::wstring_view TrimLeadingProfileSpaces(std::wstring_view text) {
    while (!text.empty() && IsProfileSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

std::wstring_view TrimProfileSpaces(std::wstring_view text) {
    return TrimEnd(TrimLeadingProfileSpaces(text));
}

// Only ASCII letters match regardless of case: the Win32 functions tell "\u00C4" from
// "\u00E4" in section and key names.
std::wstring FoldCase(std::wstring_view text) {
    std::wstring folded(text);
    for (wchar_t& c : folded) {
        if (c >= L'A' && c <= L'Z') {
            c = static_cast<wchar_t>(c + (L'a' - L'A'));
        }
    }
    return folded;
}

Entry MakeEntry(std::wstring name, std::optional<std::wstring> value) {
    Entry entry;
    entry.folded = FoldCase(name);
    entry.name = std::move(name);
    entry.value = std::move(value);
    return entry;
}

Section MakeSection(std::wstring name) {
    Section section;
    section.folded = FoldCase(name);
    section.name = std::move(name);
    return section;
}

Document ParseDocument(std::string_view bytes) {
    Document document;
    document.sections.push_back(MakeSection(std::wstring()));
    document.hasContent = !bytes.empty();
    const std::wstring text = DecodeText(bytes, document.encoding);
    const std::wstring_view all(text);
    bool lastNameEmpty = false;
    bool haveLast = false;
    size_t position = 0;
    while (position < all.size()) {
        size_t end = position;
        while (end < all.size() && !IsLineBreak(all[end])) {
            ++end;
        }
        const std::wstring_view line = TrimProfileSpaces(all.substr(position, end - position));
        while (end < all.size() && IsLineBreak(all[end])) {
            ++end;
        }
        position = end;
        if (!line.empty()) {
            AddLine(document, line, lastNameEmpty, haveLast);
        }
    }
    return document;
}

std::string SerializeDocument(const Document& document) {
    std::wstring text;
    for (const Section& section : document.sections) {
        if (!section.name.empty()) {
            text += L'[';
            text += section.name;
            text += L"]\r\n";
        }
        for (const Entry& entry : section.entries) {
            text += entry.name;
            if (entry.value) {
                text += L'=';
                text += *entry.value;
            }
            text += L"\r\n";
        }
    }
    std::string out;
    switch (document.encoding) {
        case Encoding::Ansi:
            break;
        case Encoding::Utf8:
            out = kUtf8Bom;
            break;
        case Encoding::Utf16Le:
            out = kUtf16LeBom;
            break;
        case Encoding::Utf16Be:
            out = kUtf16BeBom;
            break;
    }
    AppendEncoded(out, text, document.encoding);
    return out;
}

}  // namespace ZelCommon::Storage::ProfileFile
