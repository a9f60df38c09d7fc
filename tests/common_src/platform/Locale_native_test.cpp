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

struct VariableCase {
    const char* value;
    uint32_t lcid;
};

class LocaleNativeVariable : public testing::TestWithParam<VariableCase> {};

TEST_P(LocaleNativeVariable, OrvaLcid_ChoosesTheSystemDefault) {
    const OrvaLcidVariable variable(GetParam().value);
    EXPECT_EQ(SystemLocale().SystemDefaultLcid(), GetParam().lcid);
}

INSTANTIATE_TEST_SUITE_P(Cases, LocaleNativeVariable,
                         testing::Values(VariableCase{"1031", 0x0407},
                                         VariableCase{"0x0807", 0x0807}, VariableCase{"", 0x0409},
                                         VariableCase{"german", 0x0409},
                                         VariableCase{"12x", 0x0409}, VariableCase{"0", 0x0409}));

TEST(LocaleNative, KnownIds_HaveTheWindowsNames) {
    EXPECT_EQ(SystemLocale().LcidToLocaleName(0x0407), L"de-DE");
    EXPECT_EQ(SystemLocale().LcidToLocaleName(0x0807), L"de-CH");
    EXPECT_EQ(SystemLocale().LcidToLocaleName(0x7FFF), L"");
}

}  // namespace
}  // namespace ZelCommon::Platform
