#include "lists/SenderCsv.h"

#include "common_src/platform/TextCodec.h"

namespace Orva::Lists {

std::wstring CsvField(std::wstring_view value) {
    if (value.find_first_of(L",\"") == std::wstring_view::npos &&
        value == ZelCommon::Text::TrimBlanks(value)) {
        return std::wstring(value);
    }
    std::wstring quoted = L"\"";
    for (const wchar_t c : value) {
        quoted += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
    }
    return quoted + L"\"";
}

std::optional<std::vector<std::wstring>> CsvFields(std::wstring_view line) {
    std::vector<std::wstring> fields(1);
    bool quoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
        const wchar_t c = line[i];
        if (quoted) {
            if (c == L'"' && i + 1 < line.size() && line[i + 1] == L'"') {
                fields.back() += L'"';
                ++i;
            } else if (c == L'"') {
                quoted = false;
            } else {
                fields.back() += c;
            }
        } else if (c == L'"') {
            quoted = true;
        } else if (c == L',') {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    if (quoted) {
        return std::nullopt;
    }
    return fields;
}

}  // namespace Orva::Lists
