#include "SheetCommand.h"

#include <algorithm>
#include <optional>

#include "CommandErrors.h"
#include "FileChecks.h"
#include "NamedOption.h"
#include "Orvactl.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/WindowMessaging.h"
#include "plugin/agent/AgentNotices.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/log/DebugLog.h"
#include "ui/AdvancedPageModel.h"
#include "ui/LinkFilterPageModel.h"
#include "ui/SpamDetectionPageModel.h"

namespace Orva::Orvactl {
namespace {

using ZelCommon::Platform::WindowHandle;

struct SheetFiles {
    std::wstring settings;
    std::wstring install;
};

// The profile functions, with the file named "" standing for one that does not exist: its
// reads give their defaults and nothing can be written to it.
class AbsentFileProfileApi final : public ZelCommon::Storage::IProfileApi {
public:
    explicit AbsentFileProfileApi(ZelCommon::Storage::IProfileApi& api) : m_api(api) {}

    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        if (!IsAbsent(file)) {
            return m_api.GetString(section, key, defaultValue, buffer, size, file);
        }
        if (section == nullptr || key == nullptr) {
            return EmptyList(buffer, size);
        }
        return CopyDefault(defaultValue, buffer, size);
    }
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override {
        return IsAbsent(file) ? static_cast<uint32_t>(defaultValue)
                              : m_api.GetInt(section, key, defaultValue, file);
    }
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override {
        return IsAbsent(file) ? EmptyList(buffer, size)
                              : m_api.GetSection(section, buffer, size, file);
    }
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        return IsAbsent(file) ? EmptyList(buffer, size) : m_api.GetSectionNames(buffer, size, file);
    }
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override {
        return !IsAbsent(file) && m_api.WriteString(section, key, value, file);
    }
    uint32_t LastError() const override { return m_api.LastError(); }

private:
    static bool IsAbsent(const wchar_t* file) { return file == nullptr || *file == L'\0'; }
    static uint32_t EmptyList(wchar_t* buffer, uint32_t size) {
        std::fill_n(buffer, std::min<uint32_t>(size, 2), L'\0');
        return 0;
    }
    static uint32_t CopyDefault(const wchar_t* defaultValue, wchar_t* buffer, uint32_t size) {
        if (size == 0) {
            return 0;
        }
        const std::wstring_view text = defaultValue == nullptr ? L"" : defaultValue;
        const auto count = static_cast<uint32_t>(std::min<std::size_t>(text.size(), size - 1));
        std::copy_n(text.data(), count, buffer);
        buffer[count] = L'\0';
        return count;
    }

    ZelCommon::Storage::IProfileApi& m_api;
};

// No agent runs for the tool: every notice is dropped, as when the agent's window is absent.
class NoWindows final : public ZelCommon::Platform::IWindowMessaging {
public:
    WindowHandle FindByTitle(const std::wstring&) override { return 0; }
    WindowHandle FindByClass(const std::wstring&) override { return 0; }
    bool Post(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return false; }
    intptr_t Send(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return 0; }
};

// The pages' models read no text; the sheet's windows do.
class NoStrings final : public Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring&) override { return {}; }
    std::wstring LoadShown(const std::wstring&) override { return {}; }
    void Release() override {}
};

class NoDebugger final : public ZelCommon::Platform::IDebuggerOutput {
public:
    void Write(const std::wstring&) override {}
};

std::optional<SheetFiles> ParseFiles(std::span<const std::wstring> args, ITextSink& err,
                                     int& exitCode) {
    SheetFiles files;
    const RequiredOption options[] = {{L"--settings", &files.settings},
                                      {L"--install", &files.install, true}};
    if (const std::optional<int> failed = TakeRequiredOptions(
            args, options, L"sheet", L"a file", L"'sheet' needs --settings FILE", err)) {
        exitCode = *failed;
        return std::nullopt;
    }
    return files;
}

// A settings file that does not exist yet is a new user's: every page shows its defaults.
std::optional<std::wstring> WhyNotSettingsFile(const std::wstring& path) {
    if (const auto problem = WhyNotWritableFile(path)) {
        return problem;
    }
    return ZelCommon::Path::FileExists(path) ? WhyNotReadableFile(path) : std::nullopt;
}

}  // namespace

std::wstring SheetHelpText() {
    return LR"(sheet command:
  orvactl sheet --settings FILE [--install FILE]
      Reads the filtering sheet's detection-level, link-filter and advanced pages from the
      user's settings file FILE (and the installation settings file, absent when --install
      is not given) as the add-in's pages read them, and prints what their OK would write,
      one "Key = value" a line: GlobalLevel, ProtectLevel, the seven category levels,
      EnableInTheCloud, EnableWexor, SecurityLevel, PurgeDays, AutoMoved, DeleteDeleted,
      NotifyIcon. Damaged values show as the pages correct them. Nothing is written.
)";
}

int RunSheetCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                    ZelCommon::Storage::IProfileApi& api) {
    int exitCode = kExitOk;
    const std::optional<SheetFiles> files = ParseFiles(args, err, exitCode);
    if (!files) {
        return exitCode;
    }
    if (const auto problem = WhyNotSettingsFile(files->settings)) {
        return ReportFailure(err, *problem);
    }
    if (!files->install.empty()) {
        if (const auto problem = WhyNotReadableFile(files->install)) {
            return ReportFailure(err, *problem);
        }
    }

    AbsentFileProfileApi profile(api);
    Settings::SettingsStore settings(
        profile, Settings::SettingsFiles{files->install, files->settings, L"", false});
    NoWindows windows;
    Plugin::CAgentNotices agent(windows);
    NoStrings strings;
    NoDebugger debugger;
    ZelCommon::Library::DebugLog log(ZelCommon::Platform::SystemClock(),
                                     ZelCommon::Platform::SystemProcessContext(), debugger);
    Ui::PageServices services{settings, agent, strings, log};

    Ui::CSpamDetectionPageModel spamDetection(services);
    Ui::CLinkFilterPageModel linkFilter(services);
    Ui::CAdvancedPageModel advanced(services);
    spamDetection.Load();
    linkFilter.Load();
    advanced.Load();
    for (const Ui::PendingWrites& page :
         {spamDetection.PendingWrites(), linkFilter.PendingWrites(), advanced.PendingWrites()}) {
        for (const Ui::PendingWrite& write : page) {
            out.Write(std::wstring(Settings::Entry(write.id).key) + L" = " + write.value + L"\n");
        }
    }
    return kExitOk;
}

}  // namespace Orva::Orvactl
