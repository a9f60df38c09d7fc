#pragma once

#include <cstdint>
#include <string>

#include "settings/localisation/LocalisedStrings.h"

namespace Orva::Plugin {

// The nine ids the host gave the ribbon items, in the order they are logged.
struct RibbonIds {
    int32_t group = 0;
    int32_t logo = 0;
    int32_t settings = 0;
    int32_t statistics = 0;
    int32_t onOff = 0;
    int32_t help = 0;
    int32_t about = 0;
    int32_t reportSpam = 0;
    int32_t notSpam = 0;
};

// The ribbon of the mail clients 15 and 16.
class IRibbonCommands {
public:
    virtual ~IRibbonCommands() = default;
    // Creates the group, the logo drop-down with its five entries and the two reporting
    // buttons, the on/off caption following `toolbarEnabled`, and logs the nine ids. Returns
    // the ids it got (those created so far when the host failed).
    virtual RibbonIds BuildRibbonToolbar(bool toolbarEnabled) = 0;
    // The on/off entry's caption: "IDS_DISABLE_CAPTION" while enabled, else
    // "IDS_ENABLE_CAPTION".
    virtual void SetOnOffCaption(bool enabled) = 0;
    // Enables or disables the group's buttons.
    virtual void EnableButtons(bool enable) = 0;
};

// The classic toolbar band of the mail client 14.
class IClassicBand {
public:
    virtual ~IClassicBand() = default;
    // OnBuildUserInterface; (0, 0) from the user-interface build, (11111, 22222) from the timer.
    virtual void OnBuildUserInterface(uintptr_t wParam, intptr_t lParam) = 0;
    virtual bool IsBuilt() const = 0;
    virtual bool Exists() const = 0;
    virtual void Refresh() = 0;
    // Removes the band and its bitmaps, and releases the deferred band object.
    virtual void TearDown() = 0;
    virtual bool HasDeferredObject() const = 0;
    virtual void CreateDeferredObject() = 0;
};

// The spam folder operations of the mail store.
class ISpamFolder {
public:
    virtual ~ISpamFolder() = default;
    // Non-zero when the spam folder of the default account is known afterwards.
    virtual int CreateSpamMailFolder(bool force) = 0;
    virtual void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t messageId, bool all) = 0;
    virtual void PostCleanDeletedFolder() = 0;
    // Lets go of the store's objects before COM shuts down.
    virtual void ReleaseStore() = 0;
    virtual void OnFolderSelectionChanged(uint64_t folderId) = 0;
};

// The inspection of the default account.
class IAccountCheck {
public:
    virtual ~IAccountCheck() = default;
    // 1 for a web-mail or IMAP default account, else 0.
    virtual int CheckIsUnsupportedMailServer() = 0;
};

// The windows the controller opens on the user's request.
class ICommandDialogs {
public:
    virtual ~ICommandDialogs() = default;
    virtual void OpenFilteringSheet() = 0;
    virtual void OpenStatistics() = 0;
    virtual void OpenOnlineHelp() = 0;
    virtual void OpenAbout() = 0;
    // The unsupported-server notice; true when "do not show this again" was ticked.
    virtual bool ShowUnsupportedServerNotice() = 0;
    virtual void ImportContacts() = 0;
};

using Settings::ILocalisedStrings;

}  // namespace Orva::Plugin
