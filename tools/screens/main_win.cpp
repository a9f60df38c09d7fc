// Opens every page of the filtering sheet, the category dialog, the statistics dialog (with its
// pie, and with its chart disabled by a damaged counter), the About box and the updates and proxy
// dialogs in the language Windows runs in, and saves each as a BMP file for scripts/screenshots.
//   orva_screens OUTPUT_FOLDER INSTALL_FOLDER LOCALE
// INSTALL_FOLDER holds ORVA\Resource\x86\<locale>\StringTable.ini and, as an add-in folder does,
// the default BlockEncodings.dat; LOCALE names the files.
#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/Locale.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowMessaging.h"
#include "lists/EncodingSet.h"
#include "lists/SenderLists.h"
#include "plugin/agent/AgentNotices.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/LoaderStrings.h"
#include "settings/localisation/StringLoaderServices.h"
#include "settings/log/DebugLog.h"
#include "support/ModalDriver_win.h"
#include "tools/screens/WindowCapture_win.h"
#include "ui/AboutContent.h"
#include "ui/AboutDialog_win.h"
#include "ui/AboutIds.h"
#include "ui/ConfirmationDialog_win.h"
#include "ui/ConfirmationIds.h"
#include "ui/DialogIds.h"
#include "ui/EditSenderDialog_win.h"
#include "ui/FeedbackIds.h"
#include "ui/FilteringSheet_win.h"
#include "ui/ImportDialog_win.h"
#include "ui/MessageBoxes_win.h"
#include "ui/PasswordProtector_win.h"
#include "ui/StatisticsDialog_win.h"
#include "ui/StatisticsIds.h"
#include "ui/UpdatesDialog_win.h"
#include "ui/UpdatesIds.h"

namespace {

using Orva::Testing::CModalDriver;

constexpr const wchar_t* kPageNames[] = {L"spam-detection",    L"link-filter",
                                         L"approved-senders",  L"blocked-senders",
                                         L"blocked-encodings", L"advanced"};

// The locale the screenshots are taken in, whatever Windows runs in: the string loader chooses
// its table by it as it would by the system's.
class ShotLocale final : public ZelCommon::Platform::ILocale {
public:
    explicit ShotLocale(const std::wstring& name) : m_lcid(::LocaleNameToLCID(name.c_str(), 0)) {}
    uint32_t SystemDefaultLcid() const override { return m_lcid; }
    std::wstring LcidToLocaleName(uint32_t lcid) const override {
        return ZelCommon::Platform::SystemLocale().LcidToLocaleName(lcid);
    }

private:
    uint32_t m_lcid;
};

// The contact import is not part of the screenshots.
class NoContactImport final : public Orva::Ui::IContactImport {
public:
    void RunContactImport(ZelCommon::Platform::WindowHandle) override {}
};

// A step that lets the window paint before the next one.
CModalDriver::NamedStep Settle() {
    return {"settle", [ticks = 0]() mutable { return ++ticks > 8; }};
}

class ScreenRun {
public:
    ScreenRun(std::filesystem::path output, std::wstring installFolder, std::wstring locale)
        : m_output(std::move(output)),
          m_locale(std::move(locale)),
          m_shotLocale(m_locale),
          m_services(MakeServices(installFolder)),
          m_dataFolder((m_output / L"data").wstring() + L"\\") {
        PrepareEncodings(installFolder);
    }

    int Run() {
        int failures = 0;
        PrepareSenderLists();
        for (int page = 0; page < Orva::Ui::kSheetPageCount; ++page) {
            failures += Shoot(page, {}) ? 0 : 1;
        }
        failures +=
            Shoot(0, {{"custom level",
                       [] {
                           const HWND sheet = Orva::Testing::FindPropertySheet();
                           const HWND button =
                               sheet ? Orva::Testing::FindDescendant(sheet, IDC_BUTTON_CUSTOM_LEVEL)
                                     : nullptr;
                           if (button != nullptr) {
                               Orva::Testing::Click(button);
                           }
                           return button != nullptr;
                       }},
                      Settle(),
                      {"category dialog",
                       [this] {
                           const HWND dialog = Orva::Testing::FindDialogHolding(IDC_COMBO_SEXUAL);
                           return dialog != nullptr && Save(dialog, L"category-level");
                       }}})
                ? 0
                : 1;
        failures += ShootEditSender() ? 0 : 1;
        failures += ShootConfirmation() ? 0 : 1;
        failures += ShootAbout() ? 0 : 1;
        failures += ShootStatistics(L"statistics", L"6") ? 0 : 1;
        failures += ShootStatistics(L"statistics-disabled", L"-1") ? 0 : 1;
        failures += ShootUpdates() ? 0 : 1;
        failures += ShootImport() ? 0 : 1;
        return failures;
    }

private:
    // What the pages read and write, over files of the output folder and the shipped tables.
    class Services {
    public:
        Services(const Orva::Settings::SettingsFiles& files,
                 const Orva::Settings::StringLoaderServices& loaderServices)
            : settings(ZelCommon::Storage::SystemProfileApi(), files),
              agent(ZelCommon::Platform::SystemWindowMessaging()),
              loader(loaderServices),
              strings(loader, files.installFile, ZelCommon::Storage::SystemProfileApi()),
              page{settings, agent, strings, ZelCommon::Library::TheLog()} {}

        Orva::Settings::SettingsStore settings;
        Orva::Plugin::CAgentNotices agent;
        ZelResourceStringLoader loader;
        Orva::Settings::CLoaderStrings strings;
        Orva::Ui::PageServices page;
    };

    Orva::Settings::SettingsFiles Files() const {
        return {(m_output / L"install.ini").wstring(), (m_output / L"user.ini").wstring(),
                (m_output / L"version.ini").wstring(), false};
    }

    std::unique_ptr<Services> MakeServices(const std::wstring& installFolder) {
        const auto system = Orva::Settings::SystemStringLoaderServices();
        const Orva::Settings::StringLoaderServices loaderServices{
            system.profile, system.registry,    m_shotLocale, system.process,
            system.log,     system.isWindows64, installFolder};
        return std::make_unique<Services>(Files(), loaderServices);
    }

    // The user's data folder starts with the installation's default groups, two of them ticked.
    void PrepareEncodings(const std::wstring& installFolder) const {
        std::filesystem::create_directories(std::filesystem::path(m_dataFolder));
        Orva::Lists::CEncodingSet encodings;
        encodings.Load(Orva::Lists::EncodingsPath(installFolder));
        encodings.SetBlocked(L"Cyrillic", true);
        encodings.SetBlocked(L"Japanese", true);
        encodings.Save(Orva::Lists::EncodingsPath(m_dataFolder));
    }

    bool Save(HWND window, const std::wstring& name) {
        const auto file = m_output / (name + L"." + m_locale + L".bmp");
        const bool saved = Orva::Screens::CaptureWindow(window, file.wstring());
        std::fwprintf(stdout, L"%ls %ls\n", saved ? L"saved" : L"FAILED", file.c_str());
        return true;
    }

    // Opens the sheet on `page`, saves it, runs `more`, and cancels.
    bool Shoot(int page, std::vector<CModalDriver::NamedStep> more) {
        Orva::Ui::CMessageBoxes boxes;
        Orva::Ui::CEditSenderDialogs editSender(boxes, m_services->strings);
        NoContactImport contacts;
        Orva::Ui::CFilteringSheetModel model(m_services->page,
                                             {Files().userFile, m_dataFolder, L"", L""},
                                             {boxes, editSender, contacts});
        model.SetUp();
        Orva::Ui::CFilteringSheet sheet(model, m_services->page, [](std::wstring_view) {});
        std::vector<CModalDriver::NamedStep> steps = {
            {"sheet", [] { return Orva::Testing::FindPropertySheet() != nullptr; }},
            {"page",
             [page] {
                 const HWND shown = Orva::Testing::FindPropertySheet();
                 PropSheet_SetCurSel(shown, nullptr, page);
                 return TabCtrl_GetCurSel(PropSheet_GetTabControl(shown)) == page;
             }},
            Settle(),
        };
        if (more.empty()) {
            steps.push_back({"save", [this, page] {
                                 return Save(Orva::Testing::FindPropertySheet(),
                                             std::wstring(L"filtering-sheet-") + kPageNames[page]);
                             }});
        }
        for (auto& step : more) {
            steps.push_back(std::move(step));
        }
        // Escape closes the category dialog first, then the sheet.
        steps.push_back({"close", [] {
                             const bool dialogOpen =
                                 Orva::Testing::FindDialogHolding(IDC_COMBO_SEXUAL) != nullptr;
                             Orva::Testing::PostKey(::GetFocus(), VK_ESCAPE);
                             return !dialogOpen;
                         }});
        CModalDriver driver(std::move(steps));
        const std::wstring caption = m_services->strings.LoadShown(L"IDS_STRING_FILTERING_SHEET");
        sheet.RunModal(caption, nullptr);
        return driver.Finished();
    }

    // A few hundred approved senders, some without a name, and a short blocked list.
    void PrepareSenderLists() const {
        Orva::Lists::CWListSet approved;
        const wchar_t* const names[] = {L"Anna Berger", L"", L"J\u00fcrgen M\u00fcller",
                                        L"Customer Service", L"Li Wei"};
        for (int i = 0; i < 320; ++i) {
            const std::wstring address = L"contact" + std::to_wstring(i) + L"@partner" +
                                         std::to_wstring(i % 17) + L".example.com";
            approved.Add(address.c_str(), {names[i % 5], address});
        }
        approved.Add(L"*@family.example.org", {L"", L"*@family.example.org"});
        approved.Save(Orva::Lists::ApprovedListPath(m_dataFolder));
        Orva::Lists::CBListSet blocked;
        for (const wchar_t* address :
             {L"offers@cheap-deals.example", L"*@bulk-mailer.example", L"winner@lottery.example"}) {
            blocked.Add(address, {L"", address});
        }
        blocked.Save(Orva::Lists::BlockedListPath(m_dataFolder));
    }

    // The edit dialog over the approved page, filled with its first row.
    bool ShootEditSender() {
        return Shoot(
            2,
            {{"edit first row",
              [] {
                  const HWND sheet = Orva::Testing::FindPropertySheet();
                  const HWND list =
                      sheet ? Orva::Testing::FindDescendant(sheet, IDC_LIST_VIEW) : nullptr;
                  if (list == nullptr || !::IsWindowVisible(list)) {
                      return false;
                  }
                  ListView_SetItemState(list, 0, LVIS_SELECTED, LVIS_SELECTED);
                  ::PostMessageW(::GetParent(list), WM_COMMAND,
                                 MAKEWPARAM(IDC_BUTTON_EDIT_SENDER, BN_CLICKED), 0);
                  return true;
              }},
             {"dialog",
              [] { return Orva::Testing::FindDialogHolding(IDC_EDIT_SENDER_ADDRESS) != nullptr; }},
             Settle(),
             {"save dialog",
              [this] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_EDIT_SENDER_ADDRESS);
                  Save(dialog, L"edit-sender");
                  Orva::Testing::Click(::GetDlgItem(dialog, IDCANCEL));
                  return true;
              }},
             {"dialog closed", [] {
                  return Orva::Testing::FindDialogHolding(IDC_EDIT_SENDER_ADDRESS) == nullptr;
              }}});
    }

    // The notice a user of an unsupported default account sees.
    bool ShootConfirmation() {
        auto& strings = m_services->strings;
        Orva::Ui::CConfirmationDlg notice(strings.LoadShown(L"IDS_CAPTION_UNSUPPORTED"),
                                          strings.LoadShown(L"IDS_MSG_UNSUPPORTED"), strings);
        CModalDriver driver(
            {{"notice",
              [] {
                  return Orva::Testing::FindDialogHolding(IDC_CHECK_DONT_SHOW_AGAIN) != nullptr;
              }},
             Settle(),
             {"save", [this] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_CHECK_DONT_SHOW_AGAIN);
                  Save(dialog, L"unsupported-server-notice");
                  Orva::Testing::Click(::GetDlgItem(dialog, IDOK));
                  return true;
              }}});
        notice.RunModal(nullptr);
        return driver.Finished();
    }

    // The About box as the add-in shows it, with this build's version.
    bool ShootAbout() {
        auto& page = m_services->page;
        Orva::Ui::CAboutDlg about(
            Orva::Ui::ReadAboutContent(page.settings, page.strings, L"",
                                       {ORVA_SCREENS_VERSION, L"screenshots"}),
            page, ZelCommon::Platform::SystemShellOpen(), [](HWND) {});
        CModalDriver driver(
            {{"about", [] { return Orva::Testing::FindDialogHolding(IDC_ABOUT_FILE) != nullptr; }},
             Settle(),
             {"save",
              [this] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_ABOUT_FILE);
                  Save(dialog, L"about");
                  Orva::Testing::Click(::GetDlgItem(dialog, IDC_ABOUT_FEEDBACK));
                  return true;
              }},
             {"feedback",
              [] { return Orva::Testing::FindDialogHolding(IDC_FEEDBACK_LINK) != nullptr; }},
             Settle(),
             {"save feedback",
              [this] {
                  const HWND feedback = Orva::Testing::FindDialogHolding(IDC_FEEDBACK_LINK);
                  Save(feedback, L"feedback-programme");
                  Orva::Testing::Click(::GetDlgItem(feedback, IDCANCEL));
                  return true;
              }},
             {"close about", [] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_ABOUT_FILE);
                  if (dialog == nullptr ||
                      Orva::Testing::FindDialogHolding(IDC_FEEDBACK_LINK) != nullptr) {
                      return false;
                  }
                  Orva::Testing::Click(::GetDlgItem(dialog, IDOK));
                  return true;
              }}});
        about.RunModal(nullptr);
        return driver.Finished();
    }

    // The updates dialog with rules ten days old, and the proxy dialog over it with a proxy set.
    bool ShootUpdates() {
        auto& page = m_services->page;
        using Orva::Settings::SettingId;
        page.settings.Set(SettingId::EngineVer, L"8.2.1");
        page.settings.Set(SettingId::PatchVer, L"20261114");
        page.settings.Set(SettingId::ORVAOEVer, L"1.00.0.0117");
        page.settings.SetInt(SettingId::LastUpdateTime,
                             static_cast<int32_t>(std::time(nullptr) - 10 * 86400));
        page.settings.Set(SettingId::HTTPProxy, L"proxy.example.com");
        page.settings.SetInt(SettingId::HTTPPort, 8080);
        page.settings.Set(SettingId::ProxyUserName, L"anna");
        Orva::Ui::CMessageBoxes boxes;
        Orva::Ui::CUserPasswordProtector protector;
        page.settings.Set(SettingId::ProxyPassword,
                          Orva::Ui::StoredPasswordOf(protector, L"secret").value_or(L""));
        CModalDriver driver(
            {{"updates",
              [] { return Orva::Testing::FindDialogHolding(IDC_UPDATES_NOW) != nullptr; }},
             Settle(),
             {"save",
              [this] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_UPDATES_NOW);
                  Save(dialog, L"updates");
                  Orva::Testing::Click(::GetDlgItem(dialog, IDC_UPDATES_PROXY));
                  return true;
              }},
             {"proxy",
              [] { return Orva::Testing::FindDialogHolding(IDC_PROXY_PASSWORD) != nullptr; }},
             Settle(),
             {"save proxy",
              [this] {
                  const HWND proxy = Orva::Testing::FindDialogHolding(IDC_PROXY_PASSWORD);
                  Save(proxy, L"proxy-settings");
                  Orva::Testing::Click(::GetDlgItem(proxy, IDCANCEL));
                  return true;
              }},
             {"close updates", [] {
                  const HWND dialog = Orva::Testing::FindDialogHolding(IDC_UPDATES_NOW);
                  if (dialog == nullptr ||
                      Orva::Testing::FindDialogHolding(IDC_PROXY_PASSWORD) != nullptr) {
                      return false;
                  }
                  Orva::Testing::Click(::GetDlgItem(dialog, IDCANCEL));
                  return true;
              }}});
        Orva::Ui::RunUpdatesDialog(
            page,
            {ZelCommon::Storage::SystemRegistryApi(), ZelCommon::Platform::SystemWindowMessaging(),
             ZelCommon::Platform::SystemProcessLauncher()},
            L"", {boxes, protector}, nullptr);
        return driver.Finished();
    }

    // The contact import's progress window part of the way through an address book.
    bool ShootImport() {
        Orva::Ui::CImportDlg dialog(m_services->strings, nullptr);
        dialog.Open();
        dialog.SetRange(120);
        for (int contact = 0; contact < 45; ++contact) {
            dialog.Step();
        }
        dialog.ShowAddress(L"anna.weber@example.com");
        for (int pass = 0; pass < 20; ++pass) {
            dialog.Cancelled();
            ::Sleep(10);
        }
        const bool saved = dialog.Handle() != nullptr && Save(dialog.Handle(), L"import-progress");
        dialog.Close();
        return saved;
    }

    // The dialog over counters written into the output folder's user file; no agent runs.
    bool ShootStatistics(const std::wstring& name, const wchar_t* reportedFP) {
        const std::wstring file = Files().userFile;
        const std::pair<const wchar_t*, const wchar_t*> counters[] = {
            {L"ProcessedMsg", L"1250"},
            {L"DetectedSpam", L"310"},
            {L"ReportedSpam", L"42"},
            {L"ReportedFP", reportedFP},
            {L"RunningSince", L"1700000000"}};
        for (const auto& [key, value] : counters) {
            ::WritePrivateProfileStringW(L"Statistics", key, value, file.c_str());
        }
        Orva::Ui::CMessageBoxes boxes;
        Orva::Ui::CStatisticsModel model(m_services->page, boxes);
        Orva::Ui::CStatisticsDialog dialog(model, m_services->page);
        CModalDriver driver({
            {"statistics",
             [] { return Orva::Testing::FindDialogHolding(IDC_STAT_CHART) != nullptr; }},
            Settle(),
            {"save",
             [this, name] { return Save(Orva::Testing::FindDialogHolding(IDC_STAT_CHART), name); }},
            {"close",
             [] {
                 Orva::Testing::PostKey(::GetFocus(), VK_ESCAPE);
                 return true;
             }},
        });
        dialog.RunModal(nullptr);
        return driver.Finished();
    }

    std::filesystem::path m_output;
    std::wstring m_locale;
    ShotLocale m_shotLocale;
    std::unique_ptr<Services> m_services;
    std::wstring m_dataFolder;
};

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc != 4) {
        std::fwprintf(stderr, L"usage: orva_screens OUTPUT_FOLDER INSTALL_FOLDER LOCALE\n");
        return 2;
    }
    ::SetProcessDPIAware();
    return ScreenRun(argv[1], argv[2], argv[3]).Run() == 0 ? 0 : 1;
}
