#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "mailstore/MailStore.h"

namespace Orva::MailStore::Fakes {

// The store calls a test can make fail or answer null.
enum class StoreCall {
    CreateStore,
    CreateAccountManager,
    DefaultAccount,
    AccountId,
    DeletedItemsFolder,
    FolderById,
    FirstSubFolder,
    NextSibling,
    FolderName,
    FolderId,
    CreateSubFolder,
    MessageCount,
    FirstMessage,
    NextMessage,
    HeaderText,
    DeleteMessage,
};

struct Deletion {
    StoreId folder;
    std::wstring headerText;
    int32_t flags;
};

struct CreatedFolder {
    StoreId parent;
    std::wstring name;
};

// An in-memory mail store: accounts with their root and deleted-items folders, folders with
// names, sub-folders and messages. Calls can be scripted to throw StoreError or to answer null,
// and what the add-in deleted and created is kept for the test to read.
class FakeMailStore final : public IMailStoreFactory {
public:
    FakeMailStore();
    ~FakeMailStore() override;

    // An account whose root folder has the account's id, with an empty "Deleted Items"
    // folder; returns the deleted items' id.
    StoreId AddAccount(StoreId accountId);
    void SetDefaultAccount(std::optional<StoreId> accountId);
    StoreId AddFolder(StoreId parent, const std::wstring& name);
    void AddMessage(StoreId folder, const std::wstring& headerText);

    // The `occurrence`-th call of `call` (counted from 1; 0: every call) throws StoreError.
    void FailOn(StoreCall call, int32_t result, int occurrence = 0);
    // The `occurrence`-th call of `call` (0: every call) answers no object.
    void NullOn(StoreCall call, int occurrence = 0);

    std::vector<std::wstring> SubFolderNames(StoreId parent) const;
    std::optional<StoreId> SubFolderId(StoreId parent, const std::wstring& name) const;
    // The header texts of the messages still in the folder, in order.
    std::vector<std::wstring> Headers(StoreId folder) const;
    const std::vector<Deletion>& Deletions() const;
    const std::vector<CreatedFolder>& CreatedFolders() const;

    std::shared_ptr<IStore> CreateStore() override;
    std::shared_ptr<IAccountManager> CreateAccountManager() override;

    struct State;

private:
    std::shared_ptr<State> m_state;
};

}  // namespace Orva::MailStore::Fakes
