#include <gtest/gtest.h>

#include "settings/probes/FileVersionReader.h"

namespace Orva::Settings {
namespace {

TEST(FileVersionReaderNative, AnyFile_EveryQueryIsNone) {
    FileVersionReader reader(L"/bin/sh");
    EXPECT_FALSE(reader.HasVersionBlock());
    EXPECT_FALSE(reader.Query(L"FileVersion").has_value());
    EXPECT_EQ(reader.LanguageId(), 0);
}

}  // namespace
}  // namespace Orva::Settings
