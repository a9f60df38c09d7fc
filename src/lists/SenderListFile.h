#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/Path.h"
#include "lists/ByteBuffer.h"
#include "lists/ListFileStatus.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"
#include "lists/SenderEntry.h"
#include "lists/SenderIndex.h"

namespace Orva::Lists {

// The read and write routines of "WhiteList.dat" and "BlackList.dat", one pair for both kinds.
template <class Kind>
struct SenderListFile {
    // One line's record: the entry (an empty address when the line holds no record of this
    // list; a value that could not be written back unchanged, a tag text in it, is dropped), and
    // whether formatting the entry gives the line back byte for byte.
    struct Record {
        SenderEntry entry;
        bool asFormatted = false;
    };
    static Record ParseLine(std::string_view line);

    // Calls add(SenderEntry&&, std::string_view formattedLine) for every record in file order;
    // the line is empty unless ParseLine found it as formatted, and points into `text`, which
    // receives the file's text as UTF-8. Nothing is added unless the file's first line holds an
    // accepted header.
    template <class Add>
    static ListLoad Read(const std::wstring& path, std::string& text, Add&& add) {
        text.clear();
        std::string bytes;
        if (ZelCommon::Platform::ReadWholeFile(path, bytes) != 0) {
            return ZelCommon::Path::FileExists(path) || ZelCommon::Path::FolderExists(path)
                       ? ListLoad::Unreadable
                       : ListLoad::Absent;
        }
        text = IsUtf16LeText(bytes) ? Utf16LeTextToUtf8(bytes) : std::move(bytes);
        bool first = true;
        bool accepted = false;
        ForEachLine(SkipUtf8Mark(text), [&](std::string_view line) {
            if (first) {
                first = false;
                accepted = HasAcceptedHeader(line);
                return accepted;
            }
            Record record = ParseLine(line);
            if (!record.entry.address.empty()) {
                add(std::move(record.entry), record.asFormatted ? line : std::string_view());
            }
            return true;
        });
        return accepted ? ListLoad::Loaded : ListLoad::RejectedHeader;
    }

    // Appends the entry's record line; an entry whose address could not be read back unchanged
    // is left out rather than damage the file.
    static void AppendRecordLine(const SenderEntry& entry, ByteBuffer& bytes);

    // The file's bytes for the entries, in their order.
    static ByteBuffer Format(const SenderIndex& entries) {
        ByteBuffer bytes(64 + entries.size() * 128);
        bytes.Append(kUtf8Mark);
        bytes.Append(kWrittenHeader);
        bytes.Append("\n");
        for (const KeyedEntry& entry : entries) {
            if (const std::string_view line = entry.FormattedLine(); !line.empty()) {
                bytes.Append(line);
                bytes.Append("\n");
            } else {
                AppendRecordLine(entry.Entry(), bytes);
            }
        }
        return bytes;
    }

    // False when the file could not be replaced; the old file then stays as it was.
    static bool Write(const std::wstring& path, std::string_view bytes) {
        return ZelCommon::Platform::ReplaceFileContents(path, bytes) == 0;
    }
};

extern template struct SenderListFile<BlockedList>;
extern template struct SenderListFile<ApprovedList>;

}  // namespace Orva::Lists
