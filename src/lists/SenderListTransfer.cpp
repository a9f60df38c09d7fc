// The editor's import and export of addresses as text.
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "common_src/platform/TextCodec.h"
#include "lists/ListFileText.h"
#include "lists/SenderCsv.h"
#include "lists/SenderListEditor.h"

namespace Orva::Lists {
namespace {

// The name and address of one line; nothing for a CSV line that is not "address[,name]".
std::optional<std::pair<std::wstring, std::wstring>> LineFields(std::wstring_view line,
                                                                TransferFormat format) {
    if (format == TransferFormat::Addresses) {
        return std::pair(std::wstring(), std::wstring(line));
    }
    auto fields = CsvFields(line);
    if (!fields || fields->size() > 2) {
        return std::nullopt;
    }
    std::wstring name = fields->size() > 1 ? std::move((*fields)[1]) : std::wstring();
    return std::pair(std::move(name), std::move((*fields)[0]));
}

bool IsCsvHeading(const std::wstring& address) {
    return ZelCommon::Text::ToLower(ZelCommon::Text::TrimBlanks(address)) == L"address";
}

}  // namespace

ImportOutcome CSenderListEditor::Import(SenderList list, std::wstring_view text,
                                        TransferFormat format, bool skipRefused) {
    return WithLists(list, [&](auto& set, auto& other, auto, auto) {
        ImportOutcome outcome;
        std::vector<SenderValidation> taken;
        std::set<std::wstring> takenKeys;
        size_t lineNumber = 0;
        bool seenContent = false;
        ForEachLine(text, [&](std::wstring_view line) {
            ++lineNumber;
            if (ZelCommon::Text::TrimBlanks(line).empty()) {
                return true;
            }
            auto fields = LineFields(line, format);
            if (!fields) {
                outcome.problems.push_back({lineNumber, ImportIssue::NotAnAddressNameLine, {}});
                return true;
            }
            // A peer's export may start with a heading.
            const bool heading =
                !seenContent && format == TransferFormat::Csv && IsCsvHeading(fields->second);
            seenContent = true;
            if (heading) {
                return true;
            }
            SenderValidation checked = ValidateSender(fields->first, fields->second);
            if (!checked.Accepted()) {
                outcome.problems.push_back({lineNumber, ImportIssue::Refused, std::move(checked)});
            } else if (other.Find(checked.address.c_str())) {
                outcome.problems.push_back(
                    {lineNumber, ImportIssue::InOtherList, std::move(checked)});
            } else if (set.Find(checked.address.c_str()) ||
                       !takenKeys.insert(ListKeyOf(checked.address)).second) {
                ++outcome.present;
            } else {
                taken.push_back(std::move(checked));
            }
            return true;
        });
        const size_t room = kListLimit - std::min(kListLimit, set.Count());
        outcome.overflowing = taken.size() > room ? taken.size() - room : 0;
        if (outcome.overflowing > 0 || (!outcome.problems.empty() && !skipRefused)) {
            return outcome;
        }
        for (const SenderValidation& checked : taken) {
            set.Add(checked.address.c_str(), SenderEntry{checked.name, checked.address});
        }
        outcome.added = taken.size();
        outcome.applied = true;
        if (outcome.added > 0) {
            MarkChanged(list);
        }
        return outcome;
    });
}

std::wstring CSenderListEditor::Export(SenderList list, TransferFormat format) const {
    return WithLists(list, [&](auto& set, auto&, auto, auto) {
        std::wstring text;
        for (const SenderEntry& entry : set.Entries()) {
            text += format == TransferFormat::Csv
                        ? CsvField(entry.address) + L"," + CsvField(entry.name)
                        : entry.address;
            text += L"\n";
        }
        return text;
    });
}

}  // namespace Orva::Lists
