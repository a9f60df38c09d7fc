#pragma once

#include <string>

#include "common_src/platform/ProcessContext.h"
#include "plugin/controller/ControllerParts.h"
#include "plugin/host/HostToolbar.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The ribbon group on the host's toolbar: the logo's drop-down with its five entries and the two
// reporting buttons. A host failure part-way keeps the ids made so far; the add-in goes on
// without the rest.
class CRibbonToolbar final : public IRibbonCommands {
public:
    // `defaultInstallFolder` (ending with a separator) stands in for the add-in's folder when
    // the module's path cannot be had.
    CRibbonToolbar(IHostToolbar& toolbar, ILocalisedStrings& strings,
                   ZelCommon::Platform::IProcessContext& process, std::wstring defaultInstallFolder,
                   ZelCommon::Library::DebugLog& log);

    RibbonIds BuildRibbonToolbar(bool toolbarEnabled) override;
    void SetOnOffCaption(bool enabled) override;
    // Only the reporting buttons follow the switch: the logo's drop-down holds the switch itself.
    void EnableButtons(bool enable) override;

private:
    // The folder of the buttons' bitmaps, ending with a separator.
    std::wstring ImageFolder();
    void BuildItems(bool toolbarEnabled);
    // Keeps the button's id in `id` before its tooltip is asked for.
    void AddReportingButton(int32_t& id, const wchar_t* caption, const wchar_t* image,
                            const wchar_t* tooltip, const std::wstring& images);
    template <class Call>
    void CallLogged(const wchar_t* function, Call call);

    IHostToolbar& m_toolbar;
    ILocalisedStrings& m_strings;
    ZelCommon::Platform::IProcessContext& m_process;
    std::wstring m_defaultInstallFolder;
    ZelCommon::Library::DebugLog& m_log;
    RibbonIds m_ids;
};

}  // namespace Orva::Plugin
