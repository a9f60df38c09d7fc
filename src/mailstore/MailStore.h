#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace Orva::MailStore {

// Folder, message and account ids of the store.
using StoreId = uint64_t;
// What creating a folder answers when it could not.
inline constexpr StoreId kNoFolderId = ~StoreId{0};

// The mail client's message store, as the plug-in host's store library offers it. Every call
// that fails throws StoreError (StoreError.h); calls documented as "null" answer nothing at
// the end of a list or for an unknown id.

class IMessage {
public:
    virtual ~IMessage() = default;
    virtual std::wstring HeaderText() = 0;
    // `flags` 1 deletes the message for good instead of moving it to the deleted items.
    virtual void Delete(int32_t flags) = 0;
};

inline constexpr int32_t kDeletePermanently = 1;

class IFolder {
public:
    virtual ~IFolder() = default;
    // Empty when the store gives the folder no name.
    virtual std::wstring Name() = 0;
    virtual StoreId Id() = 0;
    // The folder's first sub-folder; null when it has none.
    virtual std::unique_ptr<IFolder> FirstSubFolder() = 0;
    // The next folder under the same parent; null after the last.
    virtual std::unique_ptr<IFolder> NextSibling() = 0;
    // The new folder's id, or kNoFolderId.
    virtual StoreId CreateSubFolder(const std::wstring& name) = 0;
    virtual int32_t MessageCount() = 0;
    // The folder keeps the position of its message walk; null at the end.
    virtual std::unique_ptr<IMessage> FirstMessage() = 0;
    virtual std::unique_ptr<IMessage> NextMessage() = 0;
};

class IAccount {
public:
    virtual ~IAccount() = default;
    virtual StoreId Id() = 0;
};

class IAccountManager {
public:
    virtual ~IAccountManager() = default;
    // Null when the mail client has no default account.
    virtual std::unique_ptr<IAccount> DefaultAccount() = 0;
};

class IStore {
public:
    virtual ~IStore() = default;
    virtual std::unique_ptr<IFolder> DeletedItemsFolder(StoreId accountId) = 0;
    // Null for an unknown id; an account's id gives the account's root folder.
    virtual std::unique_ptr<IFolder> FolderById(StoreId id) = 0;
};

// Creates the store's two top objects.
class IMailStoreFactory {
public:
    virtual ~IMailStoreFactory() = default;
    virtual std::shared_ptr<IStore> CreateStore() = 0;
    virtual std::shared_ptr<IAccountManager> CreateAccountManager() = 0;
};

// Told of the account manager the first time one is obtained, so that whoever wires the add-in
// can listen to its default-account changes.
class IAccountManagerWatcher {
public:
    virtual ~IAccountManagerWatcher() = default;
    virtual void OnAccountManagerCreated(IAccountManager& manager) = 0;
    // The manager is let go: whatever listens to it stops.
    virtual void OnAccountManagerReleased() = 0;
};

// A watcher that listens to nothing.
IAccountManagerWatcher& NoAccountManagerWatcher();

}  // namespace Orva::MailStore
