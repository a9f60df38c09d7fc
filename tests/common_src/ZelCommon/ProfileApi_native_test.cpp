#include <gtest/gtest.h>

#include "ProfileCases.h"
#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Storage::Testing {
namespace {

// Natively the system's profile functions are one engine shared by the whole process, its cache
// carried from case to case.
class SystemProfileCases : public ::testing::TestWithParam<ProfileCase> {};

TEST_P(SystemProfileCases, AnswersAsWin32) {
    RunProfileCase(SystemProfileApi(), GetParam(), 2);
}

INSTANTIATE_TEST_SUITE_P(SystemProfileApi, SystemProfileCases, ::testing::ValuesIn(ProfileCases()),
                         ProfileCaseName);

}  // namespace
}  // namespace ZelCommon::Storage::Testing
