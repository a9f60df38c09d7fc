#include "mailstore/SpamMailFolder.h"

#include <optional>
#include <utility>

#include "mailstore/StoreError.h"

namespace Orva::MailStore {
namespace {

// E_FAIL: the store answered a creation with no folder.
constexpr int32_t kFailure = static_cast<int32_t>(0x80004005u);
constexpr const wchar_t* kCreateName = L"CToolBarWnd::CreateSpamMailFolder";

// Closes the string table however the search ends, as the loader the folder name came from
// would be on leaving the search.
class TableSession {
public:
    explicit TableSession(ISpamFolderStrings& strings) : m_strings(strings) {}
    ~TableSession() {
        if (m_open) {
            m_strings.UnInitialize();
        }
    }
    TableSession(const TableSession&) = delete;
    TableSession& operator=(const TableSession&) = delete;

    bool Open(const std::wstring& section) {
        m_open = m_strings.Initialize(section);
        return m_open;
    }
    void Close() {
        if (std::exchange(m_open, false)) {
            m_strings.UnInitialize();
        }
    }

private:
    ISpamFolderStrings& m_strings;
    bool m_open = false;
};

}  // namespace

int CSpamMailFolder::CreateSpamMailFolder(bool force) {
    Log(L"@@@ %s  IN", kCreateName);
    if (!force && m_bFolderCreated != 0) {
        Log(L"@@@ CToolBarWnd::CreateSpamMailFolder() Spam Mail folder created");
        return 1;
    }
    try {
        m_bFolderCreated = 1;
        m_spStore = m_ports.store.CreateStore();

        TableSession table(m_ports.strings);
        std::wstring name = kDefaultFolderName;
        if (!table.Open(kStringSection)) {
            Log(L"XXX Error: MUI string loader initialize failed! ");
            m_ports.log.LogMessage(ZelCommon::Library::LogError, "ToolBarWnd", __LINE__,
                                   L"Error: MUI string loader initialize failed!");
        } else if (std::wstring loaded = m_ports.strings.LoadExpanded(kFolderNameId);
                   !loaded.empty()) {
            // A table without the name must not give the folder an empty one.
            name = std::move(loaded);
        }

        if (const std::unique_ptr<IAccount> account = AccountManager().DefaultAccount()) {
            m_nDefaultAccountID = account->Id();
            Log(L"@@@ CToolBarWnd::CreateSpamMailFolder(), Success get the default account "
                L"id=[0x%llX]",
                m_nDefaultAccountID);
        } else {
            Log(L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account");
        }
        if (m_nDefaultAccountID == 0) {
            Log(L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account, "
                L"m_nDefaultAccountID==0");
            m_bFolderCreated = 0;
            return 0;
        }

        IStore& store = *Required(m_spStore.get());
        m_spDeletedFolder = store.DeletedItemsFolder(m_nDefaultAccountID);
        if (!FindOrCreate(store, name)) {
            m_bFolderCreated = 0;
            return 0;
        }
        table.Close();
        Log(L"@@@ %s  OUT", kCreateName);
        return 1;
    } catch (const std::exception& error) {
        Log(L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[%S]", error.what());
    } catch (...) {
        Log(L"xxx Can not create spam mail folder!");
    }
    m_bFolderCreated = 0;
    return 0;
}

void CSpamMailFolder::ReleaseStore() {
    m_spDeletedFolder.reset();
    if (std::exchange(m_accountManagerAnnounced, false)) {
        m_ports.watcher.OnAccountManagerReleased();
    }
    m_spAccountManager.reset();
    m_spStore.reset();
}

IAccountManager& CSpamMailFolder::AccountManager() {
    if (m_spAccountManager == nullptr) {
        m_spAccountManager = m_ports.store.CreateAccountManager();
        if (m_spAccountManager != nullptr && !m_accountManagerAnnounced) {
            m_accountManagerAnnounced = true;
            m_ports.watcher.OnAccountManagerCreated(*m_spAccountManager);
        }
    }
    return *Required(m_spAccountManager.get());
}

bool CSpamMailFolder::FindOrCreate(IStore& store, const std::wstring& name) {
    // The folder ids and the spam folder's change only when the whole search succeeds.
    std::set<uint64_t> folderIds = m_setFolderIDs;
    std::optional<uint64_t> spamFolderId;
    {
        const std::unique_ptr<IFolder> root = Required(store.FolderById(m_nDefaultAccountID));
        for (std::unique_ptr<IFolder> folder = root->FirstSubFolder(); folder != nullptr;
             folder = folder->NextSibling()) {
            const std::wstring folderName = folder->Name();
            const uint64_t folderId = folder->Id();
            Log(L"get the folder name in create spam folder = %s  ID = 0x%llX", folderName,
                folderId);
            folderIds.insert(folderId);
            if (folderName == name) {
                spamFolderId = folderId;
                break;
            }
        }
    }
    if (!spamFolderId) {
        Log(L"@@@ Creating spam mail folder ... ");
        const std::unique_ptr<IFolder> root = store.FolderById(m_nDefaultAccountID);
        if (root == nullptr) {
            Log(L"@@@ Exception Catched in Function: %s", kCreateName);
            Log(L"create spam mail error : GetLastError: %d.", m_ports.process.LastError());
            return false;
        }
        const uint64_t created = root->CreateSubFolder(name);
        Log(L"@@@ Creating spam mail folder [%s]... Return=[%llx]", name, created);
        if (created == kNoFolderId) {
            throw StoreError(kFailure, "The spam mail folder could not be created");
        }
        spamFolderId = created;
        folderIds.insert(created);
        Log(L"@@@ spam mail folder was created.");
    }
    m_nSpamFolderID = *spamFolderId;
    m_setFolderIDs = std::move(folderIds);
    return true;
}

}  // namespace Orva::MailStore
