#include "ui/BitmapFile_win.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "settings/log/DebugLog.h"
#include "ui/SliderRule.h"

namespace Orva::Ui {
namespace {

// Enough of a bitmap file to hold its file header and information header.
constexpr std::size_t kHeadBytes = 64;

}  // namespace

using ZelCommon::Platform::unique_handle;
using ZelCommon::Platform::unique_hbitmap;

unique_hbitmap LoadCheckedBitmapFile(const std::wstring& path) {
    if (path.empty()) {
        return {};
    }
    // The system's loader trusts the sizes in the file; the file is checked first, so that a
    // truncated or enormous one never reaches it.
    unique_handle file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (!file || ::GetFileSizeEx(file.get(), &size) == FALSE) {
        ZEL_LOG_TEXT(L"xxx bitmap file: cannot read %s, error %u", path.c_str(), ::GetLastError());
        return {};
    }
    std::array<std::uint8_t, kHeadBytes> head{};
    DWORD read = 0;
    const auto wanted = static_cast<DWORD>(std::min<LONGLONG>(size.QuadPart, kHeadBytes));
    if (::ReadFile(file.get(), head.data(), wanted, &read, nullptr) == FALSE ||
        !CSliderRule::IsUsableBitmapFile(std::span(head.data(), read),
                                         static_cast<std::uint64_t>(size.QuadPart))) {
        ZEL_LOG_TEXT(L"xxx bitmap file: %s is no usable bitmap", path.c_str());
        return {};
    }
    file.reset();
    unique_hbitmap bitmap(static_cast<HBITMAP>(::LoadImageW(
        nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
    if (!bitmap) {
        ZEL_LOG_TEXT(L"xxx bitmap file: LoadImageW(%s) failed, error %u", path.c_str(),
                     ::GetLastError());
    }
    return bitmap;
}

}  // namespace Orva::Ui
