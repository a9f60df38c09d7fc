#include "ui/ProxyModel.h"

#include <algorithm>
#include <optional>

#include "common_src/platform/TextCodec.h"
#include "ui/Headline.h"

namespace Orva::Ui {

using Settings::SettingId;

namespace {

constexpr std::size_t kLongestHost = 256;
constexpr wchar_t kHighestHostCharacter = 128;

constexpr wchar_t kWarningCaption[] = L"warning";
constexpr wchar_t kBadHost[] = L"Host name incorrect,pls enter the correct host name";
constexpr wchar_t kBadPort[] = L"Port format incorrect,pls enter the correct port from 1 to 65535";

// The port a valid text stands for; an empty one, which the check lets through, keeps the
// default so that the agent never reads 0.
int PortOf(std::wstring_view text) {
    int port = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9') {
            return kDefaultProxyPort;
        }
        port = std::min(port * 10 + (digit - L'0'), kLargestPort + 1);
    }
    return port >= 1 && port <= kLargestPort ? port : kDefaultProxyPort;
}

}  // namespace

bool IsValidProxyHost(std::wstring_view host) {
    return !host.empty() && host.size() <= kLongestHost &&
           std::none_of(host.begin(), host.end(),
                        [](wchar_t c) { return static_cast<uint32_t>(c) > kHighestHostCharacter; });
}

bool IsValidPortText(std::wstring_view port) {
    const std::string bytes = ZelCommon::Text::WideToUtf16Le(port);
    const std::string_view checked(bytes.data(), std::min(bytes.find('\0'), bytes.size()));
    return std::all_of(checked.begin(), checked.end(), [](char c) { return c >= '0' && c <= '9'; });
}

CProxyModel::CProxyModel(PageServices& services, IMessageBoxes& boxes,
                         IPasswordProtector& protector)
    : m_services(services), m_boxes(boxes), m_protector(protector) {}

ProxyFields CProxyModel::Load() {
    Settings::SettingsStore& settings = m_services.settings;
    ProxyFields fields;
    fields.enabled = ZelCommon::Text::ToLower(settings.GetString(SettingId::EnableProxy)) == L"yes";
    fields.host = settings.GetString(SettingId::HTTPProxy);
    fields.user = settings.GetString(SettingId::ProxyUserName);

    int32_t port = settings.GetInt(SettingId::HTTPPort);
    if (port < 1 || port > kLargestPort) {
        port = kDefaultProxyPort;
        settings.SetInt(SettingId::HTTPPort, port);
    }
    fields.port = std::to_wstring(port);

    const std::optional<std::wstring> password =
        PasswordFromStored(m_protector, settings.GetString(SettingId::ProxyPassword));
    if (!password) {
        m_services.log.LogText(
            L"xxx CProxySettingDlg::OnInitDialog() the stored proxy password "
            L"cannot be unprotected; it is shown empty\n");
    }
    fields.password = password.value_or(std::wstring());
    return fields;
}

ProxyField CProxyModel::Save(const ProxyFields& shown) {
    if (!IsValidProxyHost(shown.host)) {
        Warn(kBadHost);
        return ProxyField::Host;
    }
    if (!IsValidPortText(shown.port)) {
        Warn(kBadPort);
        return ProxyField::Port;
    }
    Settings::SettingsStore& settings = m_services.settings;
    settings.SetFlag(SettingId::EnableProxy, shown.enabled);
    settings.Set(SettingId::HTTPProxy, shown.host);
    settings.Set(SettingId::ProxyUserName, shown.user);
    settings.SetInt(SettingId::HTTPPort, PortOf(shown.port));
    // A password that cannot be protected is not written at all: the one stored stays.
    if (const std::optional<std::wstring> stored = StoredPasswordOf(m_protector, shown.password)) {
        settings.Set(SettingId::ProxyPassword, *stored);
    } else {
        m_services.log.LogText(
            L"xxx CProxySettingDlg::OnOK() the proxy password cannot be protected; not written\n");
    }
    return ProxyField::None;
}

std::wstring CProxyModel::Headline(std::wstring_view localised) const {
    return ExpandCorpName(localised, m_services.settings, m_services.strings);
}

void CProxyModel::Warn(const wchar_t* text) {
    // The warning has no owner: it stands on its own above the dialog.
    m_boxes.Show(0, text, kWarningCaption, BoxStyle::kOk);
}

}  // namespace Orva::Ui
