#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "PageRig.h"
#include "lists/SenderLists.h"
#include "ui/FilteringSheetModel.h"

namespace Orva::Testing {

// Answers the boxes in turn (Cancel once the answers run out) and keeps their texts.
class ScriptedBoxes final : public Ui::IMessageBoxes {
public:
    Ui::BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring& text,
                       const std::wstring& caption, uint32_t) override {
        shown.push_back(caption + L": " + text);
        if (answers.empty()) {
            return Ui::BoxAnswer::Cancel;
        }
        const Ui::BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::deque<Ui::BoxAnswer> answers;
    std::vector<std::wstring> shown;
};

// The user's entries in the edit dialog, one per opening; Cancel once they run out.
class ScriptedEditDialog final : public Ui::IEditSenderDialog {
public:
    std::optional<Ui::SenderFields> Run(ZelCommon::Platform::WindowHandle, const std::wstring&,
                                        const Ui::SenderFields& initial) override {
        shownFields.push_back(initial);
        if (entries.empty()) {
            return std::nullopt;
        }
        const Ui::SenderFields typed = entries.front();
        entries.pop_front();
        return typed;
    }
    std::deque<Ui::SenderFields> entries;
    std::vector<Ui::SenderFields> shownFields;
};

// The contact import as it acts on the files: what `run` does to them.
class FileContactImport final : public Ui::IContactImport {
public:
    void RunContactImport(ZelCommon::Platform::WindowHandle) override {
        ++runs;
        if (run) {
            run();
        }
    }
    std::function<void()> run;
    int runs = 0;
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

    // Writes a list file as the agent or an older version left it.
    template <class Set>
    void WriteList(const std::wstring& path, std::initializer_list<Lists::SenderEntry> entries) {
        Set set;
        for (const Lists::SenderEntry& entry : entries) {
            set.Add(entry.address.c_str(), entry);
        }
        set.Save(path);
    }
    // The addresses a list file holds, in key order.
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
    ScriptedBoxes boxes;
    ScriptedEditDialog dialog;
    FileContactImport contacts;
    Ui::CFilteringSheetModel sheet{
        services, {files.files.userFile, data, data, L""}, {boxes, dialog, contacts}};
};

}  // namespace Orva::Testing
