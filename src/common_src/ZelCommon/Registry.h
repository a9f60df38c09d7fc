#pragma once

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/ZelCommon/StorageBase.h"

namespace ZelCommon::Storage {

// The registry back end: one open key, closed with the store. The view argument selects the
// registry view of a 64-bit Windows: 1 the 32-bit view, 2 the 64-bit view, anything else the
// caller's own. Getters check the stored type (and size) and throw error 13 on a mismatch; a
// missing value throws error 2 even where a default is passed, so callers that want the default
// catch. Keys made by Create get the DACL of AccessControl::SecurityAttributes.
class Registry : public Base {
public:
    explicit Registry(IRegistryApi& api = SystemRegistryApi()) : m_api(api) {}
    ~Registry() override;

    using Base::DeleteValue;
    using Base::GetBinary;
    using Base::GetDword;
    using Base::GetSigned;
    using Base::GetString;
    using Base::SetString;

    void Open(const Location& location, const std::wstring& name, int view) override;
    void Create(const Location& location, const std::wstring& name, int view) override;
    void OpenForWriteAndDelete(const Location& location, const std::wstring& name,
                               int view) override;
    void OpenForEnumerate(const Location& location, const std::wstring& name, int view) override;
    void Close(bool flush) override;
    void Flush() override;
    void GetBinary(const std::wstring& name, void* buffer, uint32_t size) override;
    std::wstring GetString(const std::wstring& name, const std::wstring& defaultValue) override;
    int32_t GetSigned(const std::wstring& name) override;
    uint32_t GetDword(const std::wstring& name, uint32_t defaultValue) override;
    void SetBinary(const std::wstring& name, const void* data, uint32_t size) override;
    void SetString(const std::wstring& name, const std::wstring& value) override;
    void SetDword(const std::wstring& name, uint32_t value) override;
    // Deletes the key this store has open (which must have no subkeys), then closes it.
    void DeleteKey() override;
    void DeleteValue(const std::wstring& name) override;
    void EnumKeys(StringList& names) override;
    void EnumValues(StringList& names) override;

    bool IsOpen() const { return static_cast<bool>(m_key); }
    const std::wstring& KeyPath() const { return m_keyPath; }

    // The access bits a view argument adds: 1 the 32-bit view, 2 the 64-bit view.
    static uint32_t ViewAccess(int view);

    // The access each kind of open asks for.
    static constexpr uint32_t kOpenAccess = RegAccess::QueryValue;
    static constexpr uint32_t kCreateAccess =
        RegAccess::QueryValue | RegAccess::SetValue | RegAccess::CreateSubKey;
    static constexpr uint32_t kWriteAndDeleteAccess = RegAccess::SetValue | RegAccess::Delete;
    static constexpr uint32_t kEnumerateAccess =
        RegAccess::QueryValue | RegAccess::EnumerateSubKeys;

private:
    void OpenWithAccess(const Location& location, const std::wstring& name, int view,
                        uint32_t access);
    void Adopt(int32_t status, RegHandle key, const Location& location, const std::wstring& name,
               int view);
    // Reads type and size, then checks both; the stored size comes back.
    uint32_t QueryChecked(const std::wstring& name, uint32_t expectedType, uint32_t expectedSize);
    [[noreturn]] void Fail(int32_t status, const std::wstring& valueName) const;

    IRegistryApi& m_api;
    UniqueRegKey m_key;
    RegRoot m_root = RegRoot::LocalMachine;
    int m_view = 0;
    std::wstring m_keyPath;
};

}  // namespace ZelCommon::Storage
