#include "settings/probes/OsVersion.h"

#include <gtest/gtest.h>

#include <optional>

#include "ProbeLog.h"
#include "common_src/platform/WideFormat.h"

namespace Orva::Settings {
namespace {

constexpr uint16_t kAmd64 = 9;
constexpr uint16_t kX86 = 0;
constexpr uint16_t kIa64 = 6;
constexpr uint8_t kWorkstation = 1;
constexpr uint8_t kDomainController = 2;
constexpr uint8_t kServer = 3;

struct OsCase {
    const char* name;
    OsFacts facts;
    uint32_t expected;
};

OsFacts Facts(uint32_t platform, uint32_t major, uint32_t minor, uint8_t product = kWorkstation,
              uint16_t architecture = kX86, int32_t serverR2 = 0) {
    OsFacts facts;
    facts.queried = true;
    facts.version = OsVersionRecord{platform, major, minor, product};
    facts.nativeArchitecture = architecture;
    facts.serverR2 = serverR2;
    return facts;
}

const OsCase kCases[] = {
    {"QueryFailed", OsFacts{}, 0},
    {"Win32s", Facts(0, 3, 10), 0},
    {"Windows95", Facts(1, 4, 0), 1},
    {"Windows98", Facts(1, 4, 10), 2},
    {"WindowsMe", Facts(1, 4, 90), 3},
    {"Win9xOtherMinor", Facts(1, 4, 3), 0},
    {"Win9xOtherMajor", Facts(1, 5, 0), 0},
    {"Nt351", Facts(2, 3, 51), 4},
    {"Nt4", Facts(2, 4, 0), 4},
    {"Windows2000", Facts(2, 5, 0), 5},
    {"WindowsXp", Facts(2, 5, 1), 6},
    {"WindowsXpOn64BitHardware", Facts(2, 5, 1, kWorkstation, kAmd64), 6},
    {"Server2003", Facts(2, 5, 2, kServer), 7},
    {"Server2003OnAmd64", Facts(2, 5, 2, kServer, kAmd64), 7},
    {"Server2003R2", Facts(2, 5, 2, kServer, kX86, 1), 8},
    {"Server2003R2Amd64", Facts(2, 5, 2, kServer, kAmd64, 1), 8},
    {"R2MetricWinsOverWorkstationAmd64", Facts(2, 5, 2, kWorkstation, kAmd64, 1), 8},
    {"WindowsXpX64", Facts(2, 5, 2, kWorkstation, kAmd64), 9},
    {"Workstation52OnX86", Facts(2, 5, 2, kWorkstation, kX86), 7},
    {"Workstation52OnItanium", Facts(2, 5, 2, kWorkstation, kIa64), 7},
    {"Nt5OtherMinor", Facts(2, 5, 3), 0},
    {"Vista32", Facts(2, 6, 0, kWorkstation, kX86), 10},
    {"Windows7_64", Facts(2, 6, 1, kWorkstation, kAmd64), 11},
    {"Windows10_32", Facts(2, 10, 0, kWorkstation, kX86), 10},
    {"Windows10_64", Facts(2, 10, 0, kWorkstation, kAmd64), 11},
    {"Server2008_32", Facts(2, 6, 0, kServer, kX86), 12},
    {"DomainController2012_64", Facts(2, 6, 2, kDomainController, kAmd64), 13},
    {"Server2019_64", Facts(2, 10, 0, kServer, kAmd64), 13},
    {"ClientOnItaniumCountsAs32", Facts(2, 6, 1, kWorkstation, kIa64), 10},
    {"UnknownPlatform", Facts(3, 10, 0), 0},
};

TEST(OsVersion, Classify_EveryTableRow_GivesItsIdentifier) {
    for (const OsCase& c : kCases) {
        EXPECT_EQ(ClassifyOsVersion(c.facts), c.expected) << c.name;
    }
}

TEST(OsVersion, IsWindows64Id_TrueExactlyFor9_11_13) {
    for (uint32_t id = 0; id <= 14; ++id) {
        EXPECT_EQ(IsWindows64Id(id), id == 9 || id == 11 || id == 13) << id;
    }
}

// Answers from a chosen record and counts what the probe asked.
class ScriptedOsInfo : public IOsInfo {
public:
    bool succeeds = true;
    OsVersionRecord record;
    uint16_t architecture = 0;
    int32_t serverR2 = 0;
    int architectureQueries = 0;
    int metricQueries = 0;

    bool QueryVersion(OsVersionRecord& out) override {
        if (succeeds) {
            out = record;
        }
        return succeeds;
    }
    uint16_t NativeProcessorArchitecture() override {
        ++architectureQueries;
        return architecture;
    }
    int32_t ServerR2Metric() override {
        ++metricQueries;
        return serverR2;
    }
};

// The probe asks for the architecture and the R2 metric only where they decide the answer (the
// calls do not exist on the oldest systems), and logs the version it was told.
TEST(OsVersion, GetOSVersion_AsksOnlyWhatTheVersionNeedsAndLogsIt) {
    const struct {
        const char* name;
        std::optional<OsVersionRecord> record;
        uint32_t id;
        int architectureQueries;
        int metricQueries;
    } cases[] = {
        {"query fails", std::nullopt, 0, 0, 0},
        {"Windows 98", OsVersionRecord{1, 4, 10, 0}, 2, 0, 0},
        {"Windows 10 client", OsVersionRecord{2, 10, 0, kWorkstation}, 11, 1, 0},
        {"Server 2003 R2", OsVersionRecord{2, 5, 2, kServer}, 8, 1, 1},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Testing::ProbeLog log;
        ScriptedOsInfo os;
        os.succeeds = each.record.has_value();
        os.record = each.record.value_or(OsVersionRecord{});
        os.architecture = kAmd64;
        os.serverR2 = 1;
        EXPECT_EQ(CComUtilSet::GetOSVersion(os, log.Log()), each.id);
        EXPECT_EQ(os.architectureQueries, each.architectureQueries);
        EXPECT_EQ(os.metricQueries, each.metricQueries);
        std::vector<std::wstring> lines;
        if (each.record) {
            lines.push_back(ZelCommon::Text::Format(
                L"@@@ CComUtilSet::GetOSVersion() - osvi.dwPlatformId = %u, osvi.dwMajorVersion = "
                L"%u, osvi.dwMinorVersion = %u\n",
                each.record->platformId, each.record->majorVersion, each.record->minorVersion));
        }
        EXPECT_EQ(log.Lines(), lines);
    }
}

}  // namespace
}  // namespace Orva::Settings
