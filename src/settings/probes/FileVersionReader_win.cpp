#include <windows.h>

#include <vector>

#include "common_src/platform/WideFormat.h"
#include "settings/probes/FileVersionReader.h"

namespace Orva::Settings {

namespace {

constexpr std::size_t kMaxPrefixChars = 100;

}  // namespace

struct FileVersionReader::Block {
    std::vector<BYTE> data;
};

FileVersionReader::FileVersionReader(const std::wstring& filePath) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(filePath.c_str(), &ignored);
    if (size == 0) {
        return;
    }
    std::vector<BYTE> data(size);
    if (!GetFileVersionInfoW(filePath.c_str(), 0, size, data.data())) {
        return;
    }
    struct Translation {
        WORD language;
        WORD codePage;
    };
    void* found = nullptr;
    UINT foundBytes = 0;
    if (!VerQueryValueW(data.data(), L"\\VarFileInfo\\Translation", &found, &foundBytes) ||
        found == nullptr || foundBytes < sizeof(Translation)) {
        return;
    }
    const auto* translation = static_cast<const Translation*>(found);
    m_prefix = ZelCommon::Text::Format(L"\\StringFileInfo\\%04hX%04hX\\", translation->language,
                                       translation->codePage)
                   .substr(0, kMaxPrefixChars);
    m_languageId = translation->language;
    m_block = std::make_unique<Block>();
    m_block->data = std::move(data);
}

FileVersionReader::~FileVersionReader() = default;

bool FileVersionReader::HasVersionBlock() const {
    return m_block != nullptr;
}

std::optional<std::wstring> FileVersionReader::Query(const std::wstring& name) const {
    if (!m_block || name.empty()) {
        return std::nullopt;
    }
    const std::wstring path = ZelCommon::Text::Format(L"%s%s", m_prefix, name);
    void* found = nullptr;
    UINT chars = 0;
    if (!VerQueryValueW(m_block->data.data(), path.c_str(), &found, &chars) || found == nullptr) {
        return std::nullopt;
    }
    // The length counts the terminator when there is one; never read past it.
    const auto* text = static_cast<const wchar_t*>(found);
    std::size_t length = 0;
    while (length < chars && text[length] != L'\0') {
        ++length;
    }
    return std::wstring(text, length);
}

}  // namespace Orva::Settings
