#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "OrvactlRun.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Path.h"
#include "support/SourceRoot.h"
#include "support/TempFolder.h"

namespace Orva::Testing {
namespace {

// The native locale port reads the system locale from ORVA_LCID at each call.
class SystemLcid {
public:
    explicit SystemLcid(const char* value) {
        if (const char* old = std::getenv("ORVA_LCID")) {
            m_old = old;
        }
        ::setenv("ORVA_LCID", value, 1);
    }
    ~SystemLcid() {
        if (m_old) {
            ::setenv("ORVA_LCID", m_old->c_str(), 1);
        } else {
            ::unsetenv("ORVA_LCID");
        }
    }

private:
    std::optional<std::string> m_old;
};

struct AutoCase {
    const char* lcid;
    bool shippedBundle;  // else tables of en-US and es-ES without a language map
    const wchar_t* out;
};

// The first line names the system locale, Windows' name for it ("-" for none) and the table
// the add-in would open; then the chosen table answers as with --locale.
TEST(StringsAuto, SystemLocale_ChoosesTheTableAsTheAddinDoes) {
    TempFolder temp;
    for (const wchar_t* locale : {L"en-US", L"es-ES"}) {
        const std::wstring table =
            ZelCommon::Path::ChildFile(temp.Folder(locale), L"StringTable.ini");
        ZelCommon::Path::CreateFolderWithParents(temp.Folder(locale));
        ZelCommon::Storage::SystemProfileApi().WriteString(L"ORVA_WLM", L"IDS_CANCEL", locale,
                                                           table.c_str());
    }
    const AutoCase cases[] = {
        {"3079", true, L"3079 de-AT de-DE\nAbbrechen\n"},
        {"1034", true, L"1034 es-ES_tradnl en-US\nCancel\n"},
        {"2058", false, L"2058 - es-ES\nes-ES\n"},
    };
    for (const AutoCase& row : cases) {
        const SystemLcid lcid(row.lcid);
        const std::wstring folder = row.shippedBundle ? BundleFolder().wstring() : temp.Path();
        const OrvactlRun run =
            RunTool({L"strings", L"--auto", L"--resource-folder", folder, L"IDS_CANCEL"});
        EXPECT_EQ(run.exitCode, 0) << row.lcid;
        EXPECT_EQ(run.out, row.out) << row.lcid;
    }
}

}  // namespace
}  // namespace Orva::Testing
