#pragma once

#include <cstdint>
#include <string>

#include "common_src/ZelCommon/ExceptionBase.h"

namespace ZelCommon::Storage {

// A failed storage operation: the Win32 error code, and where in our sources it was thrown.
class Exception : public ZelCommon::Exception::Win32Failure {
public:
    Exception(uint32_t errorCode, uint32_t sourceLine, std::string sourceFile)
        : Win32Failure(errorCode, sourceLine, std::move(sourceFile)) {}

    const char* TypeName() const override { return "ZelCommon::Storage::Exception"; }
};

// A failed registry operation; also names the key and the value involved.
class RegException : public Exception {
public:
    RegException(uint32_t errorCode, uint32_t sourceLine, std::string sourceFile,
                 std::wstring keyPath, std::wstring valueName)
        : Exception(errorCode, sourceLine, std::move(sourceFile)),
          m_keyPath(std::move(keyPath)),
          m_valueName(std::move(valueName)) {}

    const char* TypeName() const override { return "ZelCommon::Storage::RegException"; }
    const std::wstring& KeyPath() const { return m_keyPath; }
    const std::wstring& ValueName() const { return m_valueName; }

private:
    std::wstring m_keyPath;
    std::wstring m_valueName;
};

// Win32 error codes the storage layer reports itself.
namespace ErrorCode {
inline constexpr uint32_t FileNotFound = 2;     // ERROR_FILE_NOT_FOUND
inline constexpr uint32_t NotEnoughMemory = 6;  // ERROR_NOT_ENOUGH_MEMORY
inline constexpr uint32_t InvalidData = 13;     // ERROR_INVALID_DATA
inline constexpr uint32_t BadArguments = 160;   // ERROR_BAD_ARGUMENTS
inline constexpr uint32_t NoMoreItems = 259;    // ERROR_NO_MORE_ITEMS
}  // namespace ErrorCode

}  // namespace ZelCommon::Storage

// Throw sites record their own line and file, as the catchers log them.
#define ZEL_THROW_STORAGE(code)                                        \
    ::ZelCommon::Exception::ThrowNew<::ZelCommon::Storage::Exception>( \
        static_cast<uint32_t>(code), static_cast<uint32_t>(__LINE__), __FILE__)
#define ZEL_THROW_REGISTRY(code, keyPath, valueName)                                       \
    ::ZelCommon::Exception::ThrowNew<::ZelCommon::Storage::RegException>(                  \
        static_cast<uint32_t>(code), static_cast<uint32_t>(__LINE__), __FILE__, (keyPath), \
        (valueName))
