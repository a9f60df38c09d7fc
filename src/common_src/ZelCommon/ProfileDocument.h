#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZelCommon::Storage::ProfileFile {

enum class Encoding { Ansi, Utf8, Utf16Le, Utf16Be };

// One line of a section: "name=value", or a bare name (a comment, or text without '='), whose
// value is then absent. `folded` is the name lower-cased for case-blind comparison.
struct Entry {
    std::wstring name;
    std::wstring folded;
    std::optional<std::wstring> value;
};

struct Section {
    std::wstring name;
    std::wstring folded;
    std::vector<Entry> entries;
};

// A parsed profile file. The first section is the nameless one that holds the lines before the
// first header; it is always present.
struct Document {
    Encoding encoding = Encoding::Ansi;
    // False for an empty or missing file: the profile functions then see no section at all, not
    // even the nameless one.
    bool hasContent = false;
    std::vector<Section> sections;
};

// Blanks as the profile functions trim them: tab to carriage return, space and the DOS end of
// file character (^Z).
bool IsProfileSpace(wchar_t c);
std::wstring_view TrimProfileSpaces(std::wstring_view text);
std::wstring_view TrimLeadingProfileSpaces(std::wstring_view text);
std::wstring FoldCase(std::wstring_view text);

Document ParseDocument(std::string_view bytes);
// The file as the profile functions write it: every line trimmed and ending CR LF, blank lines
// dropped, in the document's encoding with its byte-order mark.
std::string SerializeDocument(const Document& document);

Entry MakeEntry(std::wstring name, std::optional<std::wstring> value);
Section MakeSection(std::wstring name);

}  // namespace ZelCommon::Storage::ProfileFile
