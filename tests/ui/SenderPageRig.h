#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "PageRig.h"
#include "lists/SenderLists.h"
#include "ui/FilteringSheetModel.h"

namespace Orva::Testing {

template <class T, class Empty>
T Next(std::deque<T>& script, Empty whenEmpty) {
    if (script.empty()) {
        return whenEmpty;
    }
    T next = script.front();
    script.pop_front();
    return next;
}

// The user at the screen: answers the boxes in turn (Cancel once the answers run out), types
// into the edit dialog (Cancel once the entries run out), and imports contacts into the files.
struct ScriptedUser final : Ui::IMessageBoxes, Ui::IEditSenderDialog, Ui::IContactImport {
    Ui::BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring& text,
                       const std::wstring& caption, uint32_t) override {
        shown.push_back(caption + L": " + text);
        return Next(answers, Ui::BoxAnswer::Cancel);
    }
    std::optional<Ui::SenderFields> Run(ZelCommon::Platform::WindowHandle, const std::wstring&,
                                        const Ui::SenderFields& initial) override {
        dialogShowed.push_back(initial);
        return Next(entries, std::optional<Ui::SenderFields>());
    }
    void RunContactImport(ZelCommon::Platform::WindowHandle) override { import(); }

    std::deque<Ui::BoxAnswer> answers;
    std::vector<std::wstring> shown;
    std::deque<std::optional<Ui::SenderFields>> entries;
    std::vector<Ui::SenderFields> dialogShowed;
    std::function<void()> import = [] {};
};

// A sheet over list files in a temporary data folder, with both sender pages.
struct SenderPageRig : PageRig {
    SenderPageRig() {
        strings.texts = {{L"IDS_CONFIRMATION_CAPTION", L"Confirm"},
                         {L"IDS_WARNING_CAPTION", L"Warning"},
                         {L"IDS_CAP_CONFIMATION", L"Apply"},
                         {L"IDS_APPROVELISTCONLICT_MSG", L"move to approved?"},
                         {L"IDS_LISTEXISTED_MSG", L"already listed"},
                         {L"IDS_LISTFULL_MSG", L"at most %d"},
                         {L"IDS_MSG_APPLYFIRST", L"save first?"},
                         {L"IDS_SPAM_NAME", L"SpamStop"},
                         {L"IDS_LIST_READONLY_NOTE", L"read-only"}};
    }

    template <class Set>
    static void WriteList(const std::wstring& path, std::vector<std::wstring> addresses) {
        Set set;
        for (const std::wstring& address : addresses) {
            set.Add(address.c_str(), {L"", address});
        }
        set.Save(path);
    }
    template <class Set>
    static std::vector<std::wstring> FileAddresses(const std::wstring& path) {
        Set set;
        set.Load(path);
        std::vector<std::wstring> addresses;
        for (const Lists::SenderEntry& entry : set.Entries()) {
            addresses.push_back(entry.address);
        }
        return addresses;
    }
    void WriteApproved(std::vector<std::wstring> addresses) {
        WriteList<Lists::CWListSet>(paths.approved, std::move(addresses));
    }
    void WriteBlocked(std::vector<std::wstring> addresses) {
        WriteList<Lists::CBListSet>(paths.blocked, std::move(addresses));
    }
    std::vector<std::wstring> ApprovedFile() const {
        return FileAddresses<Lists::CWListSet>(paths.approved);
    }
    std::vector<std::wstring> BlockedFile() const {
        return FileAddresses<Lists::CBListSet>(paths.blocked);
    }
    // Opens the sheet and shows both pages.
    void Open() {
        sheet.SetUp();
        sheet.ApprovedSenders().Load(0);
        sheet.BlockedSenders().Load(0);
    }

    std::wstring data = files.temp.Path();
    Lists::SenderListPaths paths = Lists::SenderListPathsIn(data);
    ScriptedUser user;
    Ui::CFilteringSheetModel sheet{
        services, {files.files.userFile, data, data, L""}, {user, user, user}};
};

}  // namespace Orva::Testing
