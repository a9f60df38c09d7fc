#pragma once

#include <string>
#include <string_view>

#include "ui/MessageBoxes.h"
#include "ui/PageServices.h"
#include "ui/PasswordProtector.h"

namespace Orva::Ui {

// The proxy dialog's fields as the controls hold them.
struct ProxyFields {
    bool enabled = false;
    std::wstring host;
    std::wstring port;
    std::wstring user;
    std::wstring password;

    friend bool operator==(const ProxyFields&, const ProxyFields&) = default;
};

// A host name of 1 to 256 characters, none above code 128.
bool IsValidProxyHost(std::wstring_view host);
// The port text read as bytes up to the first zero byte, as the check always read it: digits
// only, and an empty text passes. The range is the digit edit's business.
bool IsValidPortText(std::wstring_view port);
inline constexpr int kDefaultProxyPort = 80;
inline constexpr int kLargestPort = 65535;

// The field a refused OK puts the focus on.
enum class ProxyField { None, Host, Port };

// The proxy dialog without its window: section RuleFile-Update of the user's settings file,
// the port repaired on opening, the host and port checked on OK with the user told through a
// message box, and the password kept protected for the current user.
class CProxyModel {
public:
    CProxyModel(PageServices& services, IMessageBoxes& boxes, IPasswordProtector& protector);

    // Reads the fields. A port outside 1 to 65535 is written back as "80"; a stored password
    // that does not unprotect is shown empty and logged.
    ProxyFields Load();
    // OK: the first refused field after its warning, or None once EnableProxy, HTTPProxy,
    // ProxyUserName, HTTPPort and ProxyPassword are written.
    ProxyField Save(const ProxyFields& shown);
    // The headline with the company's name put in.
    std::wstring Headline(std::wstring_view localised) const;

private:
    void Warn(const wchar_t* text);

    PageServices& m_services;
    IMessageBoxes& m_boxes;
    IPasswordProtector& m_protector;
};

}  // namespace Orva::Ui
