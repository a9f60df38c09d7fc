#pragma once

#include <string>

namespace ZelCommon::Platform {

// Starting a program that the caller never waits for.
class IProcessLauncher {
public:
    virtual ~IProcessLauncher() = default;
    // CreateProcessW with no application name, no inherited handles and the parent's
    // environment; an empty working folder keeps the parent's current folder. The process and
    // thread handles are closed at once. False when the process could not be created.
    virtual bool Launch(const std::wstring& commandLine, const std::wstring& workingFolder) = 0;
};

IProcessLauncher& SystemProcessLauncher();

}  // namespace ZelCommon::Platform
