#pragma once

#include "common_src/platform/WindowMessaging.h"

namespace Orva::Ui {

// The mail client's contacts copied into the approved list's file. The approved page saves both
// lists before and reloads them after, since the run works on the files, not on the page's sets.
class IContactImport {
public:
    virtual ~IContactImport() = default;
    // Modal over `owner` until every contact is read or the user cancels.
    virtual void RunContactImport(ZelCommon::Platform::WindowHandle owner) = 0;
};

}  // namespace Orva::Ui
