#include "common_src/ZelCommon/IniFile.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <vector>

#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Storage {
namespace {

constexpr uint32_t kStringStartChars = 256;
constexpr uint32_t kStringGrowthChars = 256;
constexpr uint32_t kListStartChars = 1024;
// Beyond this a reply that keeps filling the buffer is treated as a failed allocation.
constexpr uint32_t kMaxBufferChars = 64u * 1024 * 1024;

std::vector<wchar_t> ZeroedBuffer(uint32_t size) {
    if (size > kMaxBufferChars) {
        ZEL_THROW_STORAGE(ErrorCode::NotEnoughMemory);
    }
    try {
        return std::vector<wchar_t>(size, L'\0');
    } catch (const std::bad_alloc&) {
        ZEL_THROW_STORAGE(ErrorCode::NotEnoughMemory);
    }
}

// Reads a double-zero-terminated list, growing the buffer while the reply says it was cut
// (size - 2), and appends its strings in order.
template <class Read>
void ReadList(StringList& out, Read&& read) {
    uint32_t size = kListStartChars;
    for (;;) {
        std::vector<wchar_t> buffer = ZeroedBuffer(size);
        const uint32_t length = read(buffer.data(), size);
        if (length + 2 == size) {
            size *= 2;
            continue;
        }
        const std::wstring_view block(buffer.data(), std::min(length, size - 1));
        size_t start = 0;
        while (start < block.size()) {
            const size_t zero = std::min(block.find(L'\0', start), block.size());
            if (zero == start) {
                break;
            }
            out.emplace_back(block.substr(start, zero - start));
            start = zero + 1;
        }
        return;
    }
}

}  // namespace

IniFile::~IniFile() {
    Close(false);
}

void IniFile::Open(const Location& location, const std::wstring& name, int) {
    m_path = location.path;
    m_section = name;
}

void IniFile::Create(const Location& location, const std::wstring& name, int view) {
    Open(location, name, view);
}

void IniFile::Close(bool flush) {
    if (flush) {
        Flush();
    }
    m_path.clear();
    m_section.clear();
}

// Flushing answers false on Windows even when it worked, so the answer means nothing.
void IniFile::Flush() {
    RequireOpen();
    m_api.WriteString(nullptr, nullptr, nullptr, m_path.c_str());
}

// The profile functions cut a value to the buffer less its zero, and a quoted value one
// character shorter still, having dropped its closing quote. So the buffer holds `size`
// characters, the zero and one spare, and only an answer shorter than `size` is surely whole:
// a value of 255 characters takes one call.
std::wstring IniFile::GetString(const std::wstring& name, const std::wstring& defaultValue) {
    std::wstring result = defaultValue;
    RequireOpen();
    uint32_t size = kStringStartChars;
    for (;;) {
        std::vector<wchar_t> buffer = ZeroedBuffer(size + 2);
        const uint32_t length =
            m_api.GetString(m_section.c_str(), name.c_str(), defaultValue.c_str(), buffer.data(),
                            size + 2, m_path.c_str());
        if (length >= size) {
            size += kStringGrowthChars;
            continue;
        }
        buffer.back() = L'\0';
        result.assign(buffer.data());
        return result;
    }
}

uint32_t IniFile::GetDword(const std::wstring& name, uint32_t defaultValue) {
    RequireOpen();
    return m_api.GetInt(m_section.c_str(), name.c_str(), static_cast<int32_t>(defaultValue),
                        m_path.c_str());
}

void IniFile::SetString(const std::wstring& name, const std::wstring& value) {
    RequireOpen();
    if (!m_api.WriteString(m_section.c_str(), name.c_str(), value.c_str(), m_path.c_str())) {
        ZEL_THROW_STORAGE(m_api.LastError());
    }
}

void IniFile::SetDword(const std::wstring& name, uint32_t value) {
    SetString(name, Text::Format(L"%u", value));
}

void IniFile::DeleteKey() {
    RequireOpen();
    if (!m_api.WriteString(m_section.c_str(), nullptr, nullptr, m_path.c_str())) {
        ZEL_THROW_STORAGE(m_api.LastError());
    }
}

void IniFile::DeleteValue(const std::wstring& name) {
    RequireOpen();
    if (!m_api.WriteString(m_section.c_str(), name.c_str(), nullptr, m_path.c_str())) {
        ZEL_THROW_STORAGE(m_api.LastError());
    }
}

void IniFile::EnumKeys(StringList& names) {
    RequireOpen();
    ReadList(names, [this](wchar_t* buffer, uint32_t size) {
        return m_api.GetSectionNames(buffer, size, m_path.c_str());
    });
}

void IniFile::EnumValues(StringList& entries) {
    RequireOpen();
    ReadList(entries, [this](wchar_t* buffer, uint32_t size) {
        return m_api.GetSection(m_section.c_str(), buffer, size, m_path.c_str());
    });
}

void IniFile::RequireOpen() const {
    if (!IsOpen()) {
        ZEL_THROW_STORAGE(ErrorCode::BadArguments);
    }
}

}  // namespace ZelCommon::Storage
