#pragma once

#include <optional>
#include <string_view>

#include "common_src/platform/ProcessContext.h"

namespace Orva::Plugin {

// The major file version of the mail client's executable (14, 15, 16 ...); none when it cannot
// be read.
class IMailClientVersion {
public:
    virtual ~IMailClientVersion() = default;
    virtual std::optional<int> MajorVersion() = 0;
};

// The mail client 2009 has the classic toolbar; 2011 and 2012 have the ribbon; no other version
// is served.
inline constexpr int kClassicClientVersion = 14;
inline constexpr int kFirstRibbonClientVersion = 15;
inline constexpr int kLastRibbonClientVersion = 16;

// The leading number of a version text, as resource compilers write it ("16.4.3528.0331" or
// "14, 0, 8117, 0416"); none when the text does not start with a digit or the number is absurd.
std::optional<int> MajorVersionOf(std::wstring_view fileVersion);

// The "FileVersion" of the executable that loaded the add-in; natively the variable
// ORVA_MAIL_CLIENT_VERSION stands in for it.
class CMailClientVersion final : public IMailClientVersion {
public:
    explicit CMailClientVersion(
        ZelCommon::Platform::IProcessContext& process = ZelCommon::Platform::SystemProcessContext())
        : m_process(process) {}
    std::optional<int> MajorVersion() override;

private:
    ZelCommon::Platform::IProcessContext& m_process;
};

}  // namespace Orva::Plugin
