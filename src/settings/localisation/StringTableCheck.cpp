#include "settings/localisation/StringTableCheck.h"

#include <algorithm>

#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/TextCodec.h"
#include "settings/localisation/Placeholders.h"

namespace Orva::Settings {
namespace {

const StringTableEntry* Find(std::span<const StringTableEntry> table, std::wstring_view id) {
    // Ids are ini keys, which the profile functions compare without regard to case.
    const std::wstring wanted = ZelCommon::Text::ToLower(id);
    for (const StringTableEntry& entry : table) {
        if (ZelCommon::Text::ToLower(entry.id) == wanted) {
            return &entry;
        }
    }
    return nullptr;
}

bool IsKnownPlaceholder(std::wstring_view placeholder) {
    const auto known = KnownPlaceholders();
    return std::find(known.begin(), known.end(), placeholder) != known.end();
}

}  // namespace

std::optional<std::vector<StringTableEntry>> ReadStringTableSection(
    ZelCommon::Storage::IProfileApi& api, const std::wstring& file, const std::wstring& section) {
    ZelCommon::Storage::StringList sections;
    ZelCommon::Storage::StringList lines;
    const bool read = ZelCommon::Exception::CatchThrown<ZelCommon::Storage::Exception>(
        [&] {
            ZelCommon::Storage::IniFile table(api);
            table.Open(file, section, 0);
            table.EnumKeys(sections);
            table.EnumValues(lines);
        },
        [](const ZelCommon::Storage::Exception&) {});
    const std::wstring wanted = ZelCommon::Text::ToLower(section);
    const bool hasSection = std::any_of(sections.begin(), sections.end(), [&](const auto& name) {
        return ZelCommon::Text::ToLower(name) == wanted;
    });
    if (!read || !hasSection) {
        return std::nullopt;
    }
    std::vector<StringTableEntry> entries;
    for (const std::wstring& line : lines) {
        const std::size_t equals = line.find(L'=');
        if (equals == std::wstring::npos || equals == 0) {
            continue;
        }
        entries.push_back({line.substr(0, equals), line.substr(equals + 1)});
    }
    return entries;
}

std::vector<std::wstring> PlaceholdersIn(std::wstring_view text) {
    std::vector<std::wstring> found;
    std::size_t from = 0;
    for (;;) {
        const std::size_t start = text.find(L"<$", from);
        if (start == std::wstring_view::npos) {
            return found;
        }
        const std::size_t end = text.find(L'>', start);
        if (end == std::wstring_view::npos) {
            found.emplace_back(text.substr(start));
            return found;
        }
        found.emplace_back(text.substr(start, end - start + 1));
        from = end + 1;
    }
}

std::vector<std::wstring> ConversionsIn(std::wstring_view text) {
    std::vector<std::wstring> found;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'%') {
            continue;
        }
        if (i + 1 < text.size() && text[i + 1] == L'%') {
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        while (end < text.size() && std::wstring_view(L"-+ #0123456789.*lhI").find(text[end]) !=
                                        std::wstring_view::npos) {
            ++end;
        }
        found.emplace_back(text.substr(i, std::min(end + 1, text.size()) - i));
        i = end;
    }
    return found;
}

StringTableFindings CheckStringTable(std::span<const StringTableEntry> table,
                                     std::span<const std::wstring_view> requiredIds,
                                     const std::vector<StringTableEntry>* reference) {
    StringTableFindings findings;
    for (const std::wstring_view id : requiredIds) {
        const StringTableEntry* entry = Find(table, id);
        if (entry == nullptr || entry->text.empty()) {
            findings.missingIds.emplace_back(id);
        }
    }
    for (const StringTableEntry& entry : table) {
        for (const std::wstring& placeholder : PlaceholdersIn(entry.text)) {
            if (!IsKnownPlaceholder(placeholder)) {
                findings.unknownPlaceholders.push_back({entry.id, placeholder});
            }
        }
    }
    if (reference != nullptr) {
        for (const StringTableEntry& wanted : *reference) {
            const StringTableEntry* entry = Find(table, wanted.id);
            if (entry == nullptr) {
                findings.missingFromLocale.push_back(wanted.id);
            } else if (ConversionsIn(entry->text) != ConversionsIn(wanted.text)) {
                findings.conversionMismatches.push_back(wanted.id);
            }
        }
    }
    return findings;
}

}  // namespace Orva::Settings
