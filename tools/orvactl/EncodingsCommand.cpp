#include "EncodingsCommand.h"

#include "CommandErrors.h"
#include "FileChecks.h"
#include "Orvactl.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "lists/EncodingSet.h"
#include "plugin/agent/AgentListNotifier.h"

namespace Orva::Orvactl {
namespace {

bool NamesEncodingsFile(const std::wstring& path) {
    return ZelCommon::Text::ToLower(ZelCommon::Path::FileNameOf(path)) ==
           ZelCommon::Text::ToLower(std::wstring(Lists::kEncodingsFileName));
}

int Show(const Lists::CEncodingSet& set, ITextSink& out) {
    // The file's text without its header line.
    const std::wstring text = set.Format();
    out.Write(std::wstring_view(text).substr(text.find(L'\n') + 1));
    return kExitOk;
}

std::wstring GroupNames(const Lists::CEncodingSet& set) {
    std::wstring names;
    for (const auto& [name, group] : set.Groups()) {
        names += (names.empty() ? L"" : L", ") + name;
    }
    return names.empty() ? L"none" : names;
}

int SetBlocked(Lists::CEncodingSet& set, const std::wstring& path, const std::wstring& name,
               bool blocked, ZelCommon::Platform::IWindowMessaging& messaging, ITextSink& out,
               ITextSink& err) {
    const auto found = set.Groups().find(name);
    if (found == set.Groups().end()) {
        return ReportFailure(err, L"no group '" + name + L"' in " + path + L" (its groups: " +
                                      GroupNames(set) + L")");
    }
    const std::wstring done = (blocked ? L"blocked " : L"unblocked ") + name + L"\n";
    if (found->second.blocked == blocked) {
        out.Write(L"already " + done);
        return kExitOk;
    }
    set.SetBlocked(name, blocked);
    if (set.Save(path) != 0) {
        return ReportFailure(err, path + L": cannot be written");
    }
    Plugin::CAgentListNotifier(messaging).EncodingsChanged();
    out.Write(done);
    return kExitOk;
}

}  // namespace

std::wstring EncodingsHelpText() {
    return L"  encodings show FILE             the line-2 value, then one line per group:\n"
           L"                                  name, 0 or 1 (blocked), the code pages\n"
           L"  encodings block FILE GROUP      block the mail of an existing group\n"
           L"  encodings unblock FILE GROUP    stop blocking it\n"
           L"    FILE is a BlockEncodings.dat. A change tells a running agent to read it again.\n";
}

int RunEncodingsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                        ZelCommon::Platform::IWindowMessaging& messaging) {
    if (args.empty()) {
        return ReportUsageError(err, L"'encodings' needs a sub-command");
    }
    const std::wstring& command = args[0];
    const bool show = command == L"show";
    if (!show && command != L"block" && command != L"unblock") {
        return ReportUsageError(err, L"unknown sub-command 'encodings " + command + L"'");
    }
    if (args.size() != (show ? 2u : 3u)) {
        return ReportUsageError(err, L"wrong arguments for 'encodings " + command + L"'");
    }
    const std::wstring& path = args[1];
    if (!NamesEncodingsFile(path)) {
        return ReportUsageError(err, path + L": the file must be named BlockEncodings.dat");
    }
    if (const auto problem = WhyNotReadableFile(path)) {
        return ReportFailure(err, *problem);
    }
    Lists::CEncodingSet set;
    set.Load(path);
    if (show) {
        return Show(set, out);
    }
    return SetBlocked(set, path, args[2], command == L"block", messaging, out, err);
}

}  // namespace Orva::Orvactl
