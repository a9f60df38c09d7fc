#include "StringsCommand.h"

#include <optional>
#include <vector>

#include "CommandErrors.h"
#include "NamedOption.h"
#include "Orvactl.h"
#include "common_src/platform/Locale.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"
#include "settings/localisation/StringEscapes.h"
#include "settings/localisation/StringIds.h"
#include "settings/localisation/StringTableCheck.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Orvactl {
namespace {

struct StringsOptions {
    std::wstring localeName;
    bool chooseAsTheAddin = false;  // --auto
    std::wstring resourceFolder;
    std::wstring section = std::wstring(Settings::kAddinStringSection);
    std::optional<std::wstring> id;
};

// Accepts "--name VALUE" and "--name=VALUE", and "--auto"; one argument without dashes is the
// id.
std::optional<StringsOptions> ParseOptions(std::span<const std::wstring> args, ITextSink& err,
                                           int& exitCode) {
    StringsOptions options;
    for (size_t at = 0; at < args.size(); ++at) {
        if (args[at].rfind(L"--", 0) != 0) {
            if (options.id) {
                exitCode = ReportUsageError(err, L"'strings' takes one ID, not " + args[at]);
                return std::nullopt;
            }
            options.id = args[at];
            continue;
        }
        if (args[at] == L"--auto") {
            options.chooseAsTheAddin = true;
            continue;
        }
        const auto [name, value] = TakeNamedOption(args, at);
        std::wstring* target = name == L"--locale"            ? &options.localeName
                               : name == L"--resource-folder" ? &options.resourceFolder
                               : name == L"--section"         ? &options.section
                                                              : nullptr;
        if (target == nullptr) {
            exitCode = ReportUsageError(err, L"unknown option for 'strings': " + name);
            return std::nullopt;
        }
        if (!value || value->empty()) {
            exitCode = ReportUsageError(err, name + L" needs a value");
            return std::nullopt;
        }
        *target = *value;
    }
    const bool namesALocale = !options.localeName.empty();
    if (namesALocale == options.chooseAsTheAddin) {  // neither, or both
        exitCode = ReportUsageError(err, L"'strings' needs either --locale NAME or --auto");
        return std::nullopt;
    }
    return options;
}

std::wstring TableFile(const std::wstring& resourceFolder, const std::wstring& localeName) {
    return ZelCommon::Path::ChildFile(ZelCommon::Path::ChildFolder(resourceFolder, localeName),
                                      ZelResourceStringLoader::kTableFileName);
}

// Runs the add-in's own choice and prints what it was made from, so that an administrator sees
// why a user gets the texts he gets: the system locale id, Windows' name for it ("-" for none)
// and the chosen table's locale.
std::wstring ChooseAsTheAddin(const std::wstring& resourceFolder, ITextSink& out) {
    const ZelCommon::Platform::ILocale& system = ZelCommon::Platform::SystemLocale();
    const uint32_t lcid = system.SystemDefaultLcid();
    const std::wstring windowsName = system.LcidToLocaleName(lcid);
    std::wstring chosen = ZelResourceStringLoader().ChooseTableLocale(resourceFolder);
    out.Write(ZelCommon::Text::Format(L"%u %s %s\n", lcid, windowsName.empty() ? L"-" : windowsName,
                                      chosen));
    return chosen;
}

int PrintOne(const std::vector<Settings::StringTableEntry>& table, const StringsOptions& options,
             ITextSink& out, ITextSink& err) {
    for (const Settings::StringTableEntry& entry : table) {
        if (entry.id == *options.id && !entry.text.empty()) {
            out.Write(Settings::ExpandStringEscapes(entry.text));
            out.Write(L"\n");
            return kExitOk;
        }
    }
    return ReportFailure(err, options.localeName + L" has no text for " + *options.id);
}

int CheckAll(const std::vector<Settings::StringTableEntry>& table,
             const std::vector<Settings::StringTableEntry>* reference,
             const StringsOptions& options, ITextSink& out) {
    // The add-in's own ids are required only of its own section.
    const bool addinSection = options.section == Settings::kAddinStringSection;
    const Settings::StringTableFindings findings = Settings::CheckStringTable(
        table, addinSection ? Settings::AddinStringIds() : std::span<const std::wstring_view>(),
        reference);
    for (const std::wstring& id : findings.missingIds) {
        out.Write(L"missing: " + id + L"\n");
    }
    for (const std::wstring& id : findings.missingFromLocale) {
        out.Write(L"missing (present in en-US): " + id + L"\n");
    }
    for (const Settings::PlaceholderUse& use : findings.unknownPlaceholders) {
        out.Write(L"unknown placeholder " + use.placeholder + L" in " + use.id + L"\n");
    }
    for (const std::wstring& id : findings.conversionMismatches) {
        out.Write(L"format differs from en-US: " + id + L"\n");
    }
    const size_t problems = findings.missingIds.size() + findings.missingFromLocale.size() +
                            findings.unknownPlaceholders.size() +
                            findings.conversionMismatches.size();
    if (problems == 0) {
        out.Write(ZelCommon::Text::Format(L"%s: %u ids, complete\n", options.localeName,
                                          static_cast<unsigned>(table.size())));
        return kExitOk;
    }
    out.Write(ZelCommon::Text::Format(L"%s: %u ids, %u problems\n", options.localeName,
                                      static_cast<unsigned>(table.size()),
                                      static_cast<unsigned>(problems)));
    return kExitFailure;
}

}  // namespace

int RunStringsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                      ZelCommon::Storage::IProfileApi& api) {
    int exitCode = kExitOk;
    std::optional<StringsOptions> options = ParseOptions(args, err, exitCode);
    if (!options) {
        return exitCode;
    }
    if (options->resourceFolder.empty()) {
        options->resourceFolder = ZelResourceStringLoader().GetResourcePath();
    }
    if (options->chooseAsTheAddin) {
        options->localeName = ChooseAsTheAddin(options->resourceFolder, out);
    }
    const std::wstring file = TableFile(options->resourceFolder, options->localeName);
    if (!ZelCommon::Path::FileExists(file)) {
        return ReportFailure(err, L"no string table: " + file);
    }
    const auto table = Settings::ReadStringTableSection(api, file, options->section);
    if (!table) {
        return ReportFailure(err, L"no section [" + options->section + L"] in " + file);
    }
    if (options->id) {
        return PrintOne(*table, *options, out, err);
    }
    const std::wstring english(ZelResourceStringLoader::kDefaultLocale);
    if (options->localeName == english) {
        return CheckAll(*table, nullptr, *options, out);
    }
    const auto reference = Settings::ReadStringTableSection(
        api, TableFile(options->resourceFolder, english), options->section);
    if (!reference) {
        return ReportFailure(err, L"no en-US table to compare with in " + options->resourceFolder);
    }
    return CheckAll(*table, &*reference, *options, out);
}

std::wstring StringsHelpText() {
    return LR"(strings command (the localised string tables, StringTable.ini per locale folder):
  orvactl strings --locale NAME [--resource-folder DIR] [--section NAME] [ID]
  orvactl strings --auto [--resource-folder DIR] [--section NAME] [ID]
      With ID, prints the text of ID from the NAME table as the add-in shows it ("\n" and
      "\r" become line breaks; placeholders such as <$PRODUCT NAME> stay as they are).
      Without ID, checks the whole table and prints one line per problem:
        missing: ID                      an id the add-in loads has no text
        missing (present in en-US): ID   the en-US table has the id, NAME does not
        unknown placeholder <$X> in ID   only <$PRODUCT NAME>, <$CORP_NAME> and <$SPAM_NAME>
                                         are expanded
        format differs from en-US: ID    the %d/%s conversions differ from the en-US text
      then "NAME: N ids, complete" or "NAME: N ids, P problems". Exits 1 on any problem.
      DIR is the folder holding the locale folders (in a checkout: res/Resource/x86); by
      default the installed product's, found as the add-in finds it. The section defaults to
      ORVA_WLM; other sections are checked for placeholders and against en-US only.
      --auto chooses NAME as the add-in does (the system's default locale, LanguageMap.ini in
      DIR, the locale's language, en-US) and first prints one line with the system's locale id
      in decimal, Windows' name for it ("-" when it has none) and the chosen NAME, for example
      "2058 es-MX es-ES"; the rest is printed as with --locale NAME.
)";
}

}  // namespace Orva::Orvactl
