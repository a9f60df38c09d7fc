#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Orva::Settings {

// The version resource of one module file. Query("FileVersion") gives the string of that name
// in the first translation the file lists, or none when the file has no version resource, no
// translation or no such string.
class FileVersionReader {
public:
    explicit FileVersionReader(const std::wstring& filePath);
    ~FileVersionReader();
    FileVersionReader(const FileVersionReader&) = delete;
    FileVersionReader& operator=(const FileVersionReader&) = delete;

    std::optional<std::wstring> Query(const std::wstring& name) const;

    bool HasVersionBlock() const;
    // The language of the first translation, 0 without one.
    uint16_t LanguageId() const { return m_languageId; }

private:
    struct Block;
    std::unique_ptr<Block> m_block;
    std::wstring m_prefix;  // "\StringFileInfo\<language><code page>\", at most 100 characters
    uint16_t m_languageId = 0;
};

}  // namespace Orva::Settings
