#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"

namespace Orva::Settings {

struct StringTableEntry {
    std::wstring id;
    std::wstring text;  // as stored, escapes not yet expanded
};

// The entries of one section of a string table, in file order; nothing when the file cannot be
// read or lacks the section.
std::optional<std::vector<StringTableEntry>> ReadStringTableSection(
    ZelCommon::Storage::IProfileApi& api, const std::wstring& file, const std::wstring& section);

struct PlaceholderUse {
    std::wstring id;
    std::wstring placeholder;
};

// What is wrong with one locale's table.
struct StringTableFindings {
    std::vector<std::wstring> missingIds;         // required ids without a text
    std::vector<std::wstring> missingFromLocale;  // ids of the reference table absent here
    std::vector<PlaceholderUse> unknownPlaceholders;
    // Ids whose printf conversions ("%d", "%s") differ from the reference table's: the caller
    // formats the text with the same arguments whatever the language.
    std::vector<std::wstring> conversionMismatches;

    bool Complete() const {
        return missingIds.empty() && missingFromLocale.empty() && unknownPlaceholders.empty() &&
               conversionMismatches.empty();
    }
};

// Checks `table` against the ids the add-in loads and, when given, the reference locale's table.
StringTableFindings CheckStringTable(std::span<const StringTableEntry> table,
                                     std::span<const std::wstring_view> requiredIds,
                                     const std::vector<StringTableEntry>* reference);

// The "<$...>" placeholders of a text, in order.
std::vector<std::wstring> PlaceholdersIn(std::wstring_view text);
// The printf conversions of a text ("%d", "%s"; "%%" is none), in order.
std::vector<std::wstring> ConversionsIn(std::wstring_view text);

}  // namespace Orva::Settings
