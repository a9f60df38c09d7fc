#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Path.h"
#include "settings/localisation/LoaderStrings.h"
#include "plugin/controller/RibbonToolbar.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeLocale.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/plugin/FakeHostToolbar.h"

namespace {

namespace fs = std::filesystem;

// The add-in's side of the ribbon build on the mail client's GUI thread: the shipped en-US texts
// from an open string table, their placeholders expanded against the installation file, the
// image folder and the twelve calls into a host that costs nothing. The log is off, as it is
// for users.
void BM_BuildRibbonToolbar(benchmark::State& state) {
    const fs::path root = fs::temp_directory_path() / "orva-bench-ribbon";
    const fs::path install = root / "install";
    fs::create_directories(install / "ORVA" / "Resource" / "x86");
    fs::copy(ORVA_SHIPPED_RESOURCES, install / "ORVA" / "Resource" / "x86",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);

    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessContext process;
    process.SetModuleFilePath((install / "ORVA_WLMA.dll").wstring());
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    ZelCommon::Library::DebugLog log(clock, process, debugger);
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeLocale locale;
    ZelCommon::Storage::IProfileApi& profile = ZelCommon::Storage::SystemProfileApi();
    ZelResourceStringLoader loader(Orva::Settings::StringLoaderServices{
        profile, registry, locale, process, log, [] { return false; },
        ZelCommon::Path::ChildFolder(install.wstring(), L"")});
    Orva::Settings::CLoaderStrings strings(loader, (install / "ORVA_WLM.ini").wstring(), profile);

    for (auto _ : state) {
        ZelCommon::Fakes::FakeHostToolbar toolbar;
        Orva::Plugin::CRibbonToolbar ribbon(toolbar, strings, process, L"", log);
        benchmark::DoNotOptimize(ribbon.BuildRibbonToolbar(true));
    }
    fs::remove_all(root);
}
BENCHMARK(BM_BuildRibbonToolbar)->Unit(benchmark::kMicrosecond);

}  // namespace
