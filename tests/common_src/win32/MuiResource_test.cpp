#include "common_src/win32/MuiResource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessContext.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace ZelCommon::Win32 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MuiResourceTest : public testing::Test {
protected:
    // A loadable module under the resource module's name: a copy of this test program.
    void PlaceModule() {
        std::error_code error;
        std::filesystem::copy_file(
            std::filesystem::path(Platform::SystemProcessContext().ModuleFilePath()),
            std::filesystem::path(Path::ChildFile(temp.Path(), kMuiFileName)), error);
        ASSERT_FALSE(error) << error.message();
    }

    Orva::Testing::TempFolder temp;
    Fakes::FakeDebuggerOutput debugger;
};

TEST_F(MuiResourceTest, ModuleInTheFolder_IsLoadedSilently) {
    PlaceModule();
    const auto holder = LoadMuiResource([this] { return temp.Path(); }, debugger);

    ASSERT_NE(holder, nullptr);
    EXPECT_TRUE(holder->IsLoaded());
    EXPECT_EQ(holder->Path(), Path::ChildFile(temp.Path(), L"ORVA_WLMA.dll.mui"));
    EXPECT_THAT(debugger.Texts(), IsEmpty());
}

TEST_F(MuiResourceTest, NoResourceFolder_TellsTheDebuggerAndKeepsAnEmptyHolder) {
    const auto holder = LoadMuiResource([] { return std::wstring(); }, debugger);

    ASSERT_NE(holder, nullptr);
    EXPECT_FALSE(holder->IsLoaded());
    EXPECT_THAT(debugger.Texts(), ElementsAre(L"Failed to get mui resource folder path!!"));
}

TEST_F(MuiResourceTest, FolderWithoutTheModule_TellsTheDebugger) {
    const auto holder = LoadMuiResource([this] { return temp.Path(); }, debugger);

    ASSERT_NE(holder, nullptr);
    EXPECT_FALSE(holder->IsLoaded());
    EXPECT_THAT(debugger.Texts(), ElementsAre(L"Failed to load MUI resource"));
}

TEST(ResourceHandle, MissingFile_LeavesNothingLoadedNotEvenTheOldModule) {
    Orva::Testing::TempFolder temp;
    ResourceHandle handle;
    ASSERT_TRUE(handle.Load(Platform::SystemProcessContext().ModuleFilePath()));
    EXPECT_FALSE(handle.Load(temp.File(L"absent.dll.mui")));
    EXPECT_FALSE(handle.IsLoaded());
    EXPECT_EQ(handle.Module(), nullptr);
    EXPECT_EQ(handle.Path(), L"");
}

TEST(ResourceHandle, MoveAndReset_HandTheModuleOverOnceThenForgetIt) {
    ResourceHandle first;
    ASSERT_TRUE(first.Load(Platform::SystemProcessContext().ModuleFilePath()));
    void* const module = first.Module();

    ResourceHandle second(std::move(first));

    EXPECT_EQ(second.Module(), module);
    EXPECT_FALSE(first.IsLoaded());  // NOLINT(bugprone-use-after-move): moved-from state is defined
    second.Reset();
    EXPECT_FALSE(second.IsLoaded());
    EXPECT_EQ(second.Module(), nullptr);
    EXPECT_EQ(second.Path(), L"");
}

}  // namespace
}  // namespace ZelCommon::Win32
