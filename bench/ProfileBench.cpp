#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "common_src/ZelCommon/ProfileEngine.h"

namespace {

using ZelCommon::Storage::ProfileEngine;

// A per-user settings file the size of the add-in's: 60 keys in a few sections.
class SettingsFile {
public:
    SettingsFile() {
        static int counter = 0;
        m_folder = std::filesystem::temp_directory_path() /
                   ("orva_profile_bench_" + std::to_string(++counter));
        std::filesystem::create_directories(m_folder);
        const std::filesystem::path path = m_folder / "ORVA_WLM.ini";
        std::ofstream out(path, std::ios::binary);
        const char* const sections[] = {"Settings", "Filter", "Statistics", "Update"};
        int key = 0;
        for (const char* section : sections) {
            out << "[" << section << "]\r\n";
            for (int i = 0; i < 15; ++i, ++key) {
                out << "Key" << key << "=Value number " << key << " of the settings file\r\n";
            }
        }
        out.close();
        m_path = path.wstring();
    }

    // Moves the write time an hour back, as for a file written in an earlier session.
    void Age() {
        const std::filesystem::path path(m_path);
        std::filesystem::last_write_time(
            path, std::filesystem::last_write_time(path) - std::chrono::hours(1));
    }
    ~SettingsFile() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    const wchar_t* Path() const { return m_path.c_str(); }

private:
    std::filesystem::path m_folder;
    std::wstring m_path;
};

// One key read out of a file the engine has already parsed: what each settings reader pays.
void BM_ProfileGetStringCached(benchmark::State& state) {
    SettingsFile file;
    file.Age();
    ProfileEngine engine;
    wchar_t buffer[1024];
    engine.GetString(L"Update", L"Key52", L"", buffer, 1024, file.Path());
    for (auto _ : state) {
        const uint32_t length =
            engine.GetString(L"Update", L"Key52", L"", buffer, 1024, file.Path());
        benchmark::DoNotOptimize(length);
        benchmark::DoNotOptimize(buffer);
    }
}
BENCHMARK(BM_ProfileGetStringCached);

// The same read while the file is seconds old, when its stamp alone cannot prove it unchanged
// and the bytes are read and compared.
void BM_ProfileGetStringFreshFile(benchmark::State& state) {
    SettingsFile file;
    ProfileEngine engine;
    wchar_t buffer[1024];
    for (auto _ : state) {
        const uint32_t length =
            engine.GetString(L"Update", L"Key52", L"", buffer, 1024, file.Path());
        benchmark::DoNotOptimize(length);
        benchmark::DoNotOptimize(buffer);
    }
}
BENCHMARK(BM_ProfileGetStringFreshFile)->MinTime(0.5);

// One key rewritten, alternating two values so that every call writes the file (through a
// temporary file renamed over it).
void BM_ProfileWriteString(benchmark::State& state) {
    SettingsFile file;
    ProfileEngine engine;
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        const bool written =
            engine.WriteString(L"Filter", L"Key20", flip ? L"1" : L"0", file.Path());
        benchmark::DoNotOptimize(written);
    }
}
BENCHMARK(BM_ProfileWriteString);

}  // namespace
