#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "common_src/platform/WideFormat.h"
#include "settings/log/DebugLog.h"

namespace {

using ZelCommon::Text::Format;

// A typical controller log line: a name, a mail-store id and a count.
void BM_FormatLogLine(benchmark::State& state) {
    const std::wstring name = L"CToolBarWnd::OnDeleteAllSpam";
    const uint64_t folderId = 0x1A2B3C4D5E6FULL;
    int count = 0;
    for (auto _ : state) {
        std::wstring line = Format(L"@@@ %s  folder %llX, %d messages", name, folderId, ++count);
        benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(BM_FormatLogLine);

// The head every log line carries.
void BM_FormatLogHead(benchmark::State& state) {
    for (auto _ : state) {
        std::wstring head = Format(L"%04x:%04x %04u/%02u/%02u %02u:%02u:%02u:%03u ", 0x1234u,
                                   0x0B0Cu, 2024, 1, 31, 23, 59, 59, 999);
        benchmark::DoNotOptimize(head);
    }
}
BENCHMARK(BM_FormatLogHead);

void BM_FormatDouble(benchmark::State& state) {
    double value = 12.5;
    for (auto _ : state) {
        std::wstring text = Format(L"%.1f%%", value);
        value += 0.25;
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(BM_FormatDouble);

class NullDebuggerOutput final : public ZelCommon::Platform::IDebuggerOutput {
public:
    void Write(const std::wstring& text) override { benchmark::DoNotOptimize(text.data()); }
};

// One whole levelled message through the log into a real file, flushed as in production.
void BM_LogMessageToFile(benchmark::State& state) {
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessContext process;
    NullDebuggerOutput debugger;
    ZelCommon::Library::DebugLog log(clock, process, debugger);
    const auto folder = std::filesystem::temp_directory_path() / "orva_bench_log";
    std::filesystem::create_directories(folder);
    log.OpenLog((folder / "bench.log").wstring());
    for (auto _ : state) {
        log.LogMessage(2, __FILE__, __LINE__, L"folder %llX holds %d messages", uint64_t{0x1A2B3C},
                       42);
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}
BENCHMARK(BM_LogMessageToFile);

}  // namespace
