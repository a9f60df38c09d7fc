#include "ListsCommand.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "CommandErrors.h"
#include "Orvactl.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "common_src/platform/WideFormat.h"
#include "lists/AtomicFile.h"
#include "lists/ListFileText.h"
#include "lists/SenderListFile.h"
#include "lists/SenderListSet.h"
#include "lists/SenderValidation.h"

namespace Orva::Orvactl {
namespace {

using Args = std::span<const std::wstring>;
using Lists::ApprovedList;
using Lists::BlockedList;
using Lists::CSenderListSet;
using Lists::SenderEntry;
using ZelCommon::Text::Format;

template <class Kind>
struct OtherKind;
template <>
struct OtherKind<BlockedList> {
    using Type = ApprovedList;
};
template <>
struct OtherKind<ApprovedList> {
    using Type = BlockedList;
};

std::wstring Name(std::wstring_view fileName) {
    return std::wstring(fileName);
}

bool SameFileName(std::wstring_view path, std::wstring_view fileName) {
    return ZelCommon::Text::ToLower(ZelCommon::Path::FileNameOf(path)) ==
           ZelCommon::Text::ToLower(fileName);
}

std::wstring RefusalReason(Lists::SenderCheck check) {
    switch (check) {
        case Lists::SenderCheck::AddressTooLong:
            return L"the address is longer than 256 characters";
        case Lists::SenderCheck::NameTooLong:
            return L"the name is longer than 256 characters";
        case Lists::SenderCheck::NotAnEmailAddress:
            return L"not an e-mail address";
        case Lists::SenderCheck::NameNotPlainText:
            return L"the name holds a line break, a control character or a list tag";
        case Lists::SenderCheck::Accepted:
            break;
    }
    return L"accepted";
}

// Loads a list file. A missing file is an empty list when `mayBeMissing`; a file that is not a
// sender list is refused rather than read as empty, so that nothing overwrites it.
template <class Kind>
std::optional<std::wstring> LoadList(const std::wstring& path, CSenderListSet<Kind>& set,
                                     bool mayBeMissing) {
    const std::optional<std::string> bytes = Lists::ReadWholeFile(path);
    if (!bytes) {
        if (mayBeMissing && !ZelCommon::Path::FileExists(path) &&
            !ZelCommon::Path::FolderExists(path)) {
            return std::nullopt;
        }
        return path + L": cannot be read";
    }
    const std::string_view text = Lists::SkipUtf8Mark(*bytes);
    if (!Lists::HasAcceptedHeader(text.substr(0, text.find('\n')))) {
        return path + L": not a sender list file (its first line is not a list header)";
    }
    set.Load(path);
    return std::nullopt;
}

template <class Kind>
std::optional<std::wstring> SaveList(const std::wstring& path, CSenderListSet<Kind>& set) {
    if (set.SaveTo(path) != Lists::ListSave::Saved) {
        return path + L": cannot be written";
    }
    return std::nullopt;
}

std::wstring OtherListPath(const std::wstring& path, std::wstring_view otherFileName) {
    return ZelCommon::Path::FolderOf(path) + Name(otherFileName);
}

std::wstring CsvField(const std::wstring& value) {
    if (value.find_first_of(L",\"") == std::wstring::npos &&
        value == ZelCommon::Text::TrimBlanks(value)) {
        return value;
    }
    std::wstring quoted = L"\"";
    for (const wchar_t c : value) {
        quoted += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
    }
    return quoted + L"\"";
}

// Splits one CSV line; nothing when a quoted field is not closed.
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

// A text file of a peer's export: UTF-8 with or without a byte-order mark, or UTF-16 with one.
std::optional<std::wstring> ReadTextFile(const std::wstring& path) {
    const std::optional<std::string> bytes = Lists::ReadWholeFile(path);
    if (!bytes) {
        return std::nullopt;
    }
    if (bytes->starts_with("\xFF\xFE")) {
        return ZelCommon::Text::Utf16LeToWide(std::string_view(*bytes).substr(2));
    }
    return Lists::DecodeListText(*bytes);
}

template <class Kind>
int Show(const std::wstring& path, ITextSink& out, ITextSink& err) {
    CSenderListSet<Kind> set;
    if (const auto problem = LoadList(path, set, false)) {
        return ReportFailure(err, *problem);
    }
    const std::vector<SenderEntry> entries = set.Entries();
    size_t width = 7;
    for (const SenderEntry& entry : entries) {
        width = std::max(width, entry.address.size());
    }
    const auto row = [&](const std::wstring& address, const std::wstring& name) {
        out.Write(address + std::wstring(width + 2 - address.size(), L' ') + name + L"\n");
    };
    row(L"ADDRESS", L"NAME");
    for (const SenderEntry& entry : entries) {
        row(entry.address, entry.name);
    }
    return kExitOk;
}

template <class Kind>
int Add(const std::wstring& path, const std::wstring& address, const std::wstring& name,
        ITextSink& out, ITextSink& err) {
    using Other = typename OtherKind<Kind>::Type;
    const Lists::SenderValidation checked = Lists::ValidateSender(name, address);
    if (!checked.Accepted()) {
        return ReportFailure(err, L"refused " + address + L": " + RefusalReason(checked.check));
    }
    CSenderListSet<Kind> set;
    CSenderListSet<Other> other;
    const std::wstring otherPath = OtherListPath(path, Other::kFileName);
    if (const auto problem = LoadList(path, set, true)) {
        return ReportFailure(err, *problem);
    }
    if (const auto problem = LoadList(otherPath, other, true)) {
        return ReportFailure(err, *problem);
    }
    if (other.Find(checked.address.c_str())) {
        return ReportFailure(err, checked.address + L" is in " + Name(Other::kFileName) +
                                      L"; remove it there first");
    }
    const int result = set.Add(checked.address.c_str(), SenderEntry{checked.name, checked.address});
    if (result == Lists::kAddExisted) {
        return ReportFailure(err, checked.address + L" is already in " + path);
    }
    if (result == Lists::kAddFull) {
        return ReportFailure(err, Format(L"%s is full (%u entries)", path,
                                         static_cast<unsigned>(Lists::kListLimit)));
    }
    if (const auto problem = SaveList(path, set)) {
        return ReportFailure(err, *problem);
    }
    out.Write(L"added " + checked.address + L"\n");
    return kExitOk;
}

template <class Kind>
int Remove(const std::wstring& path, const std::wstring& address, ITextSink& out, ITextSink& err) {
    CSenderListSet<Kind> set;
    if (const auto problem = LoadList(path, set, false)) {
        return ReportFailure(err, *problem);
    }
    const std::wstring trimmed(ZelCommon::Text::TrimBlanks(address));
    if (!set.Find(trimmed.c_str())) {
        return ReportFailure(err, trimmed + L" is not in " + path);
    }
    set.Remove(trimmed.c_str());
    if (const auto problem = SaveList(path, set)) {
        return ReportFailure(err, *problem);
    }
    out.Write(L"removed " + trimmed + L"\n");
    return kExitOk;
}

template <class Kind>
int Export(const std::wstring& path, bool csv, ITextSink& out, ITextSink& err) {
    CSenderListSet<Kind> set;
    if (const auto problem = LoadList(path, set, false)) {
        return ReportFailure(err, *problem);
    }
    std::wstring text;
    for (const SenderEntry& entry : set.Entries()) {
        text += csv ? CsvField(entry.address) + L"," + CsvField(entry.name) : entry.address;
        text += L"\n";
    }
    out.Write(text);
    return kExitOk;
}

struct ImportOptions {
    std::wstring from;
    bool csv = false;
    bool skipRefused = false;
};

template <class Kind>
int Import(const std::wstring& path, const ImportOptions& options, ITextSink& out, ITextSink& err) {
    using Other = typename OtherKind<Kind>::Type;
    CSenderListSet<Kind> set;
    CSenderListSet<Other> other;
    if (const auto problem = LoadList(path, set, true)) {
        return ReportFailure(err, *problem);
    }
    if (const auto problem = LoadList(OtherListPath(path, Other::kFileName), other, true)) {
        return ReportFailure(err, *problem);
    }
    const std::optional<std::wstring> text = ReadTextFile(options.from);
    if (!text) {
        return ReportFailure(err, options.from + L": cannot be read");
    }
    std::vector<std::wstring> problems;
    size_t lineNumber = 0;
    size_t imported = 0;
    size_t present = 0;
    size_t overflow = 0;
    bool seenContent = false;
    Lists::ForEachLine(std::wstring_view(*text), [&](std::wstring_view line) {
        ++lineNumber;
        if (ZelCommon::Text::TrimBlanks(line).empty()) {
            return true;
        }
        std::wstring address(line);
        std::wstring name;
        if (options.csv) {
            const auto fields = CsvFields(line);
            if (!fields || fields->size() > 2) {
                problems.push_back(Format(L"line %u: refused: not an address,name line",
                                          static_cast<unsigned>(lineNumber)));
                return true;
            }
            address = (*fields)[0];
            name = fields->size() > 1 ? (*fields)[1] : std::wstring();
            // A peer's export may start with a heading.
            if (!seenContent &&
                ZelCommon::Text::ToLower(ZelCommon::Text::TrimBlanks(address)) == L"address") {
                seenContent = true;
                return true;
            }
        }
        seenContent = true;
        const Lists::SenderValidation checked = Lists::ValidateSender(name, address);
        if (!checked.Accepted()) {
            problems.push_back(Format(L"line %u: refused %s: %s", static_cast<unsigned>(lineNumber),
                                      checked.address, RefusalReason(checked.check)));
            return true;
        }
        if (other.Find(checked.address.c_str())) {
            problems.push_back(Format(L"line %u: %s is in %s", static_cast<unsigned>(lineNumber),
                                      checked.address, Name(Other::kFileName)));
            return true;
        }
        switch (set.Add(checked.address.c_str(), SenderEntry{checked.name, checked.address})) {
            case Lists::kAddAdded:
                ++imported;
                break;
            case Lists::kAddExisted:
                ++present;
                break;
            default:
                ++overflow;
                break;
        }
        return true;
    });
    for (const std::wstring& problem : problems) {
        err.Write(problem + L"\n");
    }
    if (overflow > 0) {
        return ReportFailure(err, Format(L"%s would hold more than %u entries: %u address(es) "
                                         L"do not fit; nothing imported",
                                         path, static_cast<unsigned>(Lists::kListLimit),
                                         static_cast<unsigned>(overflow)));
    }
    if (!problems.empty() && !options.skipRefused) {
        return ReportFailure(
            err, Format(L"%u line(s) refused; nothing imported (--skip-refused imports the rest)",
                        static_cast<unsigned>(problems.size())));
    }
    if (const auto problem = SaveList(path, set)) {
        return ReportFailure(err, *problem);
    }
    out.Write(Format(L"imported %u, already present %u, refused %u\n",
                     static_cast<unsigned>(imported), static_cast<unsigned>(present),
                     static_cast<unsigned>(problems.size())));
    return kExitOk;
}

int Validate(Args addresses, ITextSink& out) {
    int exitCode = kExitOk;
    for (const std::wstring& address : addresses) {
        const Lists::SenderValidation checked = Lists::ValidateSender(L"", address);
        if (checked.Accepted()) {
            out.Write(L"ok " + checked.address + L"\n");
        } else {
            out.Write(L"refused " + RefusalReason(checked.check) + L"\n");
            exitCode = kExitFailure;
        }
    }
    return exitCode;
}

// Runs `run` with the list kind that the file name names.
template <class Run>
int WithKind(const std::wstring& path, ITextSink& err, Run&& run) {
    if (SameFileName(path, ApprovedList::kFileName)) {
        return run(ApprovedList{});
    }
    if (SameFileName(path, BlockedList::kFileName)) {
        return run(BlockedList{});
    }
    return ReportUsageError(err, path +
                                     L": the list file must be named WhiteList.dat (approved "
                                     L"senders) or BlackList.dat (blocked senders)");
}

int UsageFor(const std::wstring& command, ITextSink& err) {
    return ReportUsageError(err, L"wrong arguments for 'lists " + command + L"'");
}

}  // namespace

std::wstring ListsHelpText() {
    return L"  lists show FILE                 the list's addresses and names\n"
           L"  lists add FILE ADDRESS [NAME]   add a sender (checked as the settings pages do)\n"
           L"  lists remove FILE ADDRESS       remove a sender\n"
           L"  lists validate ADDRESS...       'ok ADDRESS-AS-STORED' or 'refused REASON' each\n"
           L"  lists export FILE [--csv]       one address a line, or address,name lines\n"
           L"  lists import FILE --from TEXTFILE [--csv] [--skip-refused]\n"
           L"                                  add the addresses of a text file; refused lines\n"
           L"                                  and addresses of the other list are reported and\n"
           L"                                  nothing is written unless --skip-refused\n"
           L"    FILE is WhiteList.dat (approved senders) or BlackList.dat (blocked senders).\n";
}

int RunListsCommand(Args args, ITextSink& out, ITextSink& err) {
    if (args.empty()) {
        return ReportUsageError(err, L"'lists' needs a sub-command");
    }
    const std::wstring& command = args[0];
    if (command == L"validate") {
        if (args.size() < 2) {
            return UsageFor(command, err);
        }
        return Validate(args.subspan(1), out);
    }
    if (command != L"show" && command != L"add" && command != L"remove" && command != L"export" &&
        command != L"import") {
        return ReportUsageError(err, L"unknown sub-command 'lists " + command + L"'");
    }
    if (args.size() < 2) {
        return UsageFor(command, err);
    }
    const std::wstring& path = args[1];
    const Args rest = args.subspan(2);
    if (command == L"show") {
        if (!rest.empty()) {
            return UsageFor(command, err);
        }
        return WithKind(path, err, [&]<class Kind>(Kind) { return Show<Kind>(path, out, err); });
    }
    if (command == L"add") {
        if (rest.empty() || rest.size() > 2) {
            return UsageFor(command, err);
        }
        const std::wstring name = rest.size() > 1 ? rest[1] : std::wstring();
        return WithKind(path, err,
                        [&]<class Kind>(Kind) { return Add<Kind>(path, rest[0], name, out, err); });
    }
    if (command == L"remove") {
        if (rest.size() != 1) {
            return UsageFor(command, err);
        }
        return WithKind(path, err,
                        [&]<class Kind>(Kind) { return Remove<Kind>(path, rest[0], out, err); });
    }
    if (command == L"export") {
        if (rest.size() > 1 || (rest.size() == 1 && rest[0] != L"--csv")) {
            return UsageFor(command, err);
        }
        const bool csv = !rest.empty();
        return WithKind(path, err,
                        [&]<class Kind>(Kind) { return Export<Kind>(path, csv, out, err); });
    }
    ImportOptions options;
    for (size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == L"--csv") {
            options.csv = true;
        } else if (rest[i] == L"--skip-refused") {
            options.skipRefused = true;
        } else if (rest[i] == L"--from" && i + 1 < rest.size()) {
            options.from = rest[++i];
        } else {
            return UsageFor(command, err);
        }
    }
    if (options.from.empty()) {
        return ReportUsageError(err, L"'lists import' needs --from TEXTFILE");
    }
    return WithKind(path, err,
                    [&]<class Kind>(Kind) { return Import<Kind>(path, options, out, err); });
}

}  // namespace Orva::Orvactl
