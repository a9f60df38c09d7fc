#include "common_src/platform/Path.h"

#include <gtest/gtest.h>

#include "support/TempFolder.h"

namespace ZelCommon::Path {
namespace {

const std::wstring kSep(1, kSeparator);

TEST(Path, ChildFolder_AddsOneSeparatorBetweenAndAfter) {
    EXPECT_EQ(ChildFolder(L"root", L"Halvion"), L"root" + kSep + L"Halvion" + kSep);
    EXPECT_EQ(ChildFolder(L"root" + kSep, L"WLM"), L"root" + kSep + L"WLM" + kSep);
    EXPECT_EQ(ChildFolder(L"C:\\Data\\", L"Users"), L"C:\\Data\\Users" + kSep);
}

TEST(Path, ChildFile_JoinsWithoutTrailingSeparator) {
    EXPECT_EQ(ChildFile(L"dir" + kSep, L"ORVA_WLM.ini"), L"dir" + kSep + L"ORVA_WLM.ini");
    EXPECT_EQ(ChildFile(L"dir", L"a.ini"), L"dir" + kSep + L"a.ini");
    EXPECT_EQ(ChildFile(L"", L"a.ini"), L"a.ini");
}

TEST(Path, FolderOf_KeepsFinalSeparator) {
    EXPECT_EQ(FolderOf(L"C:\\Program Files\\ORVA\\ORVA_WLMA.dll"), L"C:\\Program Files\\ORVA\\");
    EXPECT_EQ(FolderOf(L"/opt/orva/orvactl"), L"/opt/orva/");
    EXPECT_EQ(FolderOf(L"plain.dll"), L"");
}

TEST(Path, FileNameOf_FindsLastComponent) {
    EXPECT_EQ(FileNameOf(L"C:\\src\\settings\\DebugLog.cpp"), L"DebugLog.cpp");
    EXPECT_EQ(FileNameOf(L"/src/settings/DebugLog.cpp"), L"DebugLog.cpp");
    EXPECT_EQ(FileNameOf(L"C:file.txt"), L"file.txt");
    EXPECT_EQ(FileNameOf(L"name"), L"name");
}

TEST(Path, CreateFolderWithParents_CreatesMissingChain) {
    Orva::Testing::TempFolder temp;
    const std::wstring deep = ChildFolder(temp.Folder(L"a"), L"b");
    EXPECT_FALSE(FolderExists(deep));
    EXPECT_TRUE(CreateFolderWithParents(deep));
    EXPECT_TRUE(FolderExists(deep));
    EXPECT_FALSE(FileExists(deep));
    EXPECT_TRUE(CreateFolderWithParents(deep));  // already there is fine
}

}  // namespace
}  // namespace ZelCommon::Path
