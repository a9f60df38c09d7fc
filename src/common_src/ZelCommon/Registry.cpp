#include "common_src/ZelCommon/Registry.h"

#include <cstring>
#include <new>
#include <string_view>
#include <vector>

#include "common_src/ZelCommon/SecurityAttributes.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage {

namespace {

// Registry names are at most 255 characters; the enumeration buffer leaves room to spare.
constexpr uint32_t kEnumNameChars = 260;

bool IsTextType(uint32_t type) {
    return type == RegType::Sz || type == RegType::ExpandSz || type == RegType::MultiSz;
}

// Registry text is UTF-16LE whatever the width of wchar_t; it ends at the first zero unit.
std::wstring TextFromRegistryBytes(const std::vector<uint8_t>& bytes) {
    std::size_t units = 0;
    while (units * 2 + 1 < bytes.size() && (bytes[units * 2] != 0 || bytes[units * 2 + 1] != 0)) {
        ++units;
    }
    return Text::Utf16LeToWide(
        std::string_view(reinterpret_cast<const char*>(bytes.data()), units * 2));
}

}  // namespace

Registry::~Registry() = default;

uint32_t Registry::ViewAccess(int view) {
    switch (view) {
        case 1:
            return RegAccess::Wow64_32Key;
        case 2:
            return RegAccess::Wow64_64Key;
        default:
            return 0;
    }
}

void Registry::Fail(int32_t status, const std::wstring& valueName) const {
    ZEL_THROW_REGISTRY(status, m_keyPath, valueName);
}

void Registry::Adopt(int32_t status, RegHandle key, const Location& location,
                     const std::wstring& name, int view) {
    if (status != RegStatus::Success) {
        ZEL_THROW_REGISTRY(status, name, std::wstring());
    }
    m_key = UniqueRegKey(m_api, key);
    m_root = location.root;
    m_view = view;
    m_keyPath = name;
}

void Registry::OpenWithAccess(const Location& location, const std::wstring& name, int view,
                              uint32_t access) {
    m_key.Reset();
    RegHandle key = 0;
    const int32_t status =
        m_api.OpenKey(RootHandle(location.root), name.c_str(), access | ViewAccess(view), &key);
    Adopt(status, key, location, name, view);
}

void Registry::Open(const Location& location, const std::wstring& name, int view) {
    OpenWithAccess(location, name, view, kOpenAccess);
}

void Registry::Create(const Location& location, const std::wstring& name, int view) {
    m_key.Reset();
    const AccessControl::SecurityAttributes security;
    RegHandle key = 0;
    const int32_t status = m_api.CreateKey(RootHandle(location.root), name.c_str(),
                                           kCreateAccess | ViewAccess(view), security.Get(), &key);
    Adopt(status, key, location, name, view);
}

void Registry::OpenForWriteAndDelete(const Location& location, const std::wstring& name, int view) {
    OpenWithAccess(location, name, view, kWriteAndDeleteAccess);
}

void Registry::OpenForEnumerate(const Location& location, const std::wstring& name, int view) {
    OpenWithAccess(location, name, view, kEnumerateAccess);
}

void Registry::Close(bool) {
    if (const int32_t status = m_key.Reset(); status != RegStatus::Success) {
        Fail(status, std::wstring());
    }
}

void Registry::Flush() {
    if (const int32_t status = m_api.FlushKey(m_key.Get()); status != RegStatus::Success) {
        Fail(status, std::wstring());
    }
}

uint32_t Registry::QueryChecked(const std::wstring& name, uint32_t expectedType,
                                uint32_t expectedSize) {
    uint32_t type = RegType::None;
    uint32_t size = 0;
    if (const int32_t status = m_api.QueryValue(m_key.Get(), name.c_str(), &type, nullptr, &size);
        status != RegStatus::Success) {
        Fail(status, name);
    }
    if (type != expectedType || size != expectedSize) {
        Fail(static_cast<int32_t>(ErrorCode::InvalidData), name);
    }
    return size;
}

void Registry::GetBinary(const std::wstring& name, void* buffer, uint32_t size) {
    QueryChecked(name, RegType::Binary, size);
    std::vector<uint8_t> bytes(size);
    uint32_t type = RegType::None;
    uint32_t read = size;
    if (const int32_t status =
            m_api.QueryValue(m_key.Get(), name.c_str(), &type, bytes.data(), &read);
        status != RegStatus::Success) {
        Fail(status, name);
    }
    if (type != RegType::Binary || read != size) {
        Fail(static_cast<int32_t>(ErrorCode::InvalidData), name);
    }
    if (size != 0) {
        std::memcpy(buffer, bytes.data(), size);
    }
}

std::wstring Registry::GetString(const std::wstring& name, const std::wstring&) {
    uint32_t type = RegType::None;
    uint32_t size = 0;
    if (const int32_t status = m_api.QueryValue(m_key.Get(), name.c_str(), &type, nullptr, &size);
        status != RegStatus::Success) {
        Fail(status, name);
    }
    if (!IsTextType(type)) {
        Fail(static_cast<int32_t>(ErrorCode::InvalidData), name);
    }
    std::vector<uint8_t> bytes;
    try {
        // Two zero bytes beyond the value end it even when it was stored without a terminator.
        bytes.assign(static_cast<std::size_t>(size) + 2, 0);
    } catch (const std::bad_alloc&) {
        Fail(static_cast<int32_t>(ErrorCode::NotEnoughMemory), name);
    }
    uint32_t read = size;
    if (const int32_t status =
            m_api.QueryValue(m_key.Get(), name.c_str(), &type, bytes.data(), &read);
        status != RegStatus::Success) {
        Fail(status, name);
    }
    if (!IsTextType(type)) {
        Fail(static_cast<int32_t>(ErrorCode::InvalidData), name);
    }
    return TextFromRegistryBytes(bytes);
}

int32_t Registry::GetSigned(const std::wstring& name) {
    return static_cast<int32_t>(GetDword(name, 0));
}

uint32_t Registry::GetDword(const std::wstring& name, uint32_t) {
    QueryChecked(name, RegType::Dword, sizeof(uint32_t));
    uint8_t bytes[sizeof(uint32_t)] = {};
    uint32_t type = RegType::None;
    uint32_t read = sizeof(bytes);
    if (const int32_t status = m_api.QueryValue(m_key.Get(), name.c_str(), &type, bytes, &read);
        status != RegStatus::Success) {
        Fail(status, name);
    }
    if (type != RegType::Dword || read != sizeof(bytes)) {
        Fail(static_cast<int32_t>(ErrorCode::InvalidData), name);
    }
    return static_cast<uint32_t>(bytes[0]) | static_cast<uint32_t>(bytes[1]) << 8 |
           static_cast<uint32_t>(bytes[2]) << 16 | static_cast<uint32_t>(bytes[3]) << 24;
}

void Registry::SetBinary(const std::wstring& name, const void* data, uint32_t size) {
    if (const int32_t status = m_api.SetValue(m_key.Get(), name.c_str(), RegType::Binary,
                                              static_cast<const uint8_t*>(data), size);
        status != RegStatus::Success) {
        Fail(status, name);
    }
}

void Registry::SetString(const std::wstring& name, const std::wstring& value) {
    std::string bytes = Text::WideToUtf16Le(value);
    bytes.append(2, '\0');
    if (const int32_t status = m_api.SetValue(m_key.Get(), name.c_str(), RegType::Sz,
                                              reinterpret_cast<const uint8_t*>(bytes.data()),
                                              static_cast<uint32_t>(bytes.size()));
        status != RegStatus::Success) {
        Fail(status, name);
    }
}

void Registry::SetDword(const std::wstring& name, uint32_t value) {
    const uint8_t bytes[sizeof(uint32_t)] = {
        static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8),
        static_cast<uint8_t>(value >> 16), static_cast<uint8_t>(value >> 24)};
    if (const int32_t status =
            m_api.SetValue(m_key.Get(), name.c_str(), RegType::Dword, bytes, sizeof(bytes));
        status != RegStatus::Success) {
        Fail(status, name);
    }
}

void Registry::DeleteKey() {
    if (const int32_t status = m_api.DeleteKey(RootHandle(m_root), m_keyPath.c_str());
        status != RegStatus::Success) {
        Fail(status, std::wstring());
    }
    Close(false);
}

void Registry::DeleteValue(const std::wstring& name) {
    if (const int32_t status = m_api.DeleteValue(m_key.Get(), name.c_str());
        status != RegStatus::Success) {
        Fail(status, name);
    }
}

void Registry::EnumKeys(StringList& names) {
    wchar_t buffer[kEnumNameChars];
    for (uint32_t index = 0;; ++index) {
        uint32_t length = kEnumNameChars;
        const int32_t status = m_api.EnumKey(m_key.Get(), index, buffer, &length);
        if (status == RegStatus::NoMoreItems) {
            return;
        }
        if (status != RegStatus::Success) {
            Fail(status, std::wstring());
        }
        names.emplace_back(buffer, length);
    }
}

void Registry::EnumValues(StringList& names) {
    wchar_t buffer[kEnumNameChars];
    for (uint32_t index = 0;; ++index) {
        uint32_t length = kEnumNameChars;
        const int32_t status = m_api.EnumValue(m_key.Get(), index, buffer, &length);
        if (status == RegStatus::NoMoreItems) {
            return;
        }
        if (status != RegStatus::Success) {
            Fail(status, std::wstring());
        }
        names.emplace_back(buffer, length);
    }
}

}  // namespace ZelCommon::Storage
