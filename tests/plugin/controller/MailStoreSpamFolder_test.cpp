#include "plugin/controller/MailStoreSpamFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/probes/ProbeLog.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"
#include "support/fakes/mailstore/FakeMailStore.h"
#include "support/fakes/mailstore/FakeSpamFolderStrings.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Plugin {
namespace {

using namespace Orva::MailStore;

constexpr StoreId kAccount = 7;

struct GlueRig {
    GlueRig() {
        deletedItems = store.AddAccount(kAccount);
        store.SetDefaultAccount(kAccount);
    }
    Fakes::FakeMailStore store;
    Fakes::FakeSpamFolderStrings strings;
    ZelCommon::Fakes::FakeProfileApi profile;
    Orva::Settings::SettingsStore settings{profile, {}};
    ZelCommon::Fakes::FakeProcessContext process;
    Testing::ProbeLog log;
    CSpamMailFolder folder{
        {store, strings, settings, process, log.Log(), NoAccountManagerWatcher()}};
    CMailStoreSpamFolder glue{folder, log.Log()};
    StoreId deletedItems = 0;
};

TEST(MailStoreSpamFolder, Operations_ReachTheStore) {
    GlueRig rig;
    rig.profile.Set(L"General", L"DeleteDeleted", L"1");
    rig.store.AddMessage(rig.deletedItems, L"X-HALVION-ANTISPAMADDIN-QUARANTINETIME: 1");
    ISpamFolder& spamFolder = rig.glue;

    EXPECT_NE(spamFolder.CreateSpamMailFolder(false), 0);
    const StoreId spam = *rig.store.SubFolderId(kAccount, L"Spam Mail");
    rig.store.AddMessage(spam, L"X-ZEL-AS-Level: 1\r\nX-HALVION-ANTISPAMADDIN-QUARANTINETIME: 1");
    spamFolder.ProcDeleteAllSpamMsg(spam, 0, true);
    spamFolder.PostCleanDeletedFolder();

    EXPECT_TRUE(rig.store.Headers(spam).empty());
    EXPECT_TRUE(rig.store.Headers(rig.deletedItems).empty());
}

TEST(MailStoreSpamFolder, FolderSelection_OnlyLogs) {
    GlueRig rig;

    rig.glue.OnFolderSelectionChanged(0x100000002);

    EXPECT_EQ(rig.log.Lines(),
              (std::vector<std::wstring>{L"CToolBarWnd::OnFolderSelectionChanged\n",
                                         L"folder under quick view is selected\n",
                                         L"WLMail 2011 or latter...bShown [1]\n"}));
    EXPECT_TRUE(rig.store.CreatedFolders().empty());
}

}  // namespace
}  // namespace Orva::Plugin
