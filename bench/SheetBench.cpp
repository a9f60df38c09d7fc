#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/WindowMessaging.h"
#include "lists/EncodingSet.h"
#include "lists/SenderListSet.h"
#include "lists/SenderLists.h"
#include "plugin/agent/AgentNotices.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/log/DebugLog.h"
#include "ui/FilteringSheetModel.h"

namespace {

using ZelCommon::Platform::WindowHandle;

class NoWindows final : public ZelCommon::Platform::IWindowMessaging {
public:
    WindowHandle FindByTitle(const std::wstring&) override { return 0; }
    WindowHandle FindByClass(const std::wstring&) override { return 0; }
    bool Post(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return false; }
    intptr_t Send(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return 0; }
};

class NoStrings final : public Orva::Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring&) override { return {}; }
    std::wstring LoadShown(const std::wstring&) override { return {}; }
    void Release() override {}
};

class NoDebugger final : public ZelCommon::Platform::IDebuggerOutput {
public:
    void Write(const std::wstring&) override {}
};

// Nobody at the screen: every box and dialog is cancelled, and no contact is imported.
class NoUser final : public Orva::Ui::IMessageBoxes,
                     public Orva::Ui::IEditSenderDialog,
                     public Orva::Ui::IContactImport {
public:
    Orva::Ui::BoxAnswer Show(WindowHandle, const std::wstring&, const std::wstring&,
                             uint32_t) override {
        return Orva::Ui::BoxAnswer::Cancel;
    }
    std::optional<Orva::Ui::SenderFields> Run(WindowHandle, const std::wstring&,
                                              const Orva::Ui::SenderFields&) override {
        return std::nullopt;
    }
    void RunContactImport(WindowHandle) override {}
};

template <class Set>
void SaveFullList(const std::wstring& path, const wchar_t* domain) {
    Set set;
    for (int i = 0; i < 8000; ++i) {
        const std::wstring address = i % 25 == 0 ? L"*@bulk" + std::to_wstring(i) + L".biz"
                                                 : L"sender." + std::to_wstring(i) + L"@" + domain;
        set.Add(address.c_str(),
                {i % 3 == 0 ? L"" : L"Sender M\u00fcller " + std::to_wstring(i), address});
    }
    set.Save(path);
}

// A user's data folder as it is after years of use: both sender lists full, a few blocked
// encodings, and a settings file with the sheet's keys among others.
class FullDataFolder {
public:
    FullDataFolder()
        : m_folder(std::filesystem::temp_directory_path() /
                   ("orva_sheet_bench_" +
                    std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()))) {
        std::filesystem::create_directories(m_folder);
        m_data = ZelCommon::Path::ChildFolder(m_folder.wstring(), L"");
        SaveFullList<Orva::Lists::CWListSet>(Orva::Lists::ApprovedListPath(m_data),
                                             L"friends.example");
        SaveFullList<Orva::Lists::CBListSet>(Orva::Lists::BlockedListPath(m_data), L"spam.example");
        Orva::Lists::CEncodingSet encodings;
        for (int group = 0; group < 20; ++group) {
            encodings.AddGroup(L"Group " + std::to_wstring(group),
                               {group % 2 == 0, {932 + group, 20000 + group, 50220 + group}});
        }
        encodings.Save(Orva::Lists::EncodingsPath(m_data));
        m_settings = ZelCommon::Path::ChildFile(m_data, L"ORVA_WLM.ini");
        m_install = ZelCommon::Path::ChildFile(m_data, L"ORVA_WLM.install.ini");
        auto& api = ZelCommon::Storage::SystemProfileApi();
        for (const wchar_t* key :
             {L"GlobalLevel", L"ProtectLevel", L"SexualLevel", L"HealthLevel", L"EnableInTheCloud",
              L"PurgeDays", L"AutoMoved", L"NotifyIcon", L"ORVAStartTimes", L"AutoApprove"}) {
            api.WriteString(L"General", key, L"1", m_settings.c_str());
        }
        api.WriteString(L"Wexor", L"EnableWexor", L"2", m_settings.c_str());
        api.WriteString(L"Wexor", L"EnableWexor", L"1", m_install.c_str());
        api.WriteString(L"Wexor", L"SecurityLevel", L"3", m_install.c_str());
    }
    ~FullDataFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    FullDataFolder(const FullDataFolder&) = delete;
    FullDataFolder& operator=(const FullDataFolder&) = delete;

    const std::wstring& Data() const { return m_data; }
    const std::wstring& Settings() const { return m_settings; }
    const std::wstring& Install() const { return m_install; }

private:
    std::filesystem::path m_folder;
    std::wstring m_data;
    std::wstring m_settings;
    std::wstring m_install;
};

// What a sheet is opened with: the full data folder's settings, and no agent, texts or user.
struct SheetServices {
    Orva::Ui::CFilteringSheetModel NewSheet() {
        return {
            services, {folder.Settings(), folder.Data(), folder.Data(), L""}, {user, user, user}};
    }

    FullDataFolder folder;
    Orva::Settings::SettingsStore settings{ZelCommon::Storage::SystemProfileApi(),
                                           {folder.Install(), folder.Settings(), L"", false}};
    NoWindows windows;
    Orva::Plugin::CAgentNotices agent{windows};
    NoStrings strings;
    NoDebugger debugger;
    ZelCommon::Library::DebugLog log{ZelCommon::Platform::SystemClock(),
                                     ZelCommon::Platform::SystemProcessContext(), debugger};
    Orva::Ui::PageServices services{settings, agent, strings, log};
    NoUser user;
};

// Opening the sheet as far as its data goes: both sender lists, the three settings pages and
// the blocked encodings, from a fresh sheet each time.
void BM_SheetOpen(benchmark::State& state) {
    SheetServices rig;
    std::size_t entries = 0;
    for (auto _ : state) {
        Orva::Ui::CFilteringSheetModel sheet = rig.NewSheet();
        sheet.SetUp();
        sheet.SpamDetection().Load();
        sheet.LinkFilter().Load();
        sheet.Advanced().Load();
        Orva::Lists::CEncodingSet encodings;
        encodings.Load(Orva::Lists::EncodingsPath(rig.folder.Data()));
        entries = sheet.Approved().Count() + sheet.Blocked().Count();
        benchmark::DoNotOptimize(entries + encodings.Groups().size());
    }
    state.counters["entries"] = static_cast<double>(entries);
}
BENCHMARK(BM_SheetOpen)->Unit(benchmark::kMillisecond);

// The approved page's first showing over a full list: the lists read, the page's texts and
// settings, and its rows sorted by name, ready for the list view.
void BM_ApprovedPageOpen(benchmark::State& state) {
    SheetServices rig;
    std::size_t rows = 0;
    for (auto _ : state) {
        Orva::Ui::CFilteringSheetModel sheet = rig.NewSheet();
        sheet.SetUp();
        Orva::Ui::CSenderPageModel& page = sheet.ApprovedSenders();
        page.Load(0);
        page.Rows().SortBy(Orva::Ui::SortColumn::Name);
        rows = page.Rows().Count();
        benchmark::DoNotOptimize(page.Rows().At(rows / 2));
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(BM_ApprovedPageOpen)->Unit(benchmark::kMillisecond);

}  // namespace
