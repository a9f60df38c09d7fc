#include "Orvactl.h"

#include "AccountCommand.h"
#include "CommandErrors.h"
#include "EncodingsCommand.h"
#include "IniCommands.h"
#include "ListsCommand.h"
#include "SettingsCommand.h"
#include "SheetCommand.h"
#include "StatisticsCommand.h"
#include "StringsCommand.h"

namespace Orva::Orvactl {

namespace {

constexpr std::wstring_view kIntroHelp =
    LR"(Usage: orvactl COMMAND ...

Reads and writes the add-in's ini files and sender lists and checks its string tables,
with the same code the add-in uses, shows the settings a user gets from a deployment and
answers whether the add-in serves a mail account.

)";

constexpr std::wstring_view kIniHelp =
    LR"(ini commands (FILE is an ini file; section and key names are not case-sensitive):
  orvactl ini get FILE SECTION KEY [DEFAULT]     print the value (DEFAULT, else empty, if absent);
                                                 blanks around the value are trimmed, and
                                                 values are read as the add-in reads them
                                                 (1024 characters at most)
  orvactl ini getint FILE SECTION KEY [DEFAULT]  print the value read as an integer
                                                 (DEFAULT, else 0, if absent; leading digits
                                                 only, as GetPrivateProfileInt reads them)
  orvactl ini set FILE SECTION KEY VALUE         write the value (creates the file and section)
  orvactl ini delete FILE SECTION [KEY]          delete the key, or the whole section
  orvactl ini sections FILE                      list the section names, one a line
  orvactl ini keys FILE SECTION                  list the section's key names, one a line

)";

constexpr std::wstring_view kSettingsHelp =
    LR"(settings command:
  orvactl settings --install-dir DIR --user-dir DIR
      Applies the presets of DIR/ORVA_WLM.ini (the installation settings file) to the
      per-user settings file ORVA_WLM.ini in the user folder, exactly as the add-in does
      each time it starts: a preset reaches each user once and never overwrites a value
      the user has changed since. The user folder is created when missing. Then prints
      every per-user setting as a table: SECTION, KEY, the VALUE the add-in uses and its
      SOURCE:
        stored   the value in the per-user file
        preset   copied from the installation file and unchanged since
        install  read from the installation file while the user has not chosen
                 (EnableWexor 2 means "not chosen"; SecurityLevel follows it)
        default  not in the per-user file: the built-in default applies

)";

constexpr std::wstring_view kListsHeading =
    L"lists commands (the approved- and blocked-sender list files):\n";

constexpr std::wstring_view kEncodingsHeading =
    L"encodings commands (the blocked encodings file):\n";

constexpr std::wstring_view kClosingHelp =
    LR"(
  orvactl --help                                 show this text (also after a command)

Exit status: 0 on success, 1 when a file or folder cannot be read or written (a missing
folder, a FILE that is a folder, a missing file for the reading commands) or a check finds
problems, 2 on bad arguments. Messages go to the standard error.

Output is UTF-8. On Windows a console shows the text as Unicode whatever its code page;
output redirected to a file or a pipe is UTF-8 without a byte-order mark.
)";

}  // namespace

std::wstring HelpText() {
    std::wstring text(kIntroHelp);
    text += kIniHelp;
    text += kSettingsHelp;
    text += SheetHelpText();
    text += L"\n";
    text += StatisticsHelpText();
    text += L"\n";
    text += StringsHelpText();
    text += L"\n";
    text += kListsHeading;
    text += ListsHelpText();
    text += L"\n";
    text += kEncodingsHeading;
    text += EncodingsHelpText();
    text += L"\n";
    text += AccountHelpText();
    text += kClosingHelp;
    return text;
}

int RunOrvactl(const std::vector<std::wstring>& args, ITextSink& out, ITextSink& err,
               ZelCommon::Storage::IProfileApi& api) {
    if (args.empty()) {
        return ReportUsageError(err, L"missing command");
    }
    const std::span<const std::wstring> rest = std::span(args).subspan(1);
    const auto asksForHelp = [](const std::wstring& arg) {
        return arg == L"--help" || arg == L"-h" || arg == L"help";
    };
    // "orvactl ini --help" and "orvactl settings --help" too.
    if (asksForHelp(args[0]) || (args.size() > 1 && asksForHelp(args[1]))) {
        out.Write(HelpText());
        return kExitOk;
    }
    if (args[0] == L"ini") {
        return RunIniCommand(rest, out, err, api);
    }
    if (args[0] == L"settings") {
        return RunSettingsCommand(rest, out, err, api);
    }
    if (args[0] == L"sheet") {
        return RunSheetCommand(rest, out, err, api);
    }
    if (args[0] == L"statistics") {
        return RunStatisticsCommand(rest, out, err, api);
    }
    if (args[0] == L"lists") {
        return RunListsCommand(rest, out, err);
    }
    if (args[0] == L"encodings") {
        return RunEncodingsCommand(rest, out, err);
    }
    if (args[0] == L"account") {
        return RunAccountCommand(rest, out, err);
    }
    if (args[0] == L"strings") {
        return RunStringsCommand(rest, out, err, api);
    }
    return ReportUsageError(err, L"unknown command: " + args[0]);
}

}  // namespace Orva::Orvactl
