#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/TextCodec.h"

namespace {

using ZelCommon::Platform::SystemDebuggerOutput;
using ZelCommon::Platform::SystemProcessContext;

TEST(SystemProcessContextNative, ModuleFilePath_IsTheRunningProgram) {
    const std::wstring path = SystemProcessContext().ModuleFilePath();
    EXPECT_EQ(path,
              ZelCommon::Text::Utf8ToWide(std::filesystem::canonical("/proc/self/exe").string()));
}

TEST(SystemProcessContextNative, CommonAppData_FromEnvironmentOrVarTmp) {
    ::setenv("ORVA_COMMON_APPDATA", "/tmp/orva-common/", 1);
    EXPECT_EQ(SystemProcessContext().CommonAppDataFolder(), L"/tmp/orva-common");
    ::unsetenv("ORVA_COMMON_APPDATA");
    EXPECT_EQ(SystemProcessContext().CommonAppDataFolder(), L"/var/tmp");
}

TEST(SystemDebuggerOutputNative, WritesToStderrOnlyWhenAsked) {
    ::unsetenv("ORVA_DEBUGGER_OUTPUT");
    testing::internal::CaptureStderr();
    SystemDebuggerOutput().Write(L"quiet\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

    ::setenv("ORVA_DEBUGGER_OUTPUT", "1", 1);
    testing::internal::CaptureStderr();
    SystemDebuggerOutput().Write(L"caf\u00E9\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "caf\xC3\xA9\n");
    ::unsetenv("ORVA_DEBUGGER_OUTPUT");
}

}  // namespace
