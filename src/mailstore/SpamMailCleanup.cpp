#include "common_src/platform/TextCodec.h"
#include "mailstore/QuarantineMark.h"
#include "mailstore/SpamMailFolder.h"

namespace Orva::MailStore {
namespace {

constexpr const wchar_t* kDeleteAllName = L"CToolBarWnd::ProcDeleteAllSpamMsg";
constexpr const wchar_t* kCleanName = L"CToolBarWnd::PostCleanDeletedFolder";

}  // namespace

void CSpamMailFolder::DeleteMarkedMessages(IFolder& folder, std::wstring_view deletedText) {
    for (std::unique_ptr<IMessage> message = folder.FirstMessage(); message != nullptr;
         message = folder.NextMessage()) {
        // Mail the user moved into the folder by hand has no marking and stays.
        if (IsQuarantineMarked(message->HeaderText())) {
            message->Delete(kDeletePermanently);
            Log(deletedText);
        }
    }
}

void CSpamMailFolder::ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t, bool all) {
    Log(L"@@@ %s  IN", kDeleteAllName);
    if (!all) {
        Log(L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Error: This function cannot process deleting "
            L"only one mail!!");
        return;
    }
    try {
        const std::shared_ptr<IStore> store = m_ports.store.CreateStore();
        if (store == nullptr) {
            Log(L"@@@ Error: in oea spFolderMsg is NULL.");
            return;
        }
        const std::unique_ptr<IFolder> folder = store->FolderById(folderId);
        if (folder == nullptr) {
            Log(L"@@@ Error: spFolder is NULL.");
            return;
        }
        Log(L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Start deleting all spam mails inside folder...");
        DeleteMarkedMessages(*folder, L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Spam mail deleted.");
    } catch (...) {
        Log(L"@@@ Exception Catched in Function: %s", kDeleteAllName);
        Log(L"!!! the action of delete item is not complete");
    }
    Log(L"@@@ %s  OUT", kDeleteAllName);
}

void CSpamMailFolder::PostCleanDeletedFolder() {
    Log(L"@@@ %s  IN", kCleanName);
    try {
        const std::wstring setting =
            m_ports.settings.GetString(Orva::Settings::SettingId::DeleteDeleted);
        // Only "0" is off, so a hand-written "yes" keeps the purge on.
        if (ZelCommon::Text::TrimBlanks(setting) != L"0" && m_spDeletedFolder != nullptr) {
            IFolder& folder = *m_spDeletedFolder;
            if (const int32_t count = folder.MessageCount(); count > 0) {
                Log(L"@@@ [CToolBarWnd::PostCleanDeletedFolder] Total nCount=(%ld) in folder(%s)",
                    count, folder.Name());
                DeleteMarkedMessages(folder,
                                     L"@@@ [COEShadow::PostCleanDeletedFolder] Spam mail deleted.");
            }
        }
    } catch (const std::exception& error) {
        Log(L"!!! CToolBarWnd::PostCleanDeletedFolder() excpetion:[%S]", error.what());
    } catch (...) {
        Log(L"!!! CToolBarWnd::PostCleanDeletedFolder() excpetion:[%S]", "unknown");
    }
    Log(L"@@@ %s  OUT", kCleanName);
}

}  // namespace Orva::MailStore
