#include "ui/ProxyModel.h"

#include <gtest/gtest.h>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

// Seals by flipping bits behind a marker byte; anything else does not unprotect.
class FakePasswordProtector final : public IPasswordProtector {
public:
    std::optional<ProtectedBytes> Protect(const ProtectedBytes& plain) override {
        if (refuses) {
            return std::nullopt;
        }
        ProtectedBytes sealed = Flipped(plain);
        sealed.insert(sealed.begin(), 0xD1);
        return sealed;
    }
    std::optional<ProtectedBytes> Unprotect(const ProtectedBytes& sealed) override {
        if (sealed.empty() || sealed[0] != 0xD1) {
            return std::nullopt;
        }
        return Flipped(ProtectedBytes(sealed.begin() + 1, sealed.end()));
    }
    static ProtectedBytes Flipped(ProtectedBytes bytes) {
        for (uint8_t& byte : bytes) {
            byte ^= 0x5A;
        }
        return bytes;
    }
    bool refuses = false;
};

class FakeMessageBoxes final : public IMessageBoxes {
public:
    BoxAnswer Show(ZelCommon::Platform::WindowHandle owner, const std::wstring& text,
                   const std::wstring& caption, uint32_t style) override {
        shown.push_back(std::to_wstring(owner) + L"|" + text + L"|" + caption + L"|" +
                        std::to_wstring(style));
        return BoxAnswer::Ok;
    }
    std::vector<std::wstring> shown;
};

struct ProxyRig : Testing::PageRig {
    FakeMessageBoxes boxes;
    FakePasswordProtector protector;
    CProxyModel model{services, boxes, protector};
};

TEST(ProxyChecks, HostLengthAndCodes_PortTextUpToItsFirstZeroByte) {
    const std::pair<std::wstring, bool> hosts[] = {{L"", false},
                                                   {std::wstring(256, L'h'), true},
                                                   {std::wstring(257, L'h'), false},
                                                   {L"h\u0080", true},
                                                   {L"h\u0081", false}};
    for (const auto& [host, valid] : hosts) {
        EXPECT_EQ(IsValidProxyHost(host), valid) << host.size();
    }
    // Read as bytes, "8x" ends after its "8"; U+0661 starts with the byte 'a'.
    for (const auto& [port, valid] : std::initializer_list<std::pair<std::wstring, bool>>{
             {L"", true}, {L"8080", true}, {L"x80", false}, {L"8x", true}, {L"\u0661", false}}) {
        EXPECT_EQ(IsValidPortText(port), valid) << port.size();
    }
}

TEST(ProxyModel, Opening_SwitchWithoutRegardToCase_PortOutsideTheRangeRepaired) {
    const std::tuple<const wchar_t*, bool, const wchar_t*, const wchar_t*> cases[] = {
        {L"YES", true, L"0", L"80"},
        {L"No", false, L"70000", L"80"},
        {L"yes", true, L"text", L"80"},
        {L"1", false, L"65535", L"65535"},
    };
    for (const auto& [proxySwitch, enabled, port, shownPort] : cases) {
        ProxyRig rig;
        rig.files.SetUserRaw(SettingId::EnableProxy, proxySwitch);
        rig.files.SetUserRaw(SettingId::HTTPPort, port);
        const ProxyFields fields = rig.model.Load();
        EXPECT_EQ(fields.enabled, enabled) << proxySwitch;
        EXPECT_EQ(fields.port, shownPort) << port;
        EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), shownPort) << port;
    }
}

TEST(ProxyModel, BadHostThenBadPort_WarnWithoutOwnerAndWriteNothing) {
    ProxyRig rig;
    EXPECT_EQ(rig.model.Save({true, L"", L"x", L"", L""}), ProxyField::Host);
    EXPECT_EQ(rig.model.Save({true, L"proxy", L"x1", L"", L""}), ProxyField::Port);
    EXPECT_EQ(
        rig.boxes.shown,
        (std::vector<std::wstring>{
            L"0|Host name incorrect,pls enter the correct host name|warning|0",
            L"0|Port format incorrect,pls enter the correct port from 1 to 65535|warning|0"}));
    EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPProxy), L"<missing>");
}

// OK writes every field, the password only in its marked protected form and never to the log;
// the dialog reads back what it wrote.
TEST(ProxyModel, Ok_WritesTheFieldsAndThePasswordProtected) {
    ProxyRig rig;
    const ProxyFields shown{true, L"proxy.example", L"3128", L"anna", L"pa55 w\u00f6rd"};
    ASSERT_EQ(rig.model.Save(shown), ProxyField::None);
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableProxy), L"yes");
    EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), L"3128");
    const std::wstring stored = rig.files.UserRaw(SettingId::ProxyPassword);
    EXPECT_EQ(stored.rfind(L"dpapi:", 0), 0u) << stored;
    EXPECT_EQ(stored.find(L"pa55"), std::wstring::npos);
    EXPECT_EQ(rig.model.Load(), shown);
    EXPECT_TRUE(rig.log.Lines().empty());
}

TEST(ProxyModel, UnreadableStoredPassword_ShownEmptyLoggedWithoutItKeptWhenNotProtected) {
    for (const wchar_t* stored :
         {L"legacy", L"dpapi:", L"dpapi:QUJD", L"DPAPI:0TsA", L"dpapi:0Ts"}) {
        ProxyRig rig;
        rig.files.SetUserRaw(SettingId::ProxyPassword, stored);
        EXPECT_EQ(rig.model.Load().password, L"") << stored;
        ASSERT_EQ(rig.log.Lines().size(), 1u);
        EXPECT_EQ(rig.log.Lines()[0].find(stored), std::wstring::npos);

        rig.protector.refuses = true;
        EXPECT_EQ(rig.model.Save({false, L"proxy", L"", L"", L"new"}), ProxyField::None);
        EXPECT_EQ(rig.files.UserRaw(SettingId::ProxyPassword), stored);
        EXPECT_EQ(rig.files.UserRaw(SettingId::HTTPPort), L"80");
    }
}

// The vectors of RFC 4648 both ways; broken text is refused.
TEST(Base64, RfcVectorsAndBrokenText) {
    const std::pair<std::string_view, std::wstring_view> vectors[] = {
        {"", L""},
        {"f", L"Zg=="},
        {"fo", L"Zm8="},
        {"foo", L"Zm9v"},
        {"foob", L"Zm9vYg=="},
        {"fooba", L"Zm9vYmE="},
        {"foobar", L"Zm9vYmFy"},
        {"\xFF\xEF", L"/+8="},
    };
    for (const auto& [plain, encoded] : vectors) {
        const ProtectedBytes bytes(plain.begin(), plain.end());
        EXPECT_EQ(Base64Encode(bytes), encoded);
        EXPECT_EQ(Base64Decode(encoded), bytes) << plain;
    }
    for (const std::wstring_view text : {L"Zm9", L"Zm=v", L"Z===", L"Zg==Zg==", L"Zm 9"}) {
        EXPECT_FALSE(Base64Decode(text).has_value()) << text.size();
    }
}

}  // namespace
}  // namespace Orva::Ui
