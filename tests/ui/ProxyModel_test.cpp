#include "ui/ProxyModel.h"

#include <gtest/gtest.h>

#include "FakePasswordProtector.h"
#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

class FakeMessageBoxes final : public IMessageBoxes {
public:
    struct Box {
        ZelCommon::Platform::WindowHandle owner;
        std::wstring text;
        std::wstring caption;
        uint32_t style;
        bool operator==(const Box&) const = default;
    };
    BoxAnswer Show(ZelCommon::Platform::WindowHandle owner, const std::wstring& text,
                   const std::wstring& caption, uint32_t style) override {
        shown.push_back({owner, text, caption, style});
        return BoxAnswer::Ok;
    }
    std::vector<Box> shown;
};

struct ProxyRig : Testing::PageRig {
    FakeMessageBoxes boxes;
    Testing::FakePasswordProtector protector;
    CProxyModel model{services, boxes, protector};
};

TEST(ProxyChecks, HostLengthAndCharacterCodes) {
    const std::pair<std::wstring, bool> cases[] = {
        {L"", false},
        {L"proxy.example", true},
        {std::wstring(256, L'h'), true},
        {std::wstring(257, L'h'), false},
        {L"host\u0080", true},
        {L"host\u0081", false},
        {L"h\u00f6st", false},
    };
    for (const auto& [host, valid] : cases) {
        EXPECT_EQ(IsValidProxyHost(host), valid) << host.size();
    }
}

// The text is read as bytes up to the first zero byte, so only a first character that is no
// digit (or whose low byte is none) is refused.
TEST(ProxyChecks, PortTextUpToTheFirstZeroByte) {
    const std::pair<std::wstring_view, bool> cases[] = {
        {L"", true},   {L"8080", true}, {L"x80", false},
        {L"8x", true}, {L" 80", false}, {L"\u0661", false},
    };
    for (const auto& [port, valid] : cases) {
        EXPECT_EQ(IsValidPortText(port), valid) << std::string(port.begin(), port.end());
    }
}

TEST(ProxyModel, Switch_YesWithoutRegardToCase) {
    const std::pair<const wchar_t*, bool> cases[] = {{L"yes", true}, {L"YES", true}, {L"Yes", true},
                                                     {L"No", false}, {L"1", false},  {L"", false}};
    for (const auto& [stored, enabled] : cases) {
        ProxyRig rig;
        rig.files.SetUserRaw(SettingId::EnableProxy, stored);
        EXPECT_EQ(rig.model.Load().enabled, enabled) << stored;
    }
}

TEST(ProxyModel, PortOutsideTheRange_IsRepairedOnOpening) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"0", L"80"},  {L"70000", L"80"}, {L"text", L"80"},
        {L"-1", L"80"}, {L"1", L"1"},      {L"65535", L"65535"},
    };
    for (const auto& [stored, shown] : cases) {
        ProxyRig rig;
        rig.files.SetUserRaw(SettingId::HTTPPort, stored);
        EXPECT_EQ(rig.model.Load().port, shown) << stored;
        EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), shown) << stored;
    }
}

TEST(ProxyModel, BadHostOrPort_WarnsWithoutOwnerAndWritesNothing) {
    const struct {
        ProxyFields shown;
        ProxyField refused;
        const wchar_t* text;
    } cases[] = {
        {{true, L"", L"80", L"", L""},
         ProxyField::Host,
         L"Host name incorrect,pls enter the correct host name"},
        {{true, std::wstring(257, L'h'), L"x", L"", L""},
         ProxyField::Host,
         L"Host name incorrect,pls enter the correct host name"},
        {{true, L"proxy", L"x1", L"", L""},
         ProxyField::Port,
         L"Port format incorrect,pls enter the correct port from 1 to 65535"},
    };
    for (const auto& each : cases) {
        ProxyRig rig;
        EXPECT_EQ(rig.model.Save(each.shown), each.refused);
        EXPECT_EQ(rig.boxes.shown,
                  (std::vector<FakeMessageBoxes::Box>{{0, each.text, L"warning", BoxStyle::kOk}}));
        EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPProxy), L"<missing>");
    }
}

// OK writes every field; the password only in its protected form, and never into the log.
TEST(ProxyModel, Ok_WritesTheFieldsAndThePasswordProtected) {
    ProxyRig rig;
    const ProxyFields shown{true, L"proxy.example", L"3128", L"anna", L"pa55 w\u00f6rd"};
    ASSERT_EQ(rig.model.Save(shown), ProxyField::None);
    EXPECT_TRUE(rig.boxes.shown.empty());
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableProxy), L"yes");
    EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPProxy), L"proxy.example");
    EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), L"3128");
    EXPECT_EQ(rig.files.UserRaw(SettingId::ProxyUserName), L"anna");
    const std::wstring stored = rig.files.UserRaw(SettingId::ProxyPassword);
    EXPECT_EQ(stored.rfind(L"dpapi:", 0), 0u) << stored;

    EXPECT_EQ(rig.model.Load(), shown);
    for (const std::wstring& line : rig.log.Lines()) {
        EXPECT_EQ(line.find(L"pa55"), std::wstring::npos) << line;
    }
}

TEST(ProxyModel, StoredPasswordThatDoesNotUnprotect_ShownEmptyAndLoggedWithoutIt) {
    ProxyRig rig;
    rig.files.SetUserRaw(SettingId::ProxyPassword, L"legacy-scrambled");
    EXPECT_EQ(rig.model.Load().password, L"");
    ASSERT_EQ(rig.log.Lines().size(), 1u);
    EXPECT_EQ(rig.log.Lines()[0].find(L"legacy-scrambled"), std::wstring::npos);

    // A protector that refuses keeps the stored password as it was.
    rig.protector.refuses = true;
    EXPECT_EQ(rig.model.Save({false, L"proxy", L"", L"", L"new"}), ProxyField::None);
    EXPECT_EQ(rig.files.UserRaw(SettingId::ProxyPassword), L"legacy-scrambled");
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableProxy), L"no");
    EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), L"80");
}

}  // namespace
}  // namespace Orva::Ui
