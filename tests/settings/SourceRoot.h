#pragma once

#include <filesystem>
#include <system_error>

namespace Orva::Testing {

// The checkout this test program was built from: the first folder above the working folder
// (ctest runs the tests inside the build tree) that holds both the sources and the shipped
// resource bundle. Empty when there is none.
inline std::filesystem::path SourceRoot() {
    namespace fs = std::filesystem;
    std::error_code error;
    for (fs::path folder = fs::current_path(error); !folder.empty();
         folder = folder.parent_path()) {
        if (fs::exists(folder / "src" / "settings" / "StringIds.cpp", error) &&
            fs::exists(folder / "res" / "Resource" / "x86" / "en-US" / "StringTable.ini", error)) {
            return folder;
        }
        if (folder == folder.parent_path()) {
            break;
        }
    }
    return {};
}

inline std::filesystem::path BundleFolder() {
    return SourceRoot() / "res" / "Resource" / "x86";
}

}  // namespace Orva::Testing
