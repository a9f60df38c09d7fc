#include "support/fakes/mailstore/FakeMailStore.h"

#include <algorithm>
#include <utility>

#include "mailstore/StoreError.h"

namespace Orva::MailStore::Fakes {

struct FakeMailStore::State {
    struct Message {
        std::wstring headerText;
        bool deleted = false;
    };
    struct Folder {
        std::wstring name;
        std::optional<StoreId> parent;
        std::vector<StoreId> children;
        std::vector<Message> messages;
    };
    struct Script {
        StoreCall call;
        int occurrence;
        std::optional<int32_t> failure;  // none: answer null
    };

    std::map<StoreId, Folder> folders;
    std::map<StoreId, StoreId> deletedItems;  // account -> folder
    std::optional<StoreId> defaultAccount;
    // Beyond 32 bits, so that an id cut to 32 bits shows.
    StoreId nextFolderId = 0xA00000001000;
    std::vector<Script> scripts;
    std::map<StoreCall, int> calls;
    std::vector<Deletion> deletions;
    std::vector<CreatedFolder> created;

    // Counts the call; throws when a failure is scripted for it, and answers whether it
    // should give no object.
    bool Enter(StoreCall call) {
        const int count = ++calls[call];
        bool null = false;
        for (const Script& script : scripts) {
            if (script.call != call || (script.occurrence != 0 && script.occurrence != count)) {
                continue;
            }
            if (script.failure) {
                throw StoreError(*script.failure, "scripted store failure");
            }
            null = true;
        }
        return null;
    }
    Folder& FolderOf(StoreId id) { return folders.at(id); }
};

namespace {

using State = FakeMailStore::State;

class FakeMessage final : public IMessage {
public:
    FakeMessage(std::shared_ptr<State> state, StoreId folder, std::size_t index)
        : m_state(std::move(state)), m_folder(folder), m_index(index) {}

    std::wstring HeaderText() override {
        m_state->Enter(StoreCall::HeaderText);
        return Message().headerText;
    }
    void Delete(int32_t flags) override {
        m_state->Enter(StoreCall::DeleteMessage);
        Message().deleted = true;
        m_state->deletions.push_back({m_folder, Message().headerText, flags});
    }

private:
    State::Message& Message() { return m_state->FolderOf(m_folder).messages.at(m_index); }

    std::shared_ptr<State> m_state;
    StoreId m_folder;
    std::size_t m_index;
};

class FakeFolder final : public IFolder {
public:
    FakeFolder(std::shared_ptr<State> state, StoreId id) : m_state(std::move(state)), m_id(id) {}

    std::wstring Name() override {
        m_state->Enter(StoreCall::FolderName);
        return m_state->FolderOf(m_id).name;
    }
    StoreId Id() override {
        m_state->Enter(StoreCall::FolderId);
        return m_id;
    }
    std::unique_ptr<IFolder> FirstSubFolder() override {
        if (m_state->Enter(StoreCall::FirstSubFolder)) {
            return nullptr;
        }
        const auto& children = m_state->FolderOf(m_id).children;
        return children.empty() ? nullptr : Make(children.front());
    }
    std::unique_ptr<IFolder> NextSibling() override {
        if (m_state->Enter(StoreCall::NextSibling)) {
            return nullptr;
        }
        const std::optional<StoreId> parent = m_state->FolderOf(m_id).parent;
        if (!parent) {
            return nullptr;
        }
        const auto& siblings = m_state->FolderOf(*parent).children;
        auto at = std::find(siblings.begin(), siblings.end(), m_id);
        return at == siblings.end() || ++at == siblings.end() ? nullptr : Make(*at);
    }
    StoreId CreateSubFolder(const std::wstring& name) override {
        if (m_state->Enter(StoreCall::CreateSubFolder)) {
            return kNoFolderId;
        }
        const StoreId id = m_state->nextFolderId++;
        m_state->folders[id] = {name, m_id, {}, {}};
        m_state->FolderOf(m_id).children.push_back(id);
        m_state->created.push_back({m_id, name});
        return id;
    }
    int32_t MessageCount() override {
        m_state->Enter(StoreCall::MessageCount);
        const auto& messages = m_state->FolderOf(m_id).messages;
        return static_cast<int32_t>(std::count_if(messages.begin(), messages.end(),
                                                  [](const auto& m) { return !m.deleted; }));
    }
    std::unique_ptr<IMessage> FirstMessage() override {
        if (m_state->Enter(StoreCall::FirstMessage)) {
            return nullptr;
        }
        m_cursor = 0;
        return MessageFromCursor();
    }
    std::unique_ptr<IMessage> NextMessage() override {
        if (m_state->Enter(StoreCall::NextMessage)) {
            return nullptr;
        }
        ++m_cursor;
        return MessageFromCursor();
    }

private:
    std::unique_ptr<IFolder> Make(StoreId id) { return std::make_unique<FakeFolder>(m_state, id); }
    std::unique_ptr<IMessage> MessageFromCursor() {
        const auto& messages = m_state->FolderOf(m_id).messages;
        while (m_cursor < messages.size() && messages[m_cursor].deleted) {
            ++m_cursor;
        }
        if (m_cursor >= messages.size()) {
            return nullptr;
        }
        return std::make_unique<FakeMessage>(m_state, m_id, m_cursor);
    }

    std::shared_ptr<State> m_state;
    StoreId m_id;
    std::size_t m_cursor = 0;
};

class FakeAccount final : public IAccount {
public:
    FakeAccount(std::shared_ptr<State> state, StoreId id) : m_state(std::move(state)), m_id(id) {}
    StoreId Id() override {
        m_state->Enter(StoreCall::AccountId);
        return m_id;
    }

private:
    std::shared_ptr<State> m_state;
    StoreId m_id;
};

class FakeAccountManager final : public IAccountManager {
public:
    explicit FakeAccountManager(std::shared_ptr<State> state) : m_state(std::move(state)) {}
    std::unique_ptr<IAccount> DefaultAccount() override {
        if (m_state->Enter(StoreCall::DefaultAccount) || !m_state->defaultAccount) {
            return nullptr;
        }
        return std::make_unique<FakeAccount>(m_state, *m_state->defaultAccount);
    }

private:
    std::shared_ptr<State> m_state;
};

class FakeStore final : public IStore {
public:
    explicit FakeStore(std::shared_ptr<State> state) : m_state(std::move(state)) {}
    std::unique_ptr<IFolder> DeletedItemsFolder(StoreId accountId) override {
        if (m_state->Enter(StoreCall::DeletedItemsFolder)) {
            return nullptr;
        }
        const auto found = m_state->deletedItems.find(accountId);
        if (found == m_state->deletedItems.end()) {
            throw StoreError(kPointerError, "no such account");
        }
        return std::make_unique<FakeFolder>(m_state, found->second);
    }
    std::unique_ptr<IFolder> FolderById(StoreId id) override {
        if (m_state->Enter(StoreCall::FolderById) || !m_state->folders.contains(id)) {
            return nullptr;
        }
        return std::make_unique<FakeFolder>(m_state, id);
    }

private:
    std::shared_ptr<State> m_state;
};

}  // namespace

FakeMailStore::FakeMailStore() : m_state(std::make_shared<State>()) {}
FakeMailStore::~FakeMailStore() = default;

StoreId FakeMailStore::AddAccount(StoreId accountId) {
    m_state->folders[accountId] = {};
    const StoreId deleted = AddFolder(accountId, L"Deleted Items");
    m_state->deletedItems[accountId] = deleted;
    return deleted;
}

void FakeMailStore::SetDefaultAccount(std::optional<StoreId> accountId) {
    m_state->defaultAccount = accountId;
}

StoreId FakeMailStore::AddFolder(StoreId parent, const std::wstring& name) {
    const StoreId id = m_state->nextFolderId++;
    m_state->folders[id] = {name, parent, {}, {}};
    m_state->FolderOf(parent).children.push_back(id);
    return id;
}

void FakeMailStore::AddMessage(StoreId folder, const std::wstring& headerText) {
    m_state->FolderOf(folder).messages.push_back({headerText, false});
}

void FakeMailStore::FailOn(StoreCall call, int32_t result, int occurrence) {
    m_state->scripts.push_back({call, occurrence, result});
}

void FakeMailStore::NullOn(StoreCall call, int occurrence) {
    m_state->scripts.push_back({call, occurrence, std::nullopt});
}

std::vector<std::wstring> FakeMailStore::SubFolderNames(StoreId parent) const {
    std::vector<std::wstring> names;
    for (const StoreId child : m_state->FolderOf(parent).children) {
        names.push_back(m_state->FolderOf(child).name);
    }
    return names;
}

std::optional<StoreId> FakeMailStore::SubFolderId(StoreId parent, const std::wstring& name) const {
    for (const StoreId child : m_state->FolderOf(parent).children) {
        if (m_state->FolderOf(child).name == name) {
            return child;
        }
    }
    return std::nullopt;
}

std::vector<std::wstring> FakeMailStore::Headers(StoreId folder) const {
    std::vector<std::wstring> headers;
    for (const auto& message : m_state->FolderOf(folder).messages) {
        if (!message.deleted) {
            headers.push_back(message.headerText);
        }
    }
    return headers;
}

const std::vector<Deletion>& FakeMailStore::Deletions() const {
    return m_state->deletions;
}

const std::vector<CreatedFolder>& FakeMailStore::CreatedFolders() const {
    return m_state->created;
}

std::shared_ptr<IStore> FakeMailStore::CreateStore() {
    if (m_state->Enter(StoreCall::CreateStore)) {
        return nullptr;
    }
    return std::make_shared<FakeStore>(m_state);
}

std::shared_ptr<IAccountManager> FakeMailStore::CreateAccountManager() {
    if (m_state->Enter(StoreCall::CreateAccountManager)) {
        return nullptr;
    }
    return std::make_shared<FakeAccountManager>(m_state);
}

}  // namespace Orva::MailStore::Fakes
