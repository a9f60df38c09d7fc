#pragma once

#include "common_src/platform/ShellOpen.h"
#include "plugin/controller/ControllerParts.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The ribbon's help entry: the spam filter's page of the on-line help, whose address the
// installation file and the registry give, in the user's browser. The add-in's windows come from
// `windows`.
class CCommandDialogs final : public ICommandDialogs {
public:
    CCommandDialogs(ZelResourceStringLoader& loader, ZelCommon::Platform::IShellOpen& shell,
                    ICommandDialogs& windows, ZelCommon::Library::DebugLog& log)
        : m_loader(loader), m_shell(shell), m_windows(windows), m_log(log) {}

    void OpenOnlineHelp() override;

    void OpenFilteringSheet() override { m_windows.OpenFilteringSheet(); }
    void OpenStatistics() override { m_windows.OpenStatistics(); }
    void OpenAbout() override { m_windows.OpenAbout(); }
    bool ShowUnsupportedServerNotice() override { return m_windows.ShowUnsupportedServerNotice(); }
    void ImportContacts() override { m_windows.ImportContacts(); }

private:
    ZelResourceStringLoader& m_loader;
    ZelCommon::Platform::IShellOpen& m_shell;
    ICommandDialogs& m_windows;
    ZelCommon::Library::DebugLog& m_log;
};

}  // namespace Orva::Plugin
