#include "ListsCommand.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "CommandErrors.h"
#include "ListsSession.h"
#include "Orvactl.h"
#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"
#include "lists/ListBackup.h"
#include "lists/ListFileText.h"
#include "lists/SenderListEditor.h"
#include "lists/SenderLists.h"
#include "plugin/agent/AgentListNotifier.h"

namespace Orva::Orvactl {
namespace {

using Args = std::span<const std::wstring>;
using Lists::EditStatus;
using Lists::SenderList;
using ZelCommon::Text::Format;

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

// A text file of a peer's export: UTF-8 with or without a byte-order mark, or UTF-16 with one.
std::optional<std::wstring> ReadTextFile(const std::wstring& path) {
    std::string bytes;
    if (ZelCommon::Platform::ReadWholeFile(path, bytes) != 0) {
        return std::nullopt;
    }
    return Lists::DecodeListText(bytes);
}

int Show(ListsSession& lists, ITextSink& out, ITextSink& err) {
    if (const auto problem = lists.LoadProblem(false, false)) {
        return ReportFailure(err, *problem);
    }
    const std::vector<Lists::SenderEntry> entries = lists.Entries();
    size_t width = 7;
    for (const Lists::SenderEntry& entry : entries) {
        width = std::max(width, entry.address.size());
    }
    const auto row = [&](const std::wstring& address, const std::wstring& name) {
        out.Write(address + std::wstring(width + 2 - address.size(), L' ') + name + L"\n");
    };
    row(L"ADDRESS", L"NAME");
    for (const Lists::SenderEntry& entry : entries) {
        row(entry.address, entry.name);
    }
    return kExitOk;
}

int SaveAndReport(ListsSession& lists, const std::wstring& done, ITextSink& out, ITextSink& err) {
    if (const auto problem = lists.Save()) {
        return ReportFailure(err, *problem);
    }
    out.Write(done);
    return kExitOk;
}

int Add(ListsSession& lists, const std::wstring& address, const std::wstring& name, ITextSink& out,
        ITextSink& err) {
    if (const auto problem = lists.LoadProblem(true, true)) {
        return ReportFailure(err, *problem);
    }
    const Lists::EditOutcome added =
        lists.Editor().Add(lists.List(), name, address, Lists::OnConflict::Ask);
    const std::wstring& checked = added.checked.address;
    switch (added.status) {
        case EditStatus::Refused:
            return ReportFailure(
                err, L"refused " + address + L": " + RefusalReason(added.checked.check));
        case EditStatus::InOtherList:
            return ReportFailure(err, checked + L" is in " + FileNameOf(OtherList(lists.List())) +
                                          L"; remove it there first");
        case EditStatus::Existed:
            return ReportFailure(err, checked + L" is already in " + lists.Path());
        case EditStatus::Full:
            return ReportFailure(err, Format(L"%s is full (%u entries)", lists.Path(),
                                             static_cast<unsigned>(Lists::kListLimit)));
        case EditStatus::Done:
        case EditStatus::NotFound:
            break;
    }
    return SaveAndReport(lists, L"added " + checked + L"\n", out, err);
}

int Remove(ListsSession& lists, const std::wstring& address, ITextSink& out, ITextSink& err) {
    if (const auto problem = lists.LoadProblem(false, false)) {
        return ReportFailure(err, *problem);
    }
    const Lists::EditOutcome removed = lists.Editor().Remove(lists.List(), address);
    if (removed.status == EditStatus::NotFound) {
        return ReportFailure(err, removed.checked.address + L" is not in " + lists.Path());
    }
    return SaveAndReport(lists, L"removed " + removed.checked.address + L"\n", out, err);
}

int Export(ListsSession& lists, bool csv, ITextSink& out, ITextSink& err) {
    if (const auto problem = lists.LoadProblem(false, false)) {
        return ReportFailure(err, *problem);
    }
    out.Write(lists.Editor().Export(
        lists.List(), csv ? Lists::TransferFormat::Csv : Lists::TransferFormat::Addresses));
    return kExitOk;
}

struct ImportOptions {
    std::wstring from;
    bool csv = false;
    bool skipRefused = false;
};

std::wstring ProblemText(const Lists::ImportProblem& problem, SenderList list) {
    const auto line = static_cast<unsigned>(problem.line);
    switch (problem.issue) {
        case Lists::ImportIssue::NotAnAddressNameLine:
            return Format(L"line %u: refused: not an address,name line", line);
        case Lists::ImportIssue::InOtherList:
            return Format(L"line %u: %s is in %s", line, problem.checked.address,
                          FileNameOf(OtherList(list)));
        case Lists::ImportIssue::Refused:
            break;
    }
    return Format(L"line %u: refused %s: %s", line, problem.checked.address,
                  RefusalReason(problem.checked.check));
}

int Import(ListsSession& lists, const ImportOptions& options, ITextSink& out, ITextSink& err) {
    if (const auto problem = lists.LoadProblem(true, true)) {
        return ReportFailure(err, *problem);
    }
    const std::optional<std::wstring> text = ReadTextFile(options.from);
    if (!text) {
        return ReportFailure(err, options.from + L": cannot be read");
    }
    const Lists::ImportOutcome imported = lists.Editor().Import(
        lists.List(), *text,
        options.csv ? Lists::TransferFormat::Csv : Lists::TransferFormat::Addresses,
        options.skipRefused);
    for (const Lists::ImportProblem& problem : imported.problems) {
        err.Write(ProblemText(problem, lists.List()) + L"\n");
    }
    const auto count = [](size_t n) { return static_cast<unsigned>(n); };
    if (imported.overflowing > 0) {
        return ReportFailure(
            err, Format(L"%s would hold more than %u entries: %u address(es) "
                        L"do not fit; nothing imported",
                        lists.Path(), count(Lists::kListLimit), count(imported.overflowing)));
    }
    if (!imported.applied) {
        return ReportFailure(
            err, Format(L"%u line(s) refused; nothing imported (--skip-refused imports the rest)",
                        count(imported.problems.size())));
    }
    return SaveAndReport(
        lists,
        Format(L"imported %u, already present %u, refused %u\n", count(imported.added),
               count(imported.present), count(imported.problems.size())),
        out, err);
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

// Runs `run` on the lists of the file that `path` names.
template <class Run>
int WithLists(const std::wstring& path, ZelCommon::Platform::IWindowMessaging& messaging,
              ITextSink& err, Run&& run) {
    const std::optional<SenderList> list = ListNamedBy(path);
    if (!list) {
        return ReportUsageError(err, path +
                                         L": the list file must be named WhiteList.dat (approved "
                                         L"senders) or BlackList.dat (blocked senders)");
    }
    ListsSession lists(path, *list, messaging);
    return run(lists);
}

int UsageFor(const std::wstring& command, ITextSink& err) {
    return ReportUsageError(err, L"wrong arguments for 'lists " + command + L"'");
}

// The blocked list that the last contact import replaced, back in its place.
int Restore(Args rest, ZelCommon::Platform::IWindowMessaging& messaging, ITextSink& out,
            ITextSink& err) {
    if (rest.size() != 2 || rest[0] != L"--data") {
        return UsageFor(L"restore", err);
    }
    const std::wstring blocked = Lists::BlockedListPath(rest[1]);
    const std::wstring backup = Lists::BackupPathOf(blocked);
    switch (Lists::RestoreBackup(blocked)) {
        case Lists::BackupRestore::NoBackup:
            return ReportFailure(err, backup + L": no backup to restore");
        case Lists::BackupRestore::NotAListFile:
            return ReportFailure(
                err, backup +
                         L": not a sender list file (its first line is not a list header); "
                         L"nothing restored");
        case Lists::BackupRestore::Unwritable:
            return ReportFailure(err, blocked + L": cannot be written");
        case Lists::BackupRestore::Restored:
            break;
    }
    Plugin::CAgentListNotifier(messaging).SenderListsChanged();
    out.Write(L"restored " + blocked + L" from " + backup + L"\n");
    return kExitOk;
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
           L"  lists restore --data FOLDER     put BlackList.dat.bak, kept by the last contact\n"
           L"                                  import, back as the folder's BlackList.dat\n"
           L"    FILE is WhiteList.dat (approved senders) or BlackList.dat (blocked senders).\n"
           L"    A command that changes a list tells a running agent to read the lists again.\n";
}

int RunListsCommand(Args args, ITextSink& out, ITextSink& err,
                    ZelCommon::Platform::IWindowMessaging& messaging) {
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
    if (command == L"restore") {
        return Restore(args.subspan(1), messaging, out, err);
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
        return WithLists(path, messaging, err,
                         [&](ListsSession& lists) { return Show(lists, out, err); });
    }
    if (command == L"add") {
        if (rest.empty() || rest.size() > 2) {
            return UsageFor(command, err);
        }
        const std::wstring name = rest.size() > 1 ? rest[1] : std::wstring();
        return WithLists(path, messaging, err,
                         [&](ListsSession& lists) { return Add(lists, rest[0], name, out, err); });
    }
    if (command == L"remove") {
        if (rest.size() != 1) {
            return UsageFor(command, err);
        }
        return WithLists(path, messaging, err,
                         [&](ListsSession& lists) { return Remove(lists, rest[0], out, err); });
    }
    if (command == L"export") {
        if (rest.size() > 1 || (rest.size() == 1 && rest[0] != L"--csv")) {
            return UsageFor(command, err);
        }
        const bool csv = !rest.empty();
        return WithLists(path, messaging, err,
                         [&](ListsSession& lists) { return Export(lists, csv, out, err); });
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
    return WithLists(path, messaging, err,
                     [&](ListsSession& lists) { return Import(lists, options, out, err); });
}

}  // namespace Orva::Orvactl
