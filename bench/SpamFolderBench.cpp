#include <benchmark/benchmark.h>

#include <string>

#include "common_src/platform/ProcessContext.h"
#include "mailstore/SpamMailFolder.h"
#include "settings/SettingsStore.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"
#include "support/fakes/mailstore/FakeMailStore.h"
#include "support/fakes/mailstore/FakeSpamFolderStrings.h"

namespace {

using namespace Orva::MailStore;

constexpr StoreId kAccount = 0x1F00000002;

// A forced search of an account with 200 top-level folders (its deleted items, 198 others and
// the spam folder, last): what a default-account re-query costs the mail client's GUI thread.
void BM_CreateSpamMailFolder(benchmark::State& state) {
    Fakes::FakeMailStore store;
    store.AddAccount(kAccount);
    store.SetDefaultAccount(kAccount);
    for (int i = 0; i < 198; ++i) {
        store.AddFolder(kAccount, L"Folder " + std::to_wstring(i));
    }
    Fakes::FakeSpamFolderStrings strings;
    ZelCommon::Fakes::FakeProfileApi profile;
    Orva::Settings::SettingsStore settings(profile, {});
    // The log stays off, as it is for most users.
    CSpamMailFolder folder({store, strings, settings, ZelCommon::Platform::SystemProcessContext(),
                            ZelCommon::Library::TheLog(), NoAccountManagerWatcher()});
    folder.CreateSpamMailFolder(false);
    for (auto _ : state) {
        benchmark::DoNotOptimize(folder.CreateSpamMailFolder(true));
    }
}
BENCHMARK(BM_CreateSpamMailFolder);

}  // namespace
