// The same registry contract against the real Win32 registry.
#include "common_src/ZelCommon/RegistryApiContract.h"

namespace ZelCommon::Storage::Testing {
namespace {

std::shared_ptr<IRegistryApi> Win32Registry() {
    return std::shared_ptr<IRegistryApi>(&SystemRegistryApi(), [](IRegistryApi*) {});
}

INSTANTIATE_TEST_SUITE_P(Win32, RegistryApiContract,
                         testing::Values(RegistryBackend{"Win32", Win32Registry}), BackendName);

}  // namespace
}  // namespace ZelCommon::Storage::Testing
