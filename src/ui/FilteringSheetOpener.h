#pragma once

#include <string>

#include "common_src/platform/WindowMessaging.h"
#include "ui/FilteringSheetModel.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// Shows the sheet's window over its model: the Win32 sheet in the add-in.
class ISheetWindows {
public:
    virtual ~ISheetWindows() = default;
    // Runs the sheet modally; true when it ended with OK.
    virtual bool RunFilteringSheet(CFilteringSheetModel& model, PageServices& services,
                                   const std::wstring& caption,
                                   ZelCommon::Platform::WindowHandle parent) = 0;
};

// The settings command: nothing while the security suite is busy with a modal operation of its
// own; otherwise the sheet, captioned in the user's language, over both sender lists loaded
// once for the two list pages.
bool OpenFilteringSheet(PageServices& services, const SheetPaths& paths,
                        SenderPagePorts senderPorts, ISheetWindows& windows,
                        ZelCommon::Platform::WindowHandle parent);

}  // namespace Orva::Ui
