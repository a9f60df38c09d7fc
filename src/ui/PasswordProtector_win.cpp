#include "ui/PasswordProtector_win.h"

#include <windows.h>
// dpapi.h needs the declarations of windows.h first.
#include <dpapi.h>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Ui {
namespace {

// CryptProtectData and CryptUnprotectData take and give a blob; the output is the system's.
std::optional<ProtectedBytes> Transform(const ProtectedBytes& input, bool protect) {
    DATA_BLOB in{static_cast<DWORD>(input.size()), const_cast<BYTE*>(input.data())};
    DATA_BLOB out{};
    const BOOL done = protect ? ::CryptProtectData(&in, nullptr, nullptr, nullptr, nullptr,
                                                   CRYPTPROTECT_UI_FORBIDDEN, &out)
                              : ::CryptUnprotectData(&in, nullptr, nullptr, nullptr, nullptr,
                                                     CRYPTPROTECT_UI_FORBIDDEN, &out);
    if (!done) {
        return std::nullopt;
    }
    const ZelCommon::Platform::unique_hlocal_ptr<BYTE> owned(out.pbData);
    ProtectedBytes result(out.pbData, out.pbData + out.cbData);
    // The clear text should not linger in freed memory.
    ::SecureZeroMemory(out.pbData, out.cbData);
    return result;
}

}  // namespace

std::optional<ProtectedBytes> CUserPasswordProtector::Protect(const ProtectedBytes& plain) {
    return Transform(plain, true);
}

std::optional<ProtectedBytes> CUserPasswordProtector::Unprotect(
    const ProtectedBytes& protectedBytes) {
    return Transform(protectedBytes, false);
}

}  // namespace Orva::Ui
