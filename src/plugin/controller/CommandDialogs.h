#pragma once

#include "common_src/platform/ShellOpen.h"
#include "plugin/controller/ControllerParts.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The ribbon's help entry: the spam filter's page of the on-line help, whose address the
// installation file and the registry give, in the user's browser. The windows that do not exist
// yet come from `notYetBuilt`.
class CCommandDialogs final : public ICommandDialogs {
public:
    CCommandDialogs(ZelResourceStringLoader& loader, ZelCommon::Platform::IShellOpen& shell,
                    ICommandDialogs& notYetBuilt, ZelCommon::Library::DebugLog& log)
        : m_loader(loader), m_shell(shell), m_notYetBuilt(notYetBuilt), m_log(log) {}

    void OpenOnlineHelp() override;

    void OpenFilteringSheet() override { m_notYetBuilt.OpenFilteringSheet(); }
    void OpenStatistics() override { m_notYetBuilt.OpenStatistics(); }
    void OpenAbout() override { m_notYetBuilt.OpenAbout(); }
    bool ShowUnsupportedServerNotice() override {
        return m_notYetBuilt.ShowUnsupportedServerNotice();
    }
    void ImportContacts() override { m_notYetBuilt.ImportContacts(); }

private:
    ZelResourceStringLoader& m_loader;
    ZelCommon::Platform::IShellOpen& m_shell;
    ICommandDialogs& m_notYetBuilt;
    ZelCommon::Library::DebugLog& m_log;
};

}  // namespace Orva::Plugin
