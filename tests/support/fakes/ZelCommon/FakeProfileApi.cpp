#include "support/fakes/ZelCommon/FakeProfileApi.h"

#include <algorithm>
#include <string_view>

namespace ZelCommon::Fakes {
namespace {

uint32_t CopyValue(wchar_t* buffer, uint32_t size, std::wstring_view text) {
    const size_t count = std::min<size_t>(text.size(), size - 1);
    text.copy(buffer, count);
    buffer[count] = L'\0';
    return static_cast<uint32_t>(count);
}

// A double-zero-terminated list; when it does not fit, the last string is cut so that two zeros
// still end it, and size - 2 is returned.
uint32_t CopyList(wchar_t* buffer, uint32_t size, const std::vector<std::wstring>& items) {
    if (size < 2) {
        if (size == 1) {
            buffer[0] = L'\0';
        }
        return 0;
    }
    std::wstring block;
    for (const std::wstring& item : items) {
        block += item;
        block += L'\0';
    }
    if (block.size() + 1 > size) {
        std::copy_n(block.begin(), size - 2, buffer);
        buffer[size - 2] = L'\0';
        buffer[size - 1] = L'\0';
        return size - 2;
    }
    std::copy(block.begin(), block.end(), buffer);
    buffer[block.size()] = L'\0';
    if (block.empty()) {
        buffer[1] = L'\0';
    }
    return static_cast<uint32_t>(block.size());
}

}  // namespace

FakeProfileApi::Section* FakeProfileApi::Find(const std::wstring& section) {
    auto found = std::find_if(m_sections.begin(), m_sections.end(),
                              [&](const Section& s) { return s.name == section; });
    return found == m_sections.end() ? nullptr : &*found;
}

const FakeProfileApi::Section* FakeProfileApi::Find(const std::wstring& section) const {
    auto found = std::find_if(m_sections.begin(), m_sections.end(),
                              [&](const Section& s) { return s.name == section; });
    return found == m_sections.end() ? nullptr : &*found;
}

void FakeProfileApi::Set(const std::wstring& section, const std::wstring& key,
                         const std::wstring& value) {
    Section* found = Find(section);
    if (!found) {
        m_sections.push_back(Section{section, {}});
        found = &m_sections.back();
    }
    for (auto& line : found->lines) {
        if (line.first == key) {
            line.second = value;
            return;
        }
    }
    found->lines.emplace_back(key, value);
}

std::optional<std::wstring> FakeProfileApi::Value(const std::wstring& section,
                                                  const std::wstring& key) const {
    if (const Section* found = Find(section)) {
        for (const auto& line : found->lines) {
            if (line.first == key) {
                return line.second;
            }
        }
    }
    return std::nullopt;
}

uint32_t FakeProfileApi::GetString(const wchar_t* section, const wchar_t* key,
                                   const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                                   const wchar_t* /*file*/) {
    if (!buffer || size == 0) {
        return 0;
    }
    if (!section) {
        std::vector<std::wstring> names;
        for (const Section& s : m_sections) {
            names.push_back(s.name);
        }
        return CopyList(buffer, size, names);
    }
    if (!key) {
        std::vector<std::wstring> keys;
        if (const Section* found = Find(section)) {
            for (const auto& line : found->lines) {
                keys.push_back(line.first);
            }
        }
        return CopyList(buffer, size, keys);
    }
    const std::optional<std::wstring> value = Value(section, key);
    return CopyValue(buffer, size, value ? *value : (defaultValue ? defaultValue : L""));
}

uint32_t FakeProfileApi::GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                                const wchar_t* /*file*/) {
    const std::optional<std::wstring> value = section && key ? Value(section, key) : std::nullopt;
    if (!value || value->empty()) {
        return static_cast<uint32_t>(defaultValue);
    }
    uint32_t total = 0;
    for (wchar_t c : *value) {
        if (c < L'0' || c > L'9') {
            break;
        }
        total = total * 10 + static_cast<uint32_t>(c - L'0');
    }
    return total;
}

uint32_t FakeProfileApi::GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                                    const wchar_t* /*file*/) {
    std::vector<std::wstring> lines;
    if (const Section* found = section ? Find(section) : nullptr) {
        for (const auto& line : found->lines) {
            lines.push_back(line.first + L"=" + line.second);
        }
    }
    return buffer ? CopyList(buffer, size, lines) : 0;
}

uint32_t FakeProfileApi::GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* /*file*/) {
    std::vector<std::wstring> names;
    for (const Section& s : m_sections) {
        names.push_back(s.name);
    }
    return buffer ? CopyList(buffer, size, names) : 0;
}

bool FakeProfileApi::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                                 const wchar_t* /*file*/) {
    if (!section && !key && !value) {
        return false;  // a flush, which Windows answers with false
    }
    if (m_writeError != 0) {
        m_lastError = m_writeError;
        return false;
    }
    if (!section) {
        m_lastError = 2;
        return false;
    }
    if (!key) {
        std::erase_if(m_sections, [&](const Section& s) { return s.name == section; });
        return true;
    }
    if (!value) {
        if (Section* found = Find(section)) {
            std::erase_if(found->lines, [&](const auto& line) { return line.first == key; });
        }
        return true;
    }
    Set(section, key, value);
    return true;
}

}  // namespace ZelCommon::Fakes
