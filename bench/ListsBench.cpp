#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/TextCodec.h"
#include "lists/ListFileText.h"
#include "lists/SenderListSet.h"
#include "lists/SenderValidation.h"

namespace {

using Orva::Lists::CBListSet;

// A list as users grow them: mostly personal and company addresses, some wildcards, display
// names with a few non-ASCII letters.
std::vector<Orva::Lists::SenderEntry> RealisticEntries(size_t count) {
    static const wchar_t* const kFirst[] = {
        L"anna", L"Bob", L"carlos", L"Dieter", L"eve", L"Fran\u00e7oise", L"george", L"Hiro"};
    static const wchar_t* const kDomains[] = {L"gmail.com", L"example.co.uk", L"mail.halvion.net",
                                              L"outlook.com", L"uni-hamburg.de"};
    std::vector<Orva::Lists::SenderEntry> entries;
    for (size_t i = 0; i < count; ++i) {
        const std::wstring first = kFirst[i % std::size(kFirst)];
        const std::wstring domain = kDomains[(i / 7) % std::size(kDomains)];
        std::wstring address = i % 25 == 0 ? L"*@spam" + std::to_wstring(i) + L".biz"
                                           : ZelCommon::Text::ToLower(first) + L"." +
                                                 std::to_wstring(i) + L"@" + domain;
        std::wstring name = i % 3 == 0 ? L"" : first + L" M\u00fcller " + std::to_wstring(i);
        entries.push_back({std::move(name), std::move(address)});
    }
    return entries;
}

std::wstring BenchFile(const wchar_t* name) {
    return (std::filesystem::temp_directory_path() / name).wstring();
}

void RemoveBenchFile(const std::wstring& path) {
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::path(path), ignored);
}

std::string FileBytes(const std::wstring& path) {
    std::string bytes;
    ZelCommon::Platform::ReadWholeFile(path, bytes);
    return bytes;
}

void FillSet(CBListSet& set, size_t count) {
    for (const auto& entry : RealisticEntries(count)) {
        set.Add(entry.address.c_str(), entry);
    }
}

std::wstring SavedListFile(size_t count) {
    const std::wstring path = BenchFile(L"orva-bench-BlackList.dat");
    CBListSet set;
    FillSet(set, count);
    set.Save(path);
    return path;
}

// A page or an import builds its set and loads it once: a fresh set per load. Dropping the
// previous set is left out of the timing.
void BM_ListLoad(benchmark::State& state) {
    const std::wstring path = SavedListFile(static_cast<size_t>(state.range(0)));
    auto set = std::make_unique<CBListSet>();
    for (auto _ : state) {
        set->Load(path);
        benchmark::DoNotOptimize(set->Count());
        state.PauseTiming();
        set = std::make_unique<CBListSet>();
        state.ResumeTiming();
    }
    RemoveBenchFile(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ListLoad)->Arg(8000)->Unit(benchmark::kMicrosecond);

// Loading again into a full set also pays for emptying it first.
void BM_ListReload(benchmark::State& state) {
    const std::wstring path = SavedListFile(static_cast<size_t>(state.range(0)));
    CBListSet set;
    for (auto _ : state) {
        set.Load(path);
        benchmark::DoNotOptimize(set.Count());
    }
    RemoveBenchFile(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ListReload)->Arg(8000)->Unit(benchmark::kMicrosecond);

// The floor of a load: the same file read into memory and decoded to wide text.
void BM_ReadDecodeBaseline(benchmark::State& state) {
    const std::wstring path = SavedListFile(static_cast<size_t>(state.range(0)));
    for (auto _ : state) {
        const std::wstring text = Orva::Lists::DecodeListText(FileBytes(path));
        benchmark::DoNotOptimize(text.data());
    }
    RemoveBenchFile(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReadDecodeBaseline)->Arg(8000)->Unit(benchmark::kMicrosecond);

// The set is loaded from its file first, as the pages do before they save.
void BM_ListSave(benchmark::State& state) {
    const std::wstring path = BenchFile(L"orva-bench-save-BlackList.dat");
    const std::wstring saved = SavedListFile(static_cast<size_t>(state.range(0)));
    CBListSet set;
    set.Load(saved);
    RemoveBenchFile(saved);
    for (auto _ : state) {
        benchmark::DoNotOptimize(set.Save(path));
    }
    RemoveBenchFile(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ListSave)->Arg(8000)->Unit(benchmark::kMicrosecond);

// The floor of a save: writing the bytes the save writes, in place, with no encoding.
void BM_WriteBytesBaseline(benchmark::State& state) {
    const std::wstring saved = SavedListFile(static_cast<size_t>(state.range(0)));
    const std::string bytes = FileBytes(saved);
    RemoveBenchFile(saved);
    const std::wstring path = BenchFile(L"orva-bench-bytes-BlackList.dat");
    for (auto _ : state) {
        std::ofstream file(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    RemoveBenchFile(path);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WriteBytesBaseline)->Arg(8000)->Unit(benchmark::kMicrosecond);

// Contact fields as an import meets them: addresses, some with blanks, stars or mistakes.
void BM_Validate(benchmark::State& state) {
    std::vector<std::wstring> addresses;
    for (const auto& entry : RealisticEntries(1000)) {
        addresses.push_back(entry.address);
    }
    for (size_t i = 0; i < addresses.size(); i += 10) {
        addresses[i] = L" " + addresses[i] + L"\r\n";
        addresses[i + 3] += L"@";
        addresses[i + 5] = L"no address " + std::to_wstring(i);
    }
    for (auto _ : state) {
        for (const std::wstring& address : addresses) {
            benchmark::DoNotOptimize(Orva::Lists::ValidateSender(L"Contact Name", address));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(addresses.size()));
}
BENCHMARK(BM_Validate);

}  // namespace
