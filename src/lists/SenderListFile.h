#pragma once

#include <string>
#include <string_view>

#include "lists/AtomicFile.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"
#include "lists/ListPersist.h"
#include "lists/ListText.h"
#include "lists/SenderEntry.h"

namespace Orva::Lists {

// The read and write routines of "WhiteList.dat" and "BlackList.dat", one pair for both kinds.
template <class Kind>
struct SenderListFile {
    // The entry of one line, or an empty address when the line holds no record of this list.
    // A value that could not be written back unchanged (a tag text in it) drops the line.
    static SenderEntry ParseLine(std::wstring_view line) {
        SenderEntry entry;
        const std::wstring_view record =
            ExtractTaggedValue(line, Kind::kRecordOpen, Kind::kRecordClose);
        if (record.empty()) {
            return entry;
        }
        CListSenderAddr<Kind>::Instance().Parse(record, entry);
        if (entry.address.empty() || !IsStorableValue(entry.address)) {
            entry.address.clear();
            return entry;
        }
        CListSenderName<Kind>::Instance().Parse(record, entry);
        if (!IsStorableValue(entry.name)) {
            entry.address.clear();
        }
        return entry;
    }

    // Calls add(SenderEntry&&) for every record in file order. Nothing is added when the file
    // is missing or its first line holds no accepted header.
    template <class Add>
    static void Read(const std::wstring& path, Add&& add) {
        const std::optional<std::string> bytes = ReadWholeFile(path);
        if (!bytes) {
            return;
        }
        const std::wstring text = DecodeListText(*bytes);
        bool first = true;
        ForEachLine(text, [&](std::wstring_view line) {
            if (first) {
                first = false;
                return HasAcceptedHeader(line);
            }
            SenderEntry entry = ParseLine(line);
            if (!entry.address.empty()) {
                add(std::move(entry));
            }
            return true;
        });
    }

    static void AppendRecordLine(const SenderEntry& entry, std::wstring& text) {
        text.append(Kind::kRecordOpen);
        CListSenderName<Kind>::Instance().Format(entry, text);
        CListSenderAddr<Kind>::Instance().Format(entry, text);
        text.append(Kind::kRecordClose);
        text.push_back(L'\n');
    }

    // The file's bytes for `entries` (a range of SenderEntry) in their order. An entry whose
    // values could not be read back unchanged is left out rather than damage the file.
    template <class Entries>
    static std::string Format(const Entries& entries) {
        std::wstring text;
        text.reserve(64 + entries.size() * 96);
        text.append(kWrittenHeader);
        text.push_back(L'\n');
        for (const SenderEntry& entry : entries) {
            if (!entry.address.empty() && IsStorableValue(entry.address) &&
                IsStorableValue(entry.name)) {
                AppendRecordLine(entry, text);
            }
        }
        return EncodeListText(text);
    }

    // False when the file could not be replaced; the old file then stays as it was.
    static bool Write(const std::wstring& path, std::string_view bytes) {
        return ReplaceFileContents(path, bytes);
    }
};

}  // namespace Orva::Lists
