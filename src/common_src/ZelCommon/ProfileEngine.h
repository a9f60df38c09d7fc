#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/ProfileDocument.h"
#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/AtomicFile.h"

namespace ZelCommon::Storage {

// A portable implementation of the Win32 profile functions, answering as they do, down to their
// buffer rules. Parsed files are kept while their size, write time and identity stay the same;
// every change is written at once, through a temporary file renamed over the old one.
class ProfileEngine : public IProfileApi {
public:
    ProfileEngine() = default;
    ProfileEngine(const ProfileEngine&) = delete;
    ProfileEngine& operator=(const ProfileEngine&) = delete;

    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override;
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override;
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override;
    uint32_t LastError() const override;

    // Forgets every parsed file (the next call reads from disk again).
    void ClearCache();

private:
    using Document = ProfileFile::Document;
    struct CachedFile {
        Platform::FileStamp stamp;
        std::string bytes;
        std::shared_ptr<const Document> document;
    };

    // The file's parsed contents (empty when it does not exist, with the last error set to
    // file-not-found, as the profile functions leave it), or null with the last error set when
    // it cannot be read.
    std::shared_ptr<const Document> Load(const wchar_t* file);
    std::shared_ptr<const Document> Remember(const std::wstring& path,
                                             const Platform::FileStamp& stamp, std::string bytes);
    bool Save(const wchar_t* file, const Document& document);

    uint32_t GetStringLocked(const wchar_t* section, const wchar_t* key,
                             const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                             const wchar_t* file);
    uint32_t GetSectionNamesLocked(wchar_t* buffer, uint32_t size, const wchar_t* file);
    uint32_t ListSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                         const wchar_t* file, bool withValues);
    bool DeleteSection(const wchar_t* section, const wchar_t* file);
    bool DeleteEntry(const wchar_t* section, const wchar_t* key, const wchar_t* file);
    bool SetEntry(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                  const wchar_t* file);

    static constexpr size_t kMaxCachedFiles = 32;

    std::mutex m_mutex;
    std::unordered_map<std::wstring, CachedFile> m_cache;
};

}  // namespace ZelCommon::Storage
