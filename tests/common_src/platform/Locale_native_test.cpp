#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "common_src/platform/Locale.h"

namespace ZelCommon::Platform {
namespace {

// ORVA_LCID is read at each call, so a test can set it and put the old value back.
class OrvaLcidVariable {
public:
    explicit OrvaLcidVariable(const char* value) {
        if (const char* old = std::getenv("ORVA_LCID")) {
            m_old = old;
            m_hadOld = true;
        }
        ::setenv("ORVA_LCID", value, 1);
    }
    ~OrvaLcidVariable() {
        if (m_hadOld) {
            ::setenv("ORVA_LCID", m_old.c_str(), 1);
        } else {
            ::unsetenv("ORVA_LCID");
        }
    }

private:
    std::string m_old;
    bool m_hadOld = false;
};

// Decimal or "0x" hexadecimal; anything else, or nothing, is English (United States).
TEST(LocaleNative, OrvaLcid_ChoosesTheSystemDefault) {
    const struct {
        const char* value;
        uint32_t lcid;
    } cases[] = {{"1031", 0x0407},   {"0x0807", 0x0807}, {"", 0x0409},
                 {"german", 0x0409}, {"12x", 0x0409},    {"0", 0x0409}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.value);
        const OrvaLcidVariable variable(each.value);
        EXPECT_EQ(SystemLocale().SystemDefaultLcid(), each.lcid);
    }
}

}  // namespace
}  // namespace ZelCommon::Platform
