#include "common_src/ZelCommon/MemoryRegistry.h"

#include <algorithm>
#include <cstring>

namespace ZelCommon::Storage {

namespace {

constexpr uint32_t kGenericRead = 0x80000000u;
constexpr uint32_t kGenericWrite = 0x40000000u;
constexpr uint32_t kGenericExecute = 0x20000000u;
constexpr uint32_t kGenericAll = 0x10000000u;
constexpr uint32_t kMaximumAllowed = 0x02000000u;
constexpr uint32_t kKeyRead = 0x00020019u;
constexpr uint32_t kKeyWrite = 0x00020006u;
// Longest key name component the registry accepts, in characters (one more than documented).
constexpr std::size_t kMaxKeyNameChars = 256;

// Generic rights become the key rights they stand for; the view bits only steer redirection.
uint32_t GrantedAccess(uint32_t requested) {
    uint32_t access = requested & ~(RegAccess::Wow64_32Key | RegAccess::Wow64_64Key);
    if (access & kGenericRead) {
        access |= kKeyRead;
    }
    if (access & kGenericWrite) {
        access |= kKeyWrite;
    }
    if (access & kGenericExecute) {
        access |= kKeyRead;
    }
    if (access & (kGenericAll | kMaximumAllowed)) {
        access |= RegAccess::AllAccess;
    }
    return access &
           ~(kGenericRead | kGenericWrite | kGenericExecute | kGenericAll | kMaximumAllowed);
}

// The registry compares names after upper-casing them; ASCII and Latin-1 cover what we store.
wchar_t FoldChar(wchar_t c) {
    if (c >= L'a' && c <= L'z') {
        return static_cast<wchar_t>(c - (L'a' - L'A'));
    }
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
        return static_cast<wchar_t>(c - 0x20);
    }
    return c;
}

std::wstring Fold(std::wstring_view text) {
    std::wstring folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), FoldChar);
    return folded;
}

bool IsStringType(uint32_t type) {
    return type == RegType::Sz || type == RegType::ExpandSz || type == RegType::MultiSz;
}

bool RootHandleOf(RegHandle handle) {
    for (RegRoot root :
         {RegRoot::ClassesRoot, RegRoot::CurrentUser, RegRoot::LocalMachine, RegRoot::Users}) {
        if (handle == RootHandle(root)) {
            return true;
        }
    }
    return false;
}

}  // namespace

struct MemoryRegistry::Node {
    struct Value {
        std::wstring name;
        std::wstring folded;
        uint32_t type = RegType::None;
        std::vector<uint8_t> data;
    };

    std::wstring name;
    std::wstring folded;
    std::vector<std::shared_ptr<Node>> subkeys;  // sorted by folded name
    std::vector<Value> values;                   // in the order first set
    std::weak_ptr<Node> parent;
    bool deleted = false;

    std::vector<std::shared_ptr<Node>>::iterator LowerBound(const std::wstring& key) {
        return std::lower_bound(subkeys.begin(), subkeys.end(), key,
                                [](const std::shared_ptr<Node>& node, const std::wstring& k) {
                                    return node->folded < k;
                                });
    }

    std::shared_ptr<Node> FindSubkey(const std::wstring& key) {
        auto it = LowerBound(key);
        return it != subkeys.end() && (*it)->folded == key ? *it : nullptr;
    }

    Value* FindValue(const std::wstring& key) {
        auto it = std::find_if(values.begin(), values.end(),
                               [&](const Value& v) { return v.folded == key; });
        return it != values.end() ? &*it : nullptr;
    }
};

MemoryRegistry::MemoryRegistry() {
    for (RegRoot root :
         {RegRoot::ClassesRoot, RegRoot::CurrentUser, RegRoot::LocalMachine, RegRoot::Users}) {
        m_roots[RootHandle(root)] = std::make_shared<Node>();
    }
}

MemoryRegistry::~MemoryRegistry() = default;

std::size_t MemoryRegistry::OpenHandleCount() const {
    std::lock_guard<std::mutex> guard(m_lock);
    return m_handles.size();
}

int32_t MemoryRegistry::Resolve(RegHandle key, uint32_t requiredAccess,
                                std::shared_ptr<Node>& node) const {
    if (auto root = m_roots.find(key); root != m_roots.end()) {
        node = root->second;
        return RegStatus::Success;
    }
    auto it = m_handles.find(key);
    if (it == m_handles.end()) {
        return RegStatus::InvalidHandle;
    }
    if ((it->second.access & requiredAccess) != requiredAccess) {
        return RegStatus::AccessDenied;
    }
    if (it->second.node->deleted) {
        return RegStatus::KeyDeleted;
    }
    node = it->second.node;
    return RegStatus::Success;
}

int32_t MemoryRegistry::Walk(const std::shared_ptr<Node>& start, const wchar_t* subKey, bool create,
                             std::shared_ptr<Node>& found) {
    const std::wstring_view path = subKey != nullptr ? std::wstring_view(subKey) : L"";
    if (!path.empty() && path.front() == L'\\') {
        return RegStatus::BadPathName;
    }
    std::shared_ptr<Node> node = start;
    std::size_t pos = 0;
    while (pos < path.size()) {
        std::size_t end = path.find(L'\\', pos);
        if (end == std::wstring_view::npos) {
            end = path.size();
        }
        const std::wstring_view token = path.substr(pos, end - pos);
        pos = end + 1;
        if (token.empty()) {
            continue;  // doubled separators count as one
        }
        if (token.size() > kMaxKeyNameChars) {
            return RegStatus::InvalidParameter;
        }
        const std::wstring folded = Fold(token);
        std::shared_ptr<Node> next = node->FindSubkey(folded);
        if (!next) {
            if (!create) {
                return RegStatus::FileNotFound;
            }
            next = std::make_shared<Node>();
            next->name = std::wstring(token);
            next->folded = folded;
            next->parent = node;
            node->subkeys.insert(node->LowerBound(folded), next);
        }
        node = std::move(next);
    }
    found = std::move(node);
    return RegStatus::Success;
}

RegHandle MemoryRegistry::NewHandle(std::shared_ptr<Node> node, uint32_t access) {
    const RegHandle handle = m_nextHandle;
    m_nextHandle += 4;
    m_handles[handle] = OpenHandle{std::move(node), access};
    return handle;
}

int32_t MemoryRegistry::OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                                RegHandle* result) {
    return OpenOrCreate(parent, subKey, access, false, result);
}

int32_t MemoryRegistry::CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                                  const void*, RegHandle* result) {
    return OpenOrCreate(parent, subKey, access, true, result);
}

int32_t MemoryRegistry::OpenOrCreate(RegHandle parent, const wchar_t* subKey, uint32_t access,
                                     bool create, RegHandle* result) {
    if (result == nullptr) {
        return RegStatus::InvalidParameter;
    }
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> found;
    if (const int32_t status = FindBelow(parent, subKey, create, found);
        status != RegStatus::Success) {
        return status;
    }
    *result = NewHandle(std::move(found), GrantedAccess(access));
    return RegStatus::Success;
}

int32_t MemoryRegistry::FindBelow(RegHandle parent, const wchar_t* subKey, bool create,
                                  std::shared_ptr<Node>& found) {
    std::shared_ptr<Node> start;
    const int32_t status = Resolve(parent, 0, start);
    return status == RegStatus::Success ? Walk(start, subKey, create, found) : status;
}

int32_t MemoryRegistry::CloseKey(RegHandle key) {
    std::lock_guard<std::mutex> guard(m_lock);
    if (RootHandleOf(key)) {
        return RegStatus::Success;
    }
    return m_handles.erase(key) == 1 ? RegStatus::Success : RegStatus::InvalidHandle;
}

int32_t MemoryRegistry::FlushKey(RegHandle key) {
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    return Resolve(key, 0, node);
}

int32_t MemoryRegistry::QueryValue(RegHandle key, const wchar_t* name, uint32_t* type,
                                   uint8_t* data, uint32_t* size) {
    if (data != nullptr && size == nullptr) {
        return RegStatus::InvalidParameter;
    }
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    if (int32_t status = Resolve(key, RegAccess::QueryValue, node); status != RegStatus::Success) {
        return status;
    }
    const Node::Value* value = node->FindValue(Fold(name != nullptr ? name : L""));
    if (value == nullptr) {
        return RegStatus::FileNotFound;
    }
    const auto stored = static_cast<uint32_t>(value->data.size());
    int32_t status = RegStatus::Success;
    if (data != nullptr) {
        if (stored > *size) {
            status = RegStatus::MoreData;
        } else {
            std::copy(value->data.begin(), value->data.end(), data);
            // Like Windows, an unterminated string gets a terminator when the buffer has room.
            if (IsStringType(value->type) && stored >= 2 && stored + 2 <= *size &&
                (data[stored - 2] != 0 || data[stored - 1] != 0)) {
                data[stored] = 0;
                data[stored + 1] = 0;
            }
        }
    }
    if (type != nullptr) {
        *type = value->type;
    }
    if (size != nullptr) {
        *size = stored;
    }
    return status;
}

int32_t MemoryRegistry::SetValue(RegHandle key, const wchar_t* name, uint32_t type,
                                 const uint8_t* data, uint32_t size) {
    if (data == nullptr && size != 0) {
        return RegStatus::InvalidParameter;
    }
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    if (int32_t status = Resolve(key, RegAccess::SetValue, node); status != RegStatus::Success) {
        return status;
    }
    uint32_t stored = size;
    // Windows counts a forgotten terminator when the character right after the data is zero.
    if (IsStringType(type) && size >= 2) {
        const std::size_t last = (size / 2 - 1) * 2;
        const bool lastIsChar = data[last] != 0 || data[last + 1] != 0;
        const bool nextIsZero = data[size / 2 * 2] == 0 && data[size / 2 * 2 + 1] == 0;
        if (lastIsChar && nextIsZero) {
            stored = size + 2;
        }
    }
    const std::wstring valueName = name != nullptr ? name : L"";
    const std::wstring folded = Fold(valueName);
    Node::Value* value = node->FindValue(folded);
    if (value == nullptr) {
        node->values.push_back(Node::Value{valueName, folded, type, {}});
        value = &node->values.back();
    }
    value->type = type;
    value->data.assign(data, data + stored);
    return RegStatus::Success;
}

int32_t MemoryRegistry::DeleteKey(RegHandle parent, const wchar_t* subKey) {
    if (subKey == nullptr) {
        return RegStatus::InvalidParameter;
    }
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> target;
    if (const int32_t status = FindBelow(parent, subKey, false, target);
        status != RegStatus::Success) {
        return status;
    }
    std::shared_ptr<Node> owner = target->parent.lock();
    if (!owner || !target->subkeys.empty()) {
        return RegStatus::AccessDenied;
    }
    auto it = owner->LowerBound(target->folded);
    owner->subkeys.erase(it);
    target->deleted = true;
    target->values.clear();
    return RegStatus::Success;
}

int32_t MemoryRegistry::DeleteValue(RegHandle key, const wchar_t* name) {
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    if (int32_t status = Resolve(key, RegAccess::SetValue, node); status != RegStatus::Success) {
        return status;
    }
    const std::wstring folded = Fold(name != nullptr ? name : L"");
    auto it = std::find_if(node->values.begin(), node->values.end(),
                           [&](const Node::Value& v) { return v.folded == folded; });
    if (it == node->values.end()) {
        return RegStatus::FileNotFound;
    }
    node->values.erase(it);
    return RegStatus::Success;
}

namespace {

// Copies a name into a caller's buffer of `*length` characters with the Win32 rules: the name
// and its terminator must fit, else ERROR_MORE_DATA and the buffer is left alone.
int32_t CopyName(const std::wstring& source, wchar_t* name, uint32_t* length) {
    if (name == nullptr || length == nullptr) {
        return RegStatus::InvalidParameter;
    }
    if (source.size() >= *length) {
        return RegStatus::MoreData;
    }
    std::copy(source.begin(), source.end(), name);
    name[source.size()] = L'\0';
    *length = static_cast<uint32_t>(source.size());
    return RegStatus::Success;
}

}  // namespace

int32_t MemoryRegistry::EnumKey(RegHandle key, uint32_t index, wchar_t* name,
                                uint32_t* nameLength) {
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    if (int32_t status = Resolve(key, RegAccess::EnumerateSubKeys, node);
        status != RegStatus::Success) {
        return status;
    }
    if (index >= node->subkeys.size()) {
        return RegStatus::NoMoreItems;
    }
    return CopyName(node->subkeys[index]->name, name, nameLength);
}

int32_t MemoryRegistry::EnumValue(RegHandle key, uint32_t index, wchar_t* name,
                                  uint32_t* nameLength) {
    std::lock_guard<std::mutex> guard(m_lock);
    std::shared_ptr<Node> node;
    if (int32_t status = Resolve(key, RegAccess::QueryValue, node); status != RegStatus::Success) {
        return status;
    }
    if (index >= node->values.size()) {
        return RegStatus::NoMoreItems;
    }
    return CopyName(node->values[index].name, name, nameLength);
}

}  // namespace ZelCommon::Storage
