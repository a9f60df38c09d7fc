#include "AccountCommand.h"

#include <optional>

#include "CommandErrors.h"
#include "FileChecks.h"
#include "NamedOption.h"
#include "Orvactl.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessContext.h"
#include "mailstore/UnsupportedMailServer.h"
#include "settings/log/DebugLog.h"

namespace Orva::Orvactl {
namespace {

struct AccountQuery {
    std::wstring dataFolder;
    std::wstring account;
};

// The add-in's trace lines, as they would reach its log file, without their head.
class LogLinesTo final : public ZelCommon::Platform::IDebuggerOutput {
public:
    explicit LogLinesTo(ITextSink& out) : m_out(out) {}
    void Write(const std::wstring& text) override { m_out.Write(text); }

private:
    ITextSink& m_out;
};

std::optional<AccountQuery> ParseQuery(std::span<const std::wstring> args, ITextSink& err,
                                       int& exitCode) {
    AccountQuery query;
    const RequiredOption options[] = {{L"--data-folder", &query.dataFolder},
                                      {L"--account", &query.account}};
    if (const std::optional<int> failed =
            TakeRequiredOptions(args, options, L"account", L"a value",
                                L"'account' needs --data-folder DIR and --account NAME", err)) {
        exitCode = *failed;
        return std::nullopt;
    }
    return query;
}

}  // namespace

std::wstring AccountHelpText() {
    return LR"(account command:
  orvactl account --data-folder DIR --account NAME
      Answers what the add-in decides for a default account called NAME whose settings the
      mail client keeps in DIR (its "Microsoft\Windows Live Mail" folder): the account file
      of that name in DIR or in one of its direct sub-folders is read as the add-in reads it.
      Prints the add-in's log lines of the check, then alone on the last line 1 (a web-mail
      or IMAP account: the add-in switches itself off) or 0 (served, or nothing readable).
)";
}

int RunAccountCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err) {
    int exitCode = kExitOk;
    const std::optional<AccountQuery> query = ParseQuery(args, err, exitCode);
    if (!query) {
        return exitCode;
    }
    if (const auto problem = WhyNotFolder(query->dataFolder)) {
        return ReportFailure(err, L"data folder " + *problem);
    }
    LogLinesTo lines(out);
    ZelCommon::Library::DebugLog log(ZelCommon::Platform::SystemClock(),
                                     ZelCommon::Platform::SystemProcessContext(), lines);
    log.OpenTextOnly();
    int answer = 0;
    const std::wstring file = MailStore::FindAccountSettingsFile(query->dataFolder, query->account);
    if (file.empty()) {
        err.Write(L"orvactl: note: no settings file for account " + query->account + L" in " +
                  query->dataFolder + L"\n");
    } else {
        answer = MailStore::CheckAccountSettingsFile(file, log);
    }
    out.Write(std::to_wstring(answer) + L"\n");
    return kExitOk;
}

}  // namespace Orva::Orvactl
