#include "common_src/ZelCommon/ProfileEngine.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <string_view>

namespace ZelCommon::Storage {
namespace {

using ProfileFile::Document;
using ProfileFile::Entry;
using ProfileFile::FoldCase;
using ProfileFile::Section;
using ProfileFile::TrimProfileSpaces;

constexpr uint32_t kFileNotFound = 2;
constexpr uint32_t kNotEnoughMemory = 8;
constexpr uint32_t kInvalidParameter = 87;
constexpr uint32_t kIntBufferChars = 30;

thread_local uint32_t t_lastError = 0;

void SetLastError(uint32_t error) {
    t_lastError = error;
}

// As lstrcpynW: at most size - 1 characters and a terminating zero (size must be at least 1).
uint32_t CopyTruncated(wchar_t* buffer, uint32_t size, std::wstring_view text) {
    const size_t count = std::min<size_t>(text.size(), size - 1);
    text.copy(buffer, count);
    buffer[count] = L'\0';
    return static_cast<uint32_t>(count);
}

// A value handed back to the caller loses one pair of matching quotes around it. The closing
// quote goes only when the buffer could hold the whole quoted text, so a value cut by a small
// buffer loses one more character, as the profile functions do it.
uint32_t CopyEntry(wchar_t* buffer, uint32_t size, std::wstring_view value) {
    bool quoted = false;
    if (value.size() >= 2 && (value.front() == L'"' || value.front() == L'\'') &&
        value.back() == value.front()) {
        quoted = true;
        value.remove_prefix(1);
    }
    uint32_t length = CopyTruncated(buffer, size, value);
    if (quoted && size >= value.size() && length > 0) {
        buffer[--length] = L'\0';
    }
    return length;
}

bool SectionExists(const Document& document, size_t index) {
    return index > 0 || document.hasContent;
}

// Sections and keys looked up for reading or setting a value: the arguments are trimmed, and
// only the first section of a name is searched.
const Section* FindSection(const Document& document, std::wstring_view name, size_t& index) {
    const std::wstring folded = FoldCase(TrimProfileSpaces(name));
    for (index = 0; index < document.sections.size(); ++index) {
        if (SectionExists(document, index) && document.sections[index].folded == folded) {
            return &document.sections[index];
        }
    }
    return nullptr;
}

const Entry* FindEntry(const Section& section, std::wstring_view key, size_t& index) {
    const std::wstring folded = FoldCase(TrimProfileSpaces(key));
    for (index = 0; index < section.entries.size(); ++index) {
        if (section.entries[index].folded == folded) {
            return &section.entries[index];
        }
    }
    return nullptr;
}

bool IsComment(const Entry& entry) {
    return !entry.name.empty() && entry.name.front() == L';';
}

// As RtlUnicodeStringToInteger with base 0: blanks, a sign, "0x", "0o" or "0b", then digits up
// to the first that does not belong; overflow wraps.
uint32_t ParseProfileInteger(std::wstring_view text) {
    size_t i = 0;
    while (i < text.size() && text[i] <= L' ') {
        ++i;
    }
    bool negative = false;
    if (i < text.size() && (text[i] == L'+' || text[i] == L'-')) {
        negative = text[i] == L'-';
        ++i;
    }
    uint32_t base = 10;
    if (i + 1 < text.size() && text[i] == L'0') {
        const wchar_t prefix = text[i + 1];
        base = prefix == L'x' ? 16u : prefix == L'o' ? 8u : prefix == L'b' ? 2u : 10u;
        if (base != 10) {
            i += 2;
        }
    }
    uint32_t total = 0;
    for (; i < text.size(); ++i) {
        const wchar_t c = text[i];
        uint32_t digit = 36;
        if (c >= L'0' && c <= L'9') {
            digit = static_cast<uint32_t>(c - L'0');
        } else if (c >= L'A' && c <= L'Z') {
            digit = static_cast<uint32_t>(c - L'A') + 10;
        } else if (c >= L'a' && c <= L'z') {
            digit = static_cast<uint32_t>(c - L'a') + 10;
        }
        if (digit >= base) {
            break;
        }
        total = total * base + digit;
    }
    return negative ? 0u - total : total;
}

}  // namespace

uint32_t ProfileEngine::LastError() const {
    return t_lastError;
}

void ProfileEngine::ClearCache() {
    std::lock_guard lock(m_mutex);
    m_cache.clear();
}

// A file's stamp proves it unchanged only once its write time is safely in the past: file
// systems keep write times coarsely, so a same-sized rewrite moments ago may keep the old stamp.
// A recent file is read again and its bytes compared, which still spares the parse.
std::shared_ptr<const ProfileFile::Document> ProfileEngine::Load(const wchar_t* file) {
    static const auto kMissing = std::make_shared<const Document>(ProfileFile::ParseDocument({}));
    if (file == nullptr || *file == L'\0') {
        SetLastError(kFileNotFound);
        return nullptr;
    }
    const std::wstring path(file);
    Platform::FileStamp stamp;
    uint32_t error = Platform::QueryFileStamp(path, stamp);
    if (error == 0) {
        auto cached = m_cache.find(path);
        if (cached != m_cache.end() && cached->second.stamp == stamp &&
            !ProfileFile::IsRecent(stamp)) {
            return cached->second.document;
        }
        std::string bytes;
        error = Platform::ReadWholeFile(path, bytes, &stamp);
        if (error == 0) {
            cached = m_cache.find(path);
            if (cached != m_cache.end() && cached->second.bytes == bytes) {
                cached->second.stamp = stamp;
                return cached->second.document;
            }
            return Remember(path, stamp, std::move(bytes));
        }
    }
    m_cache.erase(path);
    SetLastError(error);
    return error == kFileNotFound ? kMissing : nullptr;
}

std::shared_ptr<const ProfileFile::Document> ProfileEngine::Remember(
    const std::wstring& path, const Platform::FileStamp& stamp, std::string bytes) {
    auto document = std::make_shared<const Document>(ProfileFile::ParseDocument(bytes));
    if (m_cache.size() >= kMaxCachedFiles && m_cache.find(path) == m_cache.end()) {
        m_cache.clear();
    }
    m_cache[path] = CachedFile{stamp, std::move(bytes), document};
    return document;
}

bool ProfileEngine::Save(const wchar_t* file, const Document& document) {
    const std::wstring path(file);
    const std::string bytes = ProfileFile::SerializeDocument(document);
    Platform::FileStamp stamp;
    const uint32_t error = Platform::ReplaceFileContents(path, bytes, &stamp);
    if (error != 0) {
        m_cache.erase(path);
        SetLastError(error);
        return false;
    }
    // Cache what a reader of the new file will see, not the edited tree: writing normalises
    // blanks and line breaks inside values.
    Remember(path, stamp, bytes);
    return true;
}

uint32_t ProfileEngine::GetString(const wchar_t* section, const wchar_t* key,
                                  const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                                  const wchar_t* file) {
    std::lock_guard lock(m_mutex);
    try {
        return GetStringLocked(section, key, defaultValue, buffer, size, file);
    } catch (const std::bad_alloc&) {
        SetLastError(kNotEnoughMemory);
        return 0;
    }
}

uint32_t ProfileEngine::GetStringLocked(const wchar_t* section, const wchar_t* key,
                                        const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                                        const wchar_t* file) {
    if (buffer == nullptr || size == 0) {
        return 0;
    }
    std::wstring_view fallback = defaultValue ? defaultValue : L"";
    if (section == nullptr) {
        return GetSectionNamesLocked(buffer, size, file);
    }
    if (key == nullptr) {
        const uint32_t length = ListSection(section, buffer, size, file, false);
        return buffer[0] == L'\0' ? CopyEntry(buffer, size, fallback) : length;
    }
    // Trailing spaces of the default go, but a default of spaces keeps one.
    while (fallback.size() > 1 && fallback.back() == L' ') {
        fallback.remove_suffix(1);
    }
    const auto document = Load(file);
    if (!document) {
        return CopyTruncated(buffer, size, fallback);
    }
    size_t index = 0;
    const Section* found = FindSection(*document, section, index);
    const Entry* entry = found ? FindEntry(*found, key, index) : nullptr;
    return CopyEntry(buffer, size,
                     entry && entry->value ? std::wstring_view(*entry->value) : fallback);
}

uint32_t ProfileEngine::GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                               const wchar_t* file) {
    std::lock_guard lock(m_mutex);
    try {
        wchar_t text[kIntBufferChars] = {};
        if (GetStringLocked(section, key, L"", text, kIntBufferChars, file) == 0 ||
            text[0] == L'\0') {
            return static_cast<uint32_t>(defaultValue);
        }
        return ParseProfileInteger(text);
    } catch (const std::bad_alloc&) {
        SetLastError(kNotEnoughMemory);
        return static_cast<uint32_t>(defaultValue);
    }
}

uint32_t ProfileEngine::GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                                   const wchar_t* file) {
    if (section == nullptr || buffer == nullptr) {
        SetLastError(kInvalidParameter);
        return 0;
    }
    std::lock_guard lock(m_mutex);
    try {
        return ListSection(section, buffer, size, file, true);
    } catch (const std::bad_alloc&) {
        SetLastError(kNotEnoughMemory);
        return 0;
    }
}

// The lines (or key names) of the first section of this name, compared without trimming, as a
// double-zero-terminated list; a list cut short ends in two zeros and returns size - 2.
uint32_t ProfileEngine::ListSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                                    const wchar_t* file, bool withValues) {
    const auto document = Load(file);
    if (!document) {
        if (size > 0) {
            buffer[0] = L'\0';
        }
        return 0;
    }
    if (size == 0) {
        return 0;
    }
    const std::wstring folded = FoldCase(section);
    for (size_t index = 0; index < document->sections.size(); ++index) {
        const Section& found = document->sections[index];
        if (!SectionExists(*document, index) || found.folded != folded) {
            continue;
        }
        if (size == 1) {
            buffer[0] = L'\0';
            return 0;
        }
        uint32_t left = size;
        wchar_t* out = buffer;
        for (const Entry& entry : found.entries) {
            if (left <= 2) {
                break;
            }
            if ((entry.name.empty() && !entry.value) || IsComment(entry) ||
                (!withValues && !entry.value)) {
                continue;
            }
            uint32_t copied = CopyTruncated(out, left - 1, entry.name);
            left -= copied + 1;
            out += copied + 1;
            if (left < 2) {
                break;
            }
            if (withValues && entry.value) {
                out[-1] = L'=';
                copied = CopyTruncated(out, left - 1, *entry.value);
                left -= copied + 1;
                out += copied + 1;
            }
        }
        *out = L'\0';
        if (left <= 1) {
            out[-1] = L'\0';
            return size - 2;
        }
        return size - left;
    }
    buffer[0] = L'\0';
    if (size >= 2) {
        buffer[1] = L'\0';
    }
    return 0;
}

uint32_t ProfileEngine::GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) {
    std::lock_guard lock(m_mutex);
    try {
        return GetSectionNamesLocked(buffer, size, file);
    } catch (const std::bad_alloc&) {
        SetLastError(kNotEnoughMemory);
        return 0;
    }
}

// Every named section, duplicates included, as a double-zero-terminated list; the name that
// does not fit is cut so that the list still ends in two zeros, and size - 2 comes back.
uint32_t ProfileEngine::GetSectionNamesLocked(wchar_t* buffer, uint32_t size, const wchar_t* file) {
    const auto document = Load(file);
    if (!document) {
        return 0;
    }
    if (buffer == nullptr || size == 0) {
        return 0;
    }
    if (size == 1) {
        buffer[0] = L'\0';
        return 0;
    }
    uint32_t left = size - 1;
    wchar_t* out = buffer;
    for (const Section& section : document->sections) {
        if (section.name.empty()) {
            continue;
        }
        const size_t needed = section.name.size() + 1;
        if (needed >= left) {
            section.name.copy(out, left - 1);
            out += left - 1;
            *out++ = L'\0';
            *out = L'\0';
            return size - 2;
        }
        section.name.copy(out, section.name.size());
        out[section.name.size()] = L'\0';
        out += needed;
        left -= static_cast<uint32_t>(needed);
    }
    *out = L'\0';
    return static_cast<uint32_t>(out - buffer);
}

bool ProfileEngine::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                                const wchar_t* file) {
    // All three null only flush; writes here are never held back, and Windows answers false.
    if (section == nullptr && key == nullptr && value == nullptr) {
        return false;
    }
    std::lock_guard lock(m_mutex);
    try {
        if (key == nullptr) {
            if (section == nullptr) {
                SetLastError(kInvalidParameter);
                return false;
            }
            return DeleteSection(section, file);
        }
        if (value == nullptr) {
            return DeleteEntry(section, key, file);
        }
        return SetEntry(section, key, value, file);
    } catch (const std::bad_alloc&) {
        SetLastError(kNotEnoughMemory);
        return false;
    }
}

bool ProfileEngine::DeleteSection(const wchar_t* section, const wchar_t* file) {
    const auto document = Load(file);
    if (!document) {
        return false;
    }
    const std::wstring folded = FoldCase(section);
    for (size_t index = 0; index < document->sections.size(); ++index) {
        if (!SectionExists(*document, index) || document->sections[index].folded != folded) {
            continue;
        }
        Document changed = *document;
        if (index == 0) {
            changed.sections[0].entries.clear();  // the nameless head stays as the list's anchor
        } else {
            changed.sections.erase(changed.sections.begin() + static_cast<std::ptrdiff_t>(index));
        }
        return Save(file, changed);
    }
    return true;
}

// Deleting a key compares the names untrimmed and looks through every section of that name.
bool ProfileEngine::DeleteEntry(const wchar_t* section, const wchar_t* key, const wchar_t* file) {
    const auto document = Load(file);
    if (!document) {
        return false;
    }
    if (section == nullptr) {
        SetLastError(kFileNotFound);
        return false;
    }
    const std::wstring foldedSection = FoldCase(section);
    const std::wstring foldedKey = FoldCase(key);
    for (size_t index = 0; index < document->sections.size(); ++index) {
        const Section& candidate = document->sections[index];
        if (!SectionExists(*document, index) || candidate.folded != foldedSection) {
            continue;
        }
        for (size_t line = 0; line < candidate.entries.size(); ++line) {
            if (candidate.entries[line].folded == foldedKey) {
                Document changed = *document;
                auto& entries = changed.sections[index].entries;
                entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(line));
                return Save(file, changed);
            }
        }
    }
    return true;
}

bool ProfileEngine::SetEntry(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                             const wchar_t* file) {
    const auto document = Load(file);
    if (!document) {
        return false;
    }
    if (section == nullptr) {
        SetLastError(kFileNotFound);
        return false;
    }
    const std::wstring_view text = ProfileFile::TrimLeadingProfileSpaces(value);
    size_t sectionIndex = 0;
    size_t entryIndex = 0;
    const Section* found = FindSection(*document, section, sectionIndex);
    const Entry* entry = found ? FindEntry(*found, key, entryIndex) : nullptr;
    if (entry && entry->value && *entry->value == text) {
        return true;
    }
    Document changed = *document;
    // New names keep trailing blanks; only leading ones go.
    if (entry) {
        changed.sections[sectionIndex].entries[entryIndex].value = std::wstring(text);
    } else {
        ProfileFile::Entry added = ProfileFile::MakeEntry(
            std::wstring(ProfileFile::TrimLeadingProfileSpaces(key)), std::wstring(text));
        if (found) {
            changed.sections[sectionIndex].entries.push_back(std::move(added));
        } else {
            changed.sections.push_back(ProfileFile::MakeSection(
                std::wstring(ProfileFile::TrimLeadingProfileSpaces(section))));
            changed.sections.back().entries.push_back(std::move(added));
        }
    }
    return Save(file, changed);
}

}  // namespace ZelCommon::Storage
