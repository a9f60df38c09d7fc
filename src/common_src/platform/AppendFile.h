#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace ZelCommon::Platform {

// A file opened for appending in text mode ("a"): on Windows each "\n" written becomes CR LF.
// Move-only; the file closes with its owner.
class AppendFile {
public:
    AppendFile() = default;
    // An unopened AppendFile when the file cannot be opened or created.
    static AppendFile Open(const std::wstring& path);

    bool IsOpen() const { return m_file != nullptr; }
    // Writes the bytes and flushes them, so the file is complete even after a crash.
    bool Write(std::string_view bytes);
    void Close() { m_file.reset(); }

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    explicit AppendFile(std::FILE* file) : m_file(file) {}

    std::unique_ptr<std::FILE, Closer> m_file;
};

}  // namespace ZelCommon::Platform
