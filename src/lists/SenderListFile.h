#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common_src/platform/Path.h"
#include "lists/AtomicFile.h"
#include "lists/ListFileStatus.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"
#include "lists/ListPersist.h"
#include "lists/ListText.h"
#include "lists/SenderEntry.h"
#include "settings/log/DebugLog.h"

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

    // Calls add(SenderEntry&&) for every record in file order. Nothing is added unless the
    // file's first line holds an accepted header.
    template <class Add>
    static ListLoad Read(const std::wstring& path, Add&& add) {
        // A folder is never handed to ReadWholeFile: natively its size reads as unbounded.
        if (ZelCommon::Path::FolderExists(path)) {
            return ListLoad::Unreadable;
        }
        std::optional<std::string> bytes = ReadWholeFile(path);
        if (!bytes) {
            return ZelCommon::Path::FileExists(path) ? ListLoad::Unreadable : ListLoad::Absent;
        }
        if (IsUtf16LeText(*bytes)) {
            bytes = Utf16LeTextToUtf8(*bytes);
        }
        bool first = true;
        bool accepted = false;
        ForEachLine(SkipUtf8Mark(*bytes), [&](std::string_view line) {
            if (first) {
                first = false;
                accepted = HasAcceptedHeader(line);
                return accepted;
            }
            SenderEntry entry = ParseLine(line);
            if (!entry.address.empty()) {
                add(std::move(entry));
            }
            return true;
        });
        return accepted ? ListLoad::Loaded : ListLoad::RejectedHeader;
    }

    // Appends the entry's record line; an entry whose address could not be read back unchanged
    // is left out rather than damage the file.
    static void AppendRecordLine(const SenderEntry& entry, std::string& bytes) {
        const size_t start = bytes.size();
        bytes.append(Kind::kRecordOpen);
        if (entry.address.empty() || !CListSenderName<Kind>::Instance().Format(entry, bytes) ||
            !CListSenderAddr<Kind>::Instance().Format(entry, bytes)) {
            bytes.resize(start);
            ZelCommon::Library::TheLog().LogMessage(
                ZelCommon::Library::LogError, "BlackList", __LINE__,
                L"xxx CBListSet::Save left out the entry of an address that cannot be written: %s",
                StorableForm(entry.address));
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
        return ReplaceFileContents(path, bytes);
    }
};

}  // namespace Orva::Lists
