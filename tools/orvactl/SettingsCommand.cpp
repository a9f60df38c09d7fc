#include "SettingsCommand.h"

#include <optional>

#include "CommandErrors.h"
#include "FileChecks.h"
#include "NamedOption.h"
#include "Orvactl.h"
#include "SettingsReport.h"
#include "TextTable.h"
#include "common_src/platform/Path.h"
#include "settings/Presets.h"
#include "settings/SettingsPaths.h"

namespace Orva::Orvactl {
namespace {

struct Folders {
    std::wstring install;
    std::wstring user;
};

// Accepts "--name VALUE" and "--name=VALUE".
std::optional<Folders> ParseFolders(std::span<const std::wstring> args, ITextSink& err,
                                    int& exitCode) {
    Folders folders;
    const RequiredOption options[] = {{L"--install-dir", &folders.install},
                                      {L"--user-dir", &folders.user}};
    if (const std::optional<int> failed =
            TakeRequiredOptions(args, options, L"settings", L"a folder",
                                L"'settings' needs --install-dir DIR and --user-dir DIR", err)) {
        exitCode = *failed;
        return std::nullopt;
    }
    return folders;
}

}  // namespace

int RunSettingsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                       ZelCommon::Storage::IProfileApi& api) {
    int exitCode = kExitOk;
    const std::optional<Folders> folders = ParseFolders(args, err, exitCode);
    if (!folders) {
        return exitCode;
    }
    if (const auto problem = WhyNotFolder(folders->install)) {
        return ReportFailure(err, L"installation folder " + *problem);
    }
    const std::wstring installFile = Settings::InstallFileIn(folders->install);
    if (ZelCommon::Path::FileExists(installFile) || ZelCommon::Path::FolderExists(installFile)) {
        if (const auto problem = WhyNotReadableFile(installFile)) {
            return ReportFailure(err, *problem);
        }
    } else {
        err.Write(L"orvactl: note: " + installFile +
                  L" does not exist; only the built-in presets (NotifyIcon 0, "
                  L"EnableInTheCloud 1) apply\n");
    }

    const bool userPathTaken =
        ZelCommon::Path::FolderExists(folders->user) || ZelCommon::Path::FileExists(folders->user);
    if (!userPathTaken && !ZelCommon::Path::CreateFolderWithParents(folders->user)) {
        return ReportFailure(err, L"user folder " + folders->user + L": cannot be created");
    }
    if (const auto problem = WhyNotFolder(folders->user)) {
        return ReportFailure(err, L"user folder " + *problem);
    }
    const std::wstring userFile = Settings::UserFileIn(folders->user);
    if (const auto problem = WhyNotWritableFile(userFile)) {
        return ReportFailure(err, *problem);
    }

    Settings::SettingsStore store(api, Settings::SettingsFiles{installFile, userFile, L"", false});
    Settings::ApplyPresets(store);

    std::vector<std::vector<std::wstring>> table{{L"SECTION", L"KEY", L"VALUE", L"SOURCE"}};
    for (SettingRow& row : DescribeUserSettings(store)) {
        table.push_back({std::move(row.section), std::move(row.key), std::move(row.value),
                         std::wstring(SourceName(row.source))});
    }
    out.Write(FormatTable(table));
    return kExitOk;
}

}  // namespace Orva::Orvactl
