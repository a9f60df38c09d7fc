#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Fakes {

// An in-memory profile store that records every call. It keeps the Win32 buffer rules that
// callers depend on (a value cut to size - 1, a list cut to size - 2 ending in two zeros) and
// nothing else: names match exactly, with no trimming, quotes or case folding.
class FakeProfileApi final : public Storage::IProfileApi {
public:
    enum class Function { GetString, GetInt, GetSection, GetSectionNames, WriteString };
    struct Call {
        Function function;
        std::optional<std::wstring> section;
        std::optional<std::wstring> key;
        std::optional<std::wstring> text;  // default or value
        uint32_t size = 0;
        std::wstring file;
    };

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
    bool HasSection(const std::wstring& section) const;
    // Every later write fails with this Win32 error code (0 lets writes succeed again).
    void FailWritesWith(uint32_t error) { m_writeError = error; }

    const std::vector<Call>& Calls() const { return m_calls; }
    void ClearCalls() { m_calls.clear(); }

private:
    using Lines = std::vector<std::pair<std::wstring, std::wstring>>;
    struct Section {
        std::wstring name;
        Lines lines;
    };

    Section* Find(const std::wstring& section);
    const Section* Find(const std::wstring& section) const;
    void Record(Function function, const wchar_t* section, const wchar_t* key, const wchar_t* text,
                uint32_t size, const wchar_t* file);

    std::vector<Section> m_sections;
    std::vector<Call> m_calls;
    uint32_t m_writeError = 0;
    uint32_t m_lastError = 0;
};

}  // namespace ZelCommon::Fakes
