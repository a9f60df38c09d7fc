#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "plugin/controller/ControllerParts.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// Stands in for the parts the add-in does not have yet (classic band, dialogs), so that the
// controller and its protocol run complete without them. Each missing operation is logged the
// first time it is asked for; none pretends to succeed: no band, no dialog.
class CPendingParts final : public IClassicBand, public ICommandDialogs {
public:
    explicit CPendingParts(ZelCommon::Library::DebugLog& log) : m_log(log) {}

    void OnBuildUserInterface(uintptr_t wParam, intptr_t lParam) override;
    bool IsBuilt() const override { return false; }
    bool Exists() const override { return false; }
    void Refresh() override {}
    void TearDown() override {}
    bool HasDeferredObject() const override { return false; }
    void CreateDeferredObject() override;

    void OpenFilteringSheet() override;
    void OpenStatistics() override;
    void OpenOnlineHelp() override;
    void OpenAbout() override;
    bool ShowUnsupportedServerNotice() override;
    void ImportContacts() override;

private:
    void Missing(const wchar_t* operation);

    ZelCommon::Library::DebugLog& m_log;
    std::set<std::wstring> m_reported;
};

}  // namespace Orva::Plugin
