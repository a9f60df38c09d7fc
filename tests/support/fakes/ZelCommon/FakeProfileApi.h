#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Fakes {

// An in-memory profile store. It keeps the Win32 buffer rules that
// callers depend on (a value cut to size - 1, a list cut to size - 2 ending in two zeros) and
// nothing else: names match exactly, with no trimming, quotes or case folding.
class FakeProfileApi final : public Storage::IProfileApi {
public:
    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override;
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override;
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override;
    uint32_t LastError() const override { return m_lastError; }

    void Set(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    std::optional<std::wstring> Value(const std::wstring& section, const std::wstring& key) const;
    // Every later write fails with this Win32 error code (0 lets writes succeed again).
    void FailWritesWith(uint32_t error) { m_writeError = error; }

private:
    using Lines = std::vector<std::pair<std::wstring, std::wstring>>;
    struct Section {
        std::wstring name;
        Lines lines;
    };

    Section* Find(const std::wstring& section);
    const Section* Find(const std::wstring& section) const;

    std::vector<Section> m_sections;
    uint32_t m_writeError = 0;
    uint32_t m_lastError = 0;
};

}  // namespace ZelCommon::Fakes
