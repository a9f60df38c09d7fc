#include "mailstore/MailStore.h"

namespace Orva::MailStore {
namespace {

class NoWatcher final : public IAccountManagerWatcher {
public:
    void OnAccountManagerCreated(IAccountManager&) override {}
    void OnAccountManagerReleased() override {}
};

}  // namespace

IAccountManagerWatcher& NoAccountManagerWatcher() {
    static NoWatcher watcher;
    return watcher;
}

}  // namespace Orva::MailStore
