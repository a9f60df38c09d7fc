#pragma once

#include <string_view>

namespace Orva::MailStore {

// Whether a message's header text (or its whole source) carries the quarantine marking the
// agent writes: one of the add-in's header families, "X-ZEL-AS-" or "X-HALVION-", together
// with "X-HALVION-ANTISPAMADDIN-QUARANTINETIME", in any letter case. A plain substring search,
// not a parse: the markers are looked for wherever they stand.
bool IsQuarantineMarked(std::wstring_view headerText);

}  // namespace Orva::MailStore
