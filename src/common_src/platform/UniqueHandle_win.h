#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace ZelCommon::Platform {

struct HandleCloser {
    void operator()(HANDLE handle) const noexcept {
        if (handle != nullptr && handle != INVALID_HANDLE_VALUE) {
            ::CloseHandle(handle);
        }
    }
};

// Owns a kernel object handle: closed once, when the owner goes.
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

}  // namespace ZelCommon::Platform
