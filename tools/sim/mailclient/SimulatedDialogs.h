#pragma once

#include <string>

#include "SimulatedProcess.h"
#include "plugin/controller/ControllerParts.h"
#include "settings/localisation/LocalisedStrings.h"

namespace Orva::Sim {

// The add-in's windows as the simulated controller opens them: the contact import runs for real
// over the process's address book and the user's list files, its window and questions
// journaled; every other window is `others`.
class SimulatedDialogs final : public Orva::Plugin::ICommandDialogs {
public:
    SimulatedDialogs(Orva::Plugin::ICommandDialogs& others, SimulatedProcess& process,
                     Orva::Settings::ILocalisedStrings& strings, std::wstring dataFolder);

    void OpenFilteringSheet() override { m_others.OpenFilteringSheet(); }
    void OpenStatistics() override { m_others.OpenStatistics(); }
    void OpenOnlineHelp() override { m_others.OpenOnlineHelp(); }
    void OpenAbout() override { m_others.OpenAbout(); }
    bool ShowUnsupportedServerNotice() override { return m_others.ShowUnsupportedServerNotice(); }
    void ImportContacts() override;

private:
    Orva::Plugin::ICommandDialogs& m_others;
    SimulatedProcess& m_process;
    Orva::Settings::ILocalisedStrings& m_strings;
    std::wstring m_dataFolder;
};

}  // namespace Orva::Sim
