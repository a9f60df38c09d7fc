#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "common_src/platform/AtomicFile.h"
#include "lists/SenderListSet.h"
#include "lists/SenderLists.h"
#include "settings/log/DebugLog.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "support/fakes/plugin/FakeContacts.h"
#include "ui/ContactImportRun.h"

namespace {

class NoBoxes final : public Orva::Ui::IMessageBoxes {
public:
    Orva::Ui::BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring&,
                             const std::wstring&, uint32_t) override {
        return Orva::Ui::BoxAnswer::No;
    }
};

class NoStrings final : public Orva::Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring&) override { return {}; }
    std::wstring LoadShown(const std::wstring&) override { return {}; }
    void Release() override {}
};

// Contacts with a home and a work address each, and a name.
ZelCommon::Fakes::FakeContacts AddressBook(int count) {
    ZelCommon::Fakes::FakeContacts book;
    for (int i = 0; i < count; ++i) {
        const std::wstring n = std::to_wstring(i);
        book.contacts.push_back(
            {L"Contact M\u00fcller " + n,
             {L"home." + n + L"@example.com", L"work." + n + L"@halvion.net", L"", L"", L""}});
    }
    return book;
}

// 5000 contacts into an approved list that holds `listed` entries already.
void ImportContacts(benchmark::State& state) {
    const auto listed = static_cast<int>(state.range(0));
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / "orva-import-bench";
    std::filesystem::create_directories(folder);
    const Orva::Lists::SenderListPaths paths =
        Orva::Lists::SenderListPathsIn(folder.wstring() + L"/");
    std::string before;
    {
        Orva::Lists::CWListSet approved;
        for (int i = 0; i < listed; ++i) {
            const std::wstring address = L"listed" + std::to_wstring(i) + L"@example.org";
            approved.Add(address.c_str(), {L"Listed", address});
        }
        approved.SaveTo(paths.approved);
        ZelCommon::Platform::ReadWholeFile(paths.approved, before);
    }
    ZelCommon::Fakes::FakeContacts book = AddressBook(5000);
    Orva::Ui::CNullImportProgress progress;
    NoBoxes boxes;
    NoStrings strings;
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    ZelCommon::Library::DebugLog log(clock, process, debugger);
    for (auto _ : state) {
        state.PauseTiming();
        ZelCommon::Platform::ReplaceFileContents(paths.approved, before);
        state.ResumeTiming();
        const auto outcome = Orva::Ui::ImportContactList(
            {book, progress, boxes, strings, messaging, process, log}, paths);
        benchmark::DoNotOptimize(outcome.added);
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}
BENCHMARK(ImportContacts)->Arg(0)->Arg(7900)->Unit(benchmark::kMillisecond);

}  // namespace
