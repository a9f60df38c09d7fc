#include <windows.h>

#include <sddl.h>

#include "common_src/ZelCommon/SecurityAttributes.h"

namespace ZelCommon::AccessControl {

namespace {

struct LocalFreeDeleter {
    void operator()(void* memory) const { LocalFree(memory); }
};
using UniqueLocalMemory = std::unique_ptr<void, LocalFreeDeleter>;

}  // namespace

struct SecurityAttributes::Impl {
    UniqueLocalMemory descriptor;
    SECURITY_ATTRIBUTES attributes{};
};

SecurityAttributes::SecurityAttributes(const std::wstring& sddl)
    : m_impl(std::make_unique<Impl>()) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl.c_str(), SDDL_REVISION_1,
                                                              &descriptor, nullptr)) {
        ZelCommon::Exception::ThrowNew<Exception>(static_cast<uint32_t>(GetLastError()),
                                                  static_cast<uint32_t>(__LINE__), __FILE__);
    }
    m_impl->descriptor.reset(descriptor);
    m_impl->attributes.nLength = sizeof(SECURITY_ATTRIBUTES);
    m_impl->attributes.lpSecurityDescriptor = m_impl->descriptor.get();
    m_impl->attributes.bInheritHandle = FALSE;
}

SecurityAttributes::~SecurityAttributes() = default;

const void* SecurityAttributes::Get() const {
    return &m_impl->attributes;
}

}  // namespace ZelCommon::AccessControl
