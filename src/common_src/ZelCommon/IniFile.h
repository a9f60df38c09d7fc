#pragma once

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/StorageBase.h"

namespace ZelCommon::Storage {

// The ini back end: a file path and a current section, read and written through the profile
// functions. Open and Create only remember the two; the store is open while the path is set.
class IniFile : public Base {
public:
    explicit IniFile(IProfileApi& api = SystemProfileApi()) : m_api(api) {}
    ~IniFile() override;

    using Base::DeleteValue;
    using Base::GetDword;
    using Base::GetString;
    using Base::SetString;

    void Open(const Location& location, const std::wstring& name, int view) override;
    void Create(const Location& location, const std::wstring& name, int view) override;
    void Close(bool flush) override;
    void Flush() override;
    std::wstring GetString(const std::wstring& name, const std::wstring& defaultValue) override;
    uint32_t GetDword(const std::wstring& name, uint32_t defaultValue) override;
    void SetString(const std::wstring& name, const std::wstring& value) override;
    void SetDword(const std::wstring& name, uint32_t value) override;
    void DeleteKey() override;
    void DeleteValue(const std::wstring& name) override;
    void EnumKeys(StringList& names) override;
    void EnumValues(StringList& entries) override;

    bool IsOpen() const { return !m_path.empty(); }
    const std::wstring& Path() const { return m_path; }
    const std::wstring& Section() const { return m_section; }

private:
    void RequireOpen() const;

    IProfileApi& m_api;
    std::wstring m_path;
    std::wstring m_section;
};

}  // namespace ZelCommon::Storage
