#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include "common_src/platform/ProcessContext.h"
#include "mailstore/MailStore.h"
#include "mailstore/SpamFolderStrings.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"

namespace Orva::MailStore {

struct SpamFolderPorts {
    IMailStoreFactory& store;
    ISpamFolderStrings& strings;
    Orva::Settings::SettingsStore& settings;
    // The system's last error, logged when the account's root folder vanishes.
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Library::DebugLog& log;
    IAccountManagerWatcher& watcher;
};

// The add-in's spam folder in the default account: found or created, emptied of quarantined
// mail on the agent's request, and the quarantined mail purged from the deleted items at
// shut-down. No store failure leaves these operations; each is logged and ends the operation.
class CSpamMailFolder {
public:
    static constexpr const wchar_t* kStringSection = L"ORVA_WLM";
    static constexpr const wchar_t* kFolderNameId = L"IDS_QUILLON_SPAMMAIL_FOLDERNAME";
    static constexpr const wchar_t* kDefaultFolderName = L"Spam Mail";

    explicit CSpamMailFolder(SpamFolderPorts ports) : m_ports(ports) {}

    // Non-zero when the spam folder is known afterwards; `force` searches again even then.
    int CreateSpamMailFolder(bool force);
    // Deletes every quarantined message of the folder; `all` false is refused, one message
    // alone is never deleted, and `messageId` is not used.
    void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t messageId, bool all);
    // With DeleteDeleted on, deletes the quarantined messages of the deleted items.
    void PostCleanDeletedFolder();
    // Lets go of the store's objects and stops listening to the account manager, while COM
    // still runs; the next operation makes them again.
    void ReleaseStore();

    uint64_t DefaultAccountId() const { return m_nDefaultAccountID; }
    uint64_t SpamFolderId() const { return m_nSpamFolderID; }
    const std::set<uint64_t>& FolderIds() const { return m_setFolderIDs; }
    bool IsFolderCreated() const { return m_bFolderCreated != 0; }

private:
    template <class... Args>
    void Log(std::wstring_view format, const Args&... args) {
        m_ports.log.LogText(format, args...);
    }
    IAccountManager& AccountManager();
    // Finds or creates the folder; false when the account's root folder has gone.
    bool FindOrCreate(IStore& store, const std::wstring& name);
    // Deletes the marked messages of `folder`, logging `deletedText` for each.
    void DeleteMarkedMessages(IFolder& folder, std::wstring_view deletedText);

    SpamFolderPorts m_ports;
    uint64_t m_nDefaultAccountID = 0;
    uint64_t m_nSpamFolderID = 0;
    std::set<uint64_t> m_setFolderIDs;
    int32_t m_bFolderCreated = 0;
    std::shared_ptr<IStore> m_spStore;
    std::shared_ptr<IAccountManager> m_spAccountManager;
    bool m_accountManagerAnnounced = false;
    std::unique_ptr<IFolder> m_spDeletedFolder;
};

}  // namespace Orva::MailStore
