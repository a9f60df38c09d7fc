#include "plugin/controller/MailStoreSpamFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mailstore/SpamFolderRig.h"

namespace Orva::Plugin {
namespace {

TEST(MailStoreSpamFolder, FolderSelection_OnlyLogs) {
    Orva::MailStore::SpamFolderRig rig;
    CMailStoreSpamFolder spamFolder(rig.folder, rig.log.Log());

    spamFolder.OnFolderSelectionChanged(0x100000002);

    EXPECT_EQ(rig.Lines(), (std::vector<std::wstring>{L"CToolBarWnd::OnFolderSelectionChanged",
                                                      L"folder under quick view is selected",
                                                      L"WLMail 2011 or latter...bShown [1]"}));
    EXPECT_TRUE(rig.store.CreatedFolders().empty());
}

}  // namespace
}  // namespace Orva::Plugin
