#include "mailstore/QuarantineMark.h"

#include <string>

namespace Orva::MailStore {

bool IsQuarantineMarked(std::wstring_view headerText) {
    // The markers are ASCII, so folding ASCII letters is all the comparison needs.
    std::wstring upper(headerText);
    for (wchar_t& c : upper) {
        if (c >= L'a' && c <= L'z') {
            c = static_cast<wchar_t>(c - L'a' + L'A');
        }
    }
    const bool family = upper.find(L"X-ZEL-AS-") != std::wstring::npos ||
                        upper.find(L"X-HALVION-") != std::wstring::npos;
    return family && upper.find(L"X-HALVION-ANTISPAMADDIN-QUARANTINETIME") != std::wstring::npos;
}

}  // namespace Orva::MailStore
