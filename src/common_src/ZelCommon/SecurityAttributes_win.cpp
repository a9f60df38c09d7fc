#include <windows.h>

#include <sddl.h>

#include "common_src/ZelCommon/SecurityAttributes.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::AccessControl {

struct SecurityAttributes::Impl {
    Platform::unique_hlocal descriptor;
    SECURITY_ATTRIBUTES attributes{};
};

SecurityAttributes::SecurityAttributes(const std::wstring& sddl)
    : m_impl(std::make_unique<Impl>()) {
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl.c_str(), SDDL_REVISION_1,
                                                              m_impl->descriptor.put(), nullptr)) {
        ZelCommon::Exception::ThrowNew<Exception>(static_cast<uint32_t>(GetLastError()),
                                                  static_cast<uint32_t>(__LINE__), __FILE__);
    }
    m_impl->attributes.nLength = sizeof(SECURITY_ATTRIBUTES);
    m_impl->attributes.lpSecurityDescriptor = m_impl->descriptor.get();
    m_impl->attributes.bInheritHandle = FALSE;
}

SecurityAttributes::~SecurityAttributes() = default;

const void* SecurityAttributes::Get() const {
    return &m_impl->attributes;
}

}  // namespace ZelCommon::AccessControl
