#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage {

// A registry held in memory that answers like the Win32 registry functions: predefined roots,
// nested keys with case-insensitive names, handles that carry their granted access, the size
// protocol of RegQueryValueExW and the enumeration order of Windows (subkeys sorted by their
// upper-cased names, values in the order they were first set). Like Windows, SetValue of a
// string type peeks at the character after the counted bytes and counts it when it is the
// terminator the caller forgot. It serves as the registry of the native build and as the
// registry of tests; WOW64 views are not modelled. Any thread may call it.
class MemoryRegistry : public IRegistryApi {
public:
    MemoryRegistry();
    ~MemoryRegistry() override;
    MemoryRegistry(const MemoryRegistry&) = delete;
    MemoryRegistry& operator=(const MemoryRegistry&) = delete;

    int32_t OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                    RegHandle* result) override;
    int32_t CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                      const void* securityAttributes, RegHandle* result) override;
    int32_t CloseKey(RegHandle key) override;
    int32_t FlushKey(RegHandle key) override;
    int32_t QueryValue(RegHandle key, const wchar_t* name, uint32_t* type, uint8_t* data,
                       uint32_t* size) override;
    int32_t SetValue(RegHandle key, const wchar_t* name, uint32_t type, const uint8_t* data,
                     uint32_t size) override;
    int32_t DeleteKey(RegHandle parent, const wchar_t* subKey) override;
    int32_t DeleteValue(RegHandle key, const wchar_t* name) override;
    int32_t EnumKey(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override;
    int32_t EnumValue(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override;

    // Handles opened or created and not yet closed; lets tests find leaks.
    std::size_t OpenHandleCount() const;

private:
    struct Node;
    struct OpenHandle {
        std::shared_ptr<Node> node;
        uint32_t access = 0;
    };

    // Resolves a handle and checks its access, as the kernel does before any key operation.
    int32_t Resolve(RegHandle key, uint32_t requiredAccess, std::shared_ptr<Node>& node) const;
    int32_t Walk(const std::shared_ptr<Node>& start, const wchar_t* subKey, bool create,
                 std::shared_ptr<Node>& found);
    // Resolve, then Walk: the key `subKey` below an open handle. Called with the lock held.
    int32_t FindBelow(RegHandle parent, const wchar_t* subKey, bool create,
                      std::shared_ptr<Node>& found);
    RegHandle NewHandle(std::shared_ptr<Node> node, uint32_t access);
    int32_t OpenOrCreate(RegHandle parent, const wchar_t* subKey, uint32_t access, bool create,
                         RegHandle* result);

    mutable std::mutex m_lock;
    std::map<RegHandle, std::shared_ptr<Node>> m_roots;
    std::map<RegHandle, OpenHandle> m_handles;
    RegHandle m_nextHandle = 0x100;
};

}  // namespace ZelCommon::Storage
