#pragma once

#include <string>
#include <string_view>

#include "common_src/platform/AtomicFile.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"
#include "lists/ListPersist.h"
#include "lists/ListText.h"
#include "lists/SenderEntry.h"

namespace Orva::Lists {

// The read and write routines of "WhiteList.dat" and "BlackList.dat", one pair for both kinds.
template <class Kind>
struct SenderListFile {
    // The entry of one line (UTF-8), or an empty address when the line holds no record of this
    // list. A value that could not be written back unchanged (a tag text in it) is dropped.
    static SenderEntry ParseLine(std::string_view line) {
        SenderEntry entry;
        const std::string_view record =
            ExtractTaggedValue(line, Kind::kRecordOpen, Kind::kRecordClose);
        if (record.empty()) {
            return entry;
        }
        CListSenderAddr<Kind>::Instance().Parse(record, entry);
        if (!entry.address.empty()) {
            CListSenderName<Kind>::Instance().Parse(record, entry);
        }
        return entry;
    }

    // Calls add(SenderEntry&&) for every record in file order. Nothing is added when the file
    // is missing or its first line holds no accepted header.
    template <class Add>
    static void Read(const std::wstring& path, Add&& add) {
        std::string bytes;
        if (ZelCommon::Platform::ReadWholeFile(path, bytes) != 0) {
            return;
        }
        bool first = true;
        ForEachLine(SkipUtf8Mark(bytes), [&](std::string_view line) {
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

    // Appends the entry's record line; an entry whose values could not be read back unchanged
    // is left out rather than damage the file.
    static void AppendRecordLine(const SenderEntry& entry, std::string& bytes) {
        const size_t start = bytes.size();
        bytes.append(Kind::kRecordOpen);
        if (entry.address.empty() || !CListSenderName<Kind>::Instance().Format(entry, bytes) ||
            !CListSenderAddr<Kind>::Instance().Format(entry, bytes)) {
            bytes.resize(start);
            return;
        }
        bytes.append(Kind::kRecordClose);
        bytes.push_back('\n');
    }

    // The file's bytes for `entries` (a sized range of SenderEntry) in their order.
    template <class Entries>
    static std::string Format(const Entries& entries) {
        std::string bytes(kUtf8Mark);
        bytes.reserve(64 + entries.size() * 128);
        bytes.append(kWrittenHeader);
        bytes.push_back('\n');
        for (const SenderEntry& entry : entries) {
            AppendRecordLine(entry, bytes);
        }
        return bytes;
    }

    // False when the file could not be replaced; the old file then stays as it was.
    static bool Write(const std::wstring& path, std::string_view bytes) {
        return ZelCommon::Platform::ReplaceFileContents(path, bytes) == 0;
    }
};

}  // namespace Orva::Lists
