#pragma once

#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/WindowMessaging.h"
#include "lists/SenderLists.h"
#include "plugin/host/Contacts.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/log/DebugLog.h"
#include "ui/ImportProgress.h"
#include "ui/MessageBoxes.h"

namespace Orva::Ui {

struct ContactImportPorts {
    Plugin::IContactsLibrary& contacts;
    IImportProgress& progress;
    // The conflict question, owned by the controller window.
    IMessageBoxes& boxes;
    Settings::ILocalisedStrings& strings;
    ZelCommon::Platform::IWindowMessaging& messaging;
    // The last error of the controller window's search.
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Library::DebugLog& log;
};

struct ContactImportOutcome {
    int added = 0;
    bool cancelled = false;
    // The contacts library failed: nothing was saved.
    bool failed = false;
    // Both list files were written (at least one address was added). The blocked list's file is
    // rewritten only after the approved list's was, and once the old one is kept.
    bool saved = false;
};

// Copies the e-mail addresses of the mail client's contacts into the approved list's file. The
// run's blocked set is read from the approved list's file, as the add-in has always done: none of
// its records belongs to the blocked list, so the set starts empty, and a run that adds anything
// leaves the blocked list's file with its header alone. The previous blocked list is kept as
// "BlackList.dat.bak" before that rewrite. A run that adds nothing writes no file.
ContactImportOutcome ImportContactList(const ContactImportPorts& ports,
                                       const Lists::SenderListPaths& paths);

}  // namespace Orva::Ui
