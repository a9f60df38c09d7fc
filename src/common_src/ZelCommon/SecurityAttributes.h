#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "common_src/ZelCommon/ExceptionBase.h"

namespace ZelCommon::AccessControl {

// A security descriptor could not be built: the Win32 error code and where we threw it.
class Exception : public ZelCommon::Exception::Win32Failure {
public:
    Exception(uint32_t errorCode, uint32_t sourceLine, std::string sourceFile)
        : Win32Failure(errorCode, sourceLine, std::move(sourceFile)) {}

    const char* TypeName() const override { return "ZelCommon::AccessControl::Exception"; }
};

// The DACL every registry key we create gets, in SDDL. The agent runs elevated and reads these
// keys, so only SYSTEM and Administrators may change who has access; the interactive user may
// read and change their own settings below them (query, set, create subkey, enumerate, notify,
// read control), but neither delete the key nor rewrite its permissions. Protected, so nothing
// looser is inherited from the parent; subkeys inherit the same entries.
inline constexpr wchar_t kCreatedKeyDacl[] = L"D:P(A;CI;KA;;;SY)(A;CI;KA;;;BA)(A;CI;0x2001f;;;IU)";

// Security attributes for creating registry keys, built from an SDDL text. Natively there is no
// security model to describe, and the attributes pointer is null.
class SecurityAttributes {
public:
    explicit SecurityAttributes(const std::wstring& sddl = kCreatedKeyDacl);
    ~SecurityAttributes();
    SecurityAttributes(const SecurityAttributes&) = delete;
    SecurityAttributes& operator=(const SecurityAttributes&) = delete;

    // A SECURITY_ATTRIBUTES on Windows, valid while this object lives; null natively.
    const void* Get() const;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

}  // namespace ZelCommon::AccessControl
