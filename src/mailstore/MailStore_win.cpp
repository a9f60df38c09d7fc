#include "mailstore/MailStore_win.h"

#include <utility>

#include "common_src/win32/LateBoundCall_win.h"
#include "mailstore/StoreContract_win.h"
#include "mailstore/StoreError.h"

namespace Orva::MailStore {
namespace {

using Microsoft::WRL::ComPtr;
using ZelCommon::Win32::ComCallError;
using ZelCommon::Win32::Variant;
namespace C = StoreContract;

// Getters are asked as a method and a property at once (see StoreContract_win.h).
constexpr WORD kGetter = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

template <class... Args>
Variant Call(IDispatch* object, const wchar_t* name, Args&&... args) {
    Variant list[] = {Variant(std::forward<Args>(args))..., Variant()};
    try {
        return ZelCommon::Win32::Invoke(object, name, kGetter,
                                        std::span<Variant>(list, sizeof...(Args)));
    } catch (const ComCallError& error) {
        throw StoreError(error.Result(), error.what());
    }
}

// A result converted as the port needs it; a failed conversion is a failed call.
template <class Convert>
auto Converted(const Variant& value, Convert convert) {
    try {
        return convert(value);
    } catch (const ComCallError& error) {
        throw StoreError(error.Result(), error.what());
    }
}

ComPtr<IDispatch> ObjectOf(const Variant& value) {
    return Converted(value, [](const Variant& v) { return v.ToDispatch(); });
}
StoreId IdOf(const Variant& value) {
    return Converted(value, [](const Variant& v) { return v.ToUInt64(); });
}

class ComMessage final : public IMessage {
public:
    explicit ComMessage(ComPtr<IDispatch> object) : m_object(std::move(object)) {}
    std::wstring HeaderText() override {
        return Converted(Call(m_object.Get(), C::kGetHeader),
                         [](const Variant& v) { return v.ToString(); });
    }
    void Delete(int32_t flags) override { Call(m_object.Get(), C::kDelete, flags); }

private:
    ComPtr<IDispatch> m_object;
};

class ComFolder final : public IFolder {
public:
    explicit ComFolder(ComPtr<IDispatch> object) : m_object(std::move(object)) {}
    std::wstring Name() override {
        return Converted(Call(m_object.Get(), C::kGetName),
                         [](const Variant& v) { return v.ToString(); });
    }
    StoreId Id() override { return IdOf(Call(m_object.Get(), C::kGetId)); }
    std::unique_ptr<IFolder> FirstSubFolder() override {
        return Folder(Call(m_object.Get(), C::kGetFirstSubFolder));
    }
    std::unique_ptr<IFolder> NextSibling() override {
        return Folder(Call(m_object.Get(), C::kGetNextFolder));
    }
    StoreId CreateSubFolder(const std::wstring& name) override {
        return IdOf(Call(m_object.Get(), C::kCreateSubFolder, std::wstring_view(name)));
    }
    int32_t MessageCount() override {
        return Converted(Call(m_object.Get(), C::kGetMessageCount),
                         [](const Variant& v) { return v.ToInt32(); });
    }
    std::unique_ptr<IMessage> FirstMessage() override {
        return Message(Call(m_object.Get(), C::kGetFirstMessage));
    }
    std::unique_ptr<IMessage> NextMessage() override {
        return Message(Call(m_object.Get(), C::kGetNextMessage));
    }

    static std::unique_ptr<IFolder> Folder(const Variant& value) {
        ComPtr<IDispatch> object = ObjectOf(value);
        if (object == nullptr) {
            return nullptr;
        }
        return std::make_unique<ComFolder>(std::move(object));
    }

private:
    static std::unique_ptr<IMessage> Message(const Variant& value) {
        ComPtr<IDispatch> object = ObjectOf(value);
        if (object == nullptr) {
            return nullptr;
        }
        return std::make_unique<ComMessage>(std::move(object));
    }

    ComPtr<IDispatch> m_object;
};

class ComAccount final : public IAccount {
public:
    explicit ComAccount(ComPtr<IDispatch> object) : m_object(std::move(object)) {}
    StoreId Id() override { return IdOf(Call(m_object.Get(), C::kGetId)); }

private:
    ComPtr<IDispatch> m_object;
};

class ComAccountManager final : public IAccountManager {
public:
    explicit ComAccountManager(ComPtr<IDispatch> object) : m_object(std::move(object)) {}
    std::unique_ptr<IAccount> DefaultAccount() override {
        ComPtr<IDispatch> account = ObjectOf(Call(m_object.Get(), C::kGetDefaultAccount));
        if (account == nullptr) {
            return nullptr;
        }
        return std::make_unique<ComAccount>(std::move(account));
    }
    IDispatch* Dispatch() const { return m_object.Get(); }

private:
    ComPtr<IDispatch> m_object;
};

class ComStore final : public IStore {
public:
    explicit ComStore(ComPtr<IDispatch> object) : m_object(std::move(object)) {}
    std::unique_ptr<IFolder> DeletedItemsFolder(StoreId accountId) override {
        return ComFolder::Folder(Call(m_object.Get(), C::kGetDeletedItemsFolder, accountId));
    }
    std::unique_ptr<IFolder> FolderById(StoreId id) override {
        return ComFolder::Folder(Call(m_object.Get(), C::kGetFolder, id));
    }

private:
    ComPtr<IDispatch> m_object;
};

class ComMailStore final : public IMailStoreFactory {
public:
    explicit ComMailStore(DispatchCreator creator) : m_creator(std::move(creator)) {}

    std::shared_ptr<IStore> CreateStore() override {
        ComPtr<IDispatch> object = Create(C::kStoreProgId);
        return object == nullptr ? nullptr : std::make_shared<ComStore>(std::move(object));
    }
    std::shared_ptr<IAccountManager> CreateAccountManager() override {
        ComPtr<IDispatch> object = Create(C::kAccountManagerProgId);
        return object == nullptr ? nullptr : std::make_shared<ComAccountManager>(std::move(object));
    }

private:
    ComPtr<IDispatch> Create(const wchar_t* progId) {
        try {
            return m_creator(progId);
        } catch (const ComCallError& error) {
            throw StoreError(error.Result(), error.what());
        }
    }

    DispatchCreator m_creator;
};

}  // namespace

std::unique_ptr<IMailStoreFactory> CreateComMailStore(DispatchCreator creator) {
    return std::make_unique<ComMailStore>(std::move(creator));
}

std::unique_ptr<IMailStoreFactory> CreateSystemMailStore() {
    return CreateComMailStore(ZelCommon::Win32::CreateDispatchByProgId);
}

IDispatch* DispatchOf(IAccountManager& manager) {
    const auto* com = dynamic_cast<const ComAccountManager*>(&manager);
    return com == nullptr ? nullptr : com->Dispatch();
}

}  // namespace Orva::MailStore
