#include <benchmark/benchmark.h>

#include <string>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/Registry.h"

namespace {

using namespace ZelCommon::Storage;

// One string read the way the settings code does it: open, read, close.
void BM_RegistryOpenReadClose(benchmark::State& state) {
    MemoryRegistry registry;
    {
        Registry writer(registry);
        writer.Create(RegRoot::LocalMachine, L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA", 0);
        for (int i = 0; i < state.range(0); ++i) {
            writer.SetString(L"Value" + std::to_wstring(i), L"C:\\Program Files\\Halvion\\WLM");
        }
        writer.SetString(L"InstallPath", L"C:\\Program Files\\Halvion\\WLM");
    }
    for (auto _ : state) {
        Registry reader(registry);
        reader.Open(RegRoot::LocalMachine, L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA", 0);
        benchmark::DoNotOptimize(reader.GetString(L"installpath", L""));
    }
}
BENCHMARK(BM_RegistryOpenReadClose)->Arg(0)->Arg(64);

void BM_RegistryEnumKeys(benchmark::State& state) {
    MemoryRegistry registry;
    {
        Registry writer(registry);
        for (int i = 0; i < state.range(0); ++i) {
            writer.Create(RegRoot::CurrentUser, L"Software\\Bench\\Key" + std::to_wstring(i), 0);
        }
    }
    for (auto _ : state) {
        Registry reader(registry);
        reader.OpenForEnumerate(RegRoot::CurrentUser, L"Software\\Bench", 0);
        StringList names;
        reader.EnumKeys(names);
        benchmark::DoNotOptimize(names);
    }
}
BENCHMARK(BM_RegistryEnumKeys)->Arg(16)->Arg(256);

}  // namespace
