#include "common_src/ZelCommon/SecurityAttributes.h"

namespace ZelCommon::AccessControl {

struct SecurityAttributes::Impl {};

SecurityAttributes::SecurityAttributes(const std::wstring&) {}
SecurityAttributes::~SecurityAttributes() = default;

const void* SecurityAttributes::Get() const {
    return nullptr;
}

}  // namespace ZelCommon::AccessControl
