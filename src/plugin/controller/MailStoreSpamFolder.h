#pragma once

#include <cstdint>

#include "mailstore/SpamMailFolder.h"
#include "plugin/controller/ControllerParts.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The controller's spam folder: the mail store's, plus the folder-selection notice.
class CMailStoreSpamFolder final : public ISpamFolder {
public:
    CMailStoreSpamFolder(Orva::MailStore::CSpamMailFolder& folder,
                         ZelCommon::Library::DebugLog& log)
        : m_folder(folder), m_log(log) {}

    int CreateSpamMailFolder(bool force) override { return m_folder.CreateSpamMailFolder(force); }
    void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t messageId, bool all) override {
        m_folder.ProcDeleteAllSpamMsg(folderId, messageId, all);
    }
    void PostCleanDeletedFolder() override { m_folder.PostCleanDeletedFolder(); }
    void ReleaseStore() override { m_folder.ReleaseStore(); }
    // The ribbon of the mail clients 2011 and later keeps the add-in's buttons whatever folder
    // is selected, so a selection changes nothing but the log.
    void OnFolderSelectionChanged(uint64_t) override {
        m_log.LogText(L"CToolBarWnd::OnFolderSelectionChanged");
        m_log.LogText(L"folder under quick view is selected");
        m_log.LogText(L"WLMail 2011 or latter...bShown [%d]", 1);
    }

private:
    Orva::MailStore::CSpamMailFolder& m_folder;
    ZelCommon::Library::DebugLog& m_log;
};

}  // namespace Orva::Plugin
