#pragma once

#include <filesystem>

namespace Orva::Testing {

// The checkout this test program was built from, handed in by the build: the build folder may
// lie anywhere (packagers and CI caches put it outside the checkout).
inline std::filesystem::path SourceRoot() {
    return std::filesystem::path(ORVA_SOURCE_DIR);
}

inline std::filesystem::path BundleFolder() {
    return SourceRoot() / "res" / "Resource" / "x86";
}

}  // namespace Orva::Testing
