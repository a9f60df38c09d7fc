#pragma once

#include <string>
#include <vector>

#include "mailstore/SpamMailFolder.h"
#include "settings/SettingsStore.h"
#include "settings/probes/ProbeLog.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"
#include "support/fakes/mailstore/FakeMailStore.h"
#include "support/fakes/mailstore/FakeSpamFolderStrings.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::MailStore {

inline constexpr StoreId kAccount = 0x1F00000002;

// Counts the account managers it was told of, and whether it listens to one now.
class CountingWatcher final : public IAccountManagerWatcher {
public:
    void OnAccountManagerCreated(IAccountManager&) override {
        ++told;
        listening = true;
    }
    void OnAccountManagerReleased() override { listening = false; }
    int told = 0;
    bool listening = false;
};

// The spam folder over a fake store whose default account holds only its deleted items.
struct SpamFolderRig {
    SpamFolderRig() {
        deletedItems = store.AddAccount(kAccount);
        store.SetDefaultAccount(kAccount);
    }

    // The log's lines from the `first` on, without their line ends.
    std::vector<std::wstring> Lines(std::size_t first = 0) const {
        std::vector<std::wstring> lines;
        const std::vector<std::wstring> all = log.Lines();
        for (std::size_t index = first; index < all.size(); ++index) {
            std::wstring line = all[index];
            if (!line.empty() && line.back() == L'\n') {
                line.pop_back();
            }
            lines.push_back(line);
        }
        return lines;
    }
    std::size_t LineCount() const { return log.Lines().size(); }

    Fakes::FakeMailStore store;
    Fakes::FakeSpamFolderStrings strings;
    ZelCommon::Fakes::FakeProfileApi profile;
    Orva::Settings::SettingsStore settings{profile, {}};
    ZelCommon::Fakes::FakeProcessContext process;
    Testing::ProbeLog log;
    CountingWatcher watcher;
    CSpamMailFolder folder{{store, strings, settings, process, log.Log(), watcher}};
    StoreId deletedItems = 0;
};

}  // namespace Orva::MailStore
