#include "ui/FilteringSheetOpener.h"

namespace Orva::Ui {

bool OpenFilteringSheet(PageServices& services, const SheetPaths& paths,
                        SenderPagePorts senderPorts, ISheetWindows& windows,
                        ZelCommon::Platform::WindowHandle parent) {
    if (services.agent.IsSuiteBusy()) {
        return false;
    }
    const std::wstring caption = services.strings.LoadShown(L"IDS_STRING_FILTERING_SHEET");
    CFilteringSheetModel model(services, paths, senderPorts);
    model.SetUp();
    return windows.RunFilteringSheet(model, services, caption, parent);
}

}  // namespace Orva::Ui
