#include "common_src/ZelCommon/ProfileLists.h"

#include <cstdint>

namespace ZelCommon::Storage {
namespace {

// The profile functions return size - 2 when a double-zero-terminated list did not fit.
template <class Read>
std::vector<std::wstring> ReadList(Read&& read) {
    constexpr uint32_t kFirstSize = 4096;
    constexpr uint32_t kMaxSize = 1u << 24;
    for (uint32_t size = kFirstSize; size <= kMaxSize; size *= 2) {
        std::vector<wchar_t> buffer(size, L'\0');
        const uint32_t length = read(buffer.data(), size);
        if (length + 2 >= size) {
            continue;
        }
        std::vector<std::wstring> names;
        for (uint32_t at = 0; at < length && buffer[at] != L'\0';) {
            std::wstring name(buffer.data() + at);
            at += static_cast<uint32_t>(name.size()) + 1;
            names.push_back(std::move(name));
        }
        return names;
    }
    return {};
}

}  // namespace

std::vector<std::wstring> ReadSectionNames(ZelCommon::Storage::IProfileApi& api,
                                           const std::wstring& file) {
    return ReadList([&](wchar_t* buffer, uint32_t size) {
        return api.GetSectionNames(buffer, size, file.c_str());
    });
}

std::vector<std::wstring> ReadKeyNames(ZelCommon::Storage::IProfileApi& api,
                                       const std::wstring& file, const std::wstring& section) {
    return ReadList([&](wchar_t* buffer, uint32_t size) {
        return api.GetString(section.c_str(), nullptr, L"", buffer, size, file.c_str());
    });
}

}  // namespace ZelCommon::Storage
