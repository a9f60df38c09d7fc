#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace Orva::Testing {

// A file's bytes as they are on disk, or "<missing>" when it cannot be read.
inline std::string ReadFileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) {
        return "<missing>";
    }
    std::string bytes(static_cast<size_t>(file.tellg()), '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

inline void WriteFileBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace Orva::Testing
