#include "ui/ContactImportRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "lists/SenderListSet.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "settings/probes/ProbeLog.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "support/fakes/plugin/FakeContacts.h"
#include "ui/SenderPageRig.h"

namespace Orva::Ui {
namespace {

using Testing::ReadFileBytes;
using Testing::WriteFileBytes;
using ZelCommon::Fakes::FakeContact;

constexpr char kFileHead[] = "\xEF\xBB\xBF; Written by ORVA v3.5 (c) 2005 Halvion\n";

std::string ListFile(const char* tag, const std::vector<std::string>& addresses) {
    std::string bytes = kFileHead;
    for (const std::string& address : addresses) {
        bytes += std::string("<") + tag + "><SN_ATTR>n<\\SN_ATTR><SA_ATTR>" + address +
                 "<\\SA_ATTR><\\" + tag + ">\n";
    }
    return bytes;
}

class ScriptedProgress final : public IImportProgress {
public:
    void Open() override { open = true; }
    void SetRange(int) override {}
    void ShowAddress(const std::wstring&) override {}
    void Step() override { ++steps; }
    bool Cancelled() override { return cancel; }
    void Close() override { open = false; }

    bool open = false;
    bool cancel = false;
    int steps = 0;
};

struct ImportRig {
    ImportRig() {
        process.SetLastError(1400);
        approvedBefore = ListFile("WL_REC", {"kept@example.com"});
        blockedBefore = ListFile("BL_REC", {"spam@example.com", "*@junk.example"});
        WriteFileBytes(paths.approved, approvedBefore);
        WriteFileBytes(paths.blocked, blockedBefore);
    }

    ContactImportOutcome Run() {
        return ImportContactList(
            {contacts, progress, boxes, strings, messaging, process, log.Log()}, paths);
    }
    std::vector<Lists::SenderEntry> Approved() const {
        Lists::CWListSet set;
        set.Load(paths.approved);
        return set.Entries();
    }
    bool Logged(const std::wstring& line) const {
        const auto lines = log.Lines();
        return std::find(lines.begin(), lines.end(), line + L"\n") != lines.end();
    }

    Testing::TempFolder folder;
    Lists::SenderListPaths paths = Lists::SenderListPathsIn(folder.Path());
    std::string approvedBefore;
    std::string blockedBefore;
    ZelCommon::Fakes::FakeContacts contacts;
    ScriptedProgress progress;
    Testing::ScriptedUser boxes;
    Testing::MapStrings strings;
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Platform::WindowHandle controller =
        messaging.AddWindow(L"", std::wstring(Plugin::kControllerClassName));
    ZelCommon::Fakes::FakeProcessContext process;
    Testing::ProbeLog log;
};

FakeContact Person(std::wstring name, std::wstring home, std::wstring work = L"",
                   std::wstring other = L"", std::wstring defaultIm = L"",
                   std::wstring otherIm = L"") {
    return {std::move(name),
            {std::move(home), std::move(work), std::move(other), std::move(defaultIm),
             std::move(otherIm)}};
}

TEST(ImportContactList, OneContact_LogsEveryStepInOrder) {
    ImportRig rig;
    rig.contacts.contacts = {Person(L"Ann", L"ann@example.com", L"", L"", L"", L"im@example.com")};
    rig.Run();
    const std::vector<std::wstring> expected = {
        L"@@@ CToolBarWnd::ImportContactList  IN\n",
        L"@@@ Succeed in calling NktWLMailApiContacts::IContactManager::create()\n",
        L"@@@ NktWLMailApiContacts::IContactManager::GetFirstContact()\n",
        L"@@@ Ready to import [1] contact item(s)\n",
        L"CToolBarWnd::ImportContactListThread Display name is [Ann]\n",
        L"\tHomeEmail:ann@example.com\n",
        L"\tWorkEmail:\n",
        L"\tOtherEmail:\n",
        L"\tDefaultIMEmail:\n",
        L"\tOtherIMEmail:im@example.com\n",
        L"@@@ Imported contact item: ann@example.com, Ann\n",
        L"@@@ Imported contact item: im@example.com, Ann\n",
        L"@@@ CToolBarWnd::ImportContactList() the blocked list is kept as [" + rig.paths.blocked +
            L".bak]\n",
        L"@@@ CToolBarWnd::ImportContactList  OUT\n"};
    std::vector<std::wstring> lines = rig.log.Lines();
    // Loading and saving the sets logs their own lines.
    std::erase_if(lines, [](const std::wstring& line) { return line.starts_with(L"CBListSet"); });
    EXPECT_EQ(lines, expected);
    EXPECT_FALSE(rig.progress.open);
}

struct AddressCase {
    const char* scenario;
    std::vector<FakeContact> contacts;
    std::vector<Lists::SenderEntry> added;
};

class ImportContactListAddresses : public testing::TestWithParam<AddressCase> {};

TEST_P(ImportContactListAddresses, AddsOnlyAcceptableAddressesOnce) {
    ImportRig rig;
    rig.contacts.contacts = GetParam().contacts;
    const ContactImportOutcome outcome = rig.Run();
    std::vector<Lists::SenderEntry> expected = GetParam().added;
    expected.push_back({L"n", L"kept@example.com"});
    std::vector<Lists::SenderEntry> approved = rig.Approved();
    std::ranges::sort(expected, {}, &Lists::SenderEntry::address);
    std::ranges::sort(approved, {}, &Lists::SenderEntry::address);
    EXPECT_EQ(approved, expected);
    EXPECT_EQ(outcome.added, static_cast<int>(GetParam().added.size()));
}

const std::wstring kLongName(257, L'n');
const std::wstring kLongAddress = std::wstring(250, L'a') + L"@example.com";

INSTANTIATE_TEST_SUITE_P(
    Cases, ImportContactListAddresses,
    testing::Values(AddressCase{"SameAddressInTwoFields",
                                {Person(L"Bo", L"bo@example.com", L"BO@example.com")},
                                {{L"Bo", L"bo@example.com"}}},
                    AddressCase{
                        "EmptyAndInvalid",
                        {Person(L"", L"", L"not an address", L"@example.com", L"x@", L"a@b")},
                        {}},
                    AddressCase{"OverLongAddress", {Person(L"Al", kLongAddress)}, {}},
                    AddressCase{"NonBmpAddress", {Person(L"Em", L"\U0001F600@example.com")}, {}},
                    AddressCase{"OverLongNameKeepsAddress",
                                {Person(kLongName, L"long@example.com")},
                                {{L"", L"long@example.com"}}},
                    AddressCase{"NonBmpNameKept",
                                {Person(L"Smile \U0001F600", L"smile@example.com")},
                                {{L"Smile \U0001F600", L"smile@example.com"}}}),
    [](const auto& test) { return std::string(test.param.scenario); });

// What the list files hold after a run: the blocked list is rewritten only once it is kept.
struct FilesCase {
    const char* scenario;
    std::vector<FakeContact> contacts;
    std::optional<size_t> failAt = std::nullopt;
    bool failCreate = false;
    bool backupRefused = false;
    bool approvedForeign = false;  // not a list file: the run never writes over it
    bool approvedWritten = false;
    bool blockedEmptied = false;
};

class ImportContactListFiles : public testing::TestWithParam<FilesCase> {};

TEST_P(ImportContactListFiles, RewritesTheBlockedListOnlyAfterKeepingIt) {
    const FilesCase& test = GetParam();
    ImportRig rig;
    const std::wstring backup = rig.paths.blocked + L".bak";
    if (test.backupRefused) {
        std::filesystem::create_directory(std::filesystem::path(backup));
    }
    if (test.approvedForeign) {
        rig.approvedBefore = "[General]\n";
        WriteFileBytes(rig.paths.approved, rig.approvedBefore);
    }
    rig.contacts.contacts = test.contacts;
    rig.contacts.failAt = test.failAt;
    rig.contacts.failCreate = test.failCreate;
    rig.contacts.failure = "Unspecified error";
    const ContactImportOutcome outcome = rig.Run();
    EXPECT_EQ(ReadFileBytes(rig.paths.approved) != rig.approvedBefore, test.approvedWritten);
    EXPECT_EQ(ReadFileBytes(rig.paths.blocked),
              test.blockedEmptied ? kFileHead : rig.blockedBefore);
    if (!test.backupRefused) {
        EXPECT_EQ(ReadFileBytes(backup), test.blockedEmptied ? rig.blockedBefore : "<missing>");
    }
    const bool failed = test.failAt || test.failCreate;
    EXPECT_EQ(outcome.failed, failed);
    EXPECT_EQ(rig.Logged(L"!!! CToolBarWnd::ImportContactList() Contact Manager "
                         L"excpetion:[Unspecified error]"),
              failed);
    EXPECT_FALSE(rig.progress.open);
}

std::vector<FakeContact> NewContacts(int count) {
    std::vector<FakeContact> contacts;
    for (int i = 0; i < count; ++i) {
        contacts.push_back(Person(L"P", L"p" + std::to_wstring(i) + L"@example.com"));
    }
    return contacts;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ImportContactListFiles,
    testing::Values(
        FilesCase{.scenario = "AddsNothing",
                  .contacts = {Person(L"K", L"kept@example.com"), Person(L"X", L"invalid")}},
        FilesCase{.scenario = "AddsOne",
                  .contacts = {Person(L"N", L"new@example.com")},
                  .approvedWritten = true,
                  .blockedEmptied = true},
        FilesCase{.scenario = "BackupRefused",
                  .contacts = {Person(L"N", L"new@example.com")},
                  .backupRefused = true,
                  .approvedWritten = true},
        FilesCase{.scenario = "ManagerNotCreated", .contacts = NewContacts(5), .failCreate = true},
        FilesCase{.scenario = "FailsAtFirst", .contacts = NewContacts(5), .failAt = 0},
        FilesCase{.scenario = "FailsInTheMiddle", .contacts = NewContacts(5), .failAt = 2},
        FilesCase{.scenario = "FailsAtLast", .contacts = NewContacts(5), .failAt = 4}),
    [](const auto& test) { return std::string(test.param.scenario); });

TEST(ImportContactList, CancelledDuringThirdContact_SavesTheFirstThree) {
    ImportRig rig;
    rig.contacts.contacts = NewContacts(6);
    rig.contacts.onRead = [&](size_t position) { rig.progress.cancel = position == 2; };
    const ContactImportOutcome outcome = rig.Run();
    EXPECT_TRUE(outcome.cancelled);
    EXPECT_EQ(outcome.added, 3);
    EXPECT_EQ(rig.Approved().size(), 4u);
    EXPECT_EQ(ReadFileBytes(rig.paths.blocked), kFileHead);
}

TEST(ImportContactList, TwentyThousandContactsNearTheLimit_FillsTheListAndFinishes) {
    ImportRig rig;
    std::vector<std::string> listed;
    for (int i = 0; i < 7990; ++i) {
        listed.push_back("old" + std::to_string(i) + "@example.com");
    }
    WriteFileBytes(rig.paths.approved, ListFile("WL_REC", listed));
    rig.contacts.contacts = NewContacts(20000);
    const ContactImportOutcome outcome = rig.Run();
    EXPECT_EQ(outcome.added, 10);
    EXPECT_FALSE(outcome.cancelled);
    EXPECT_EQ(rig.progress.steps, 20000);
    EXPECT_EQ(rig.Approved().size(), 8000u);
}

// The run's blocked set is read from the approved list's file: only a blocked record in that
// file puts an address there.
struct ConflictCase {
    const char* scenario;
    bool controllerExists;
    BoxAnswer answer;
    size_t questions;
    int added;
};

class ImportContactListConflict : public testing::TestWithParam<ConflictCase> {};

TEST_P(ImportContactListConflict, AsksOnlyOverTheControllerWindow) {
    ImportRig rig;
    WriteFileBytes(
        rig.paths.approved,
        rig.approvedBefore + ListFile("BL_REC", {"x@example.com"}).substr(sizeof(kFileHead) - 1));
    if (!GetParam().controllerExists) {
        rig.messaging.RemoveWindow(rig.controller);
    }
    rig.boxes.answers = {GetParam().answer};
    rig.contacts.contacts = {Person(L"X", L"x@example.com")};
    EXPECT_EQ(rig.Run().added, GetParam().added);
    EXPECT_EQ(rig.boxes.shown.size(), GetParam().questions);
    EXPECT_EQ(
        rig.Logged(L"CToolBarWnd::ImportContactList() Get Agent handle failed, error: [1400]"),
        !GetParam().controllerExists);
}

INSTANTIATE_TEST_SUITE_P(Cases, ImportContactListConflict,
                         testing::Values(ConflictCase{"Yes", true, BoxAnswer::Yes, 1, 1},
                                         ConflictCase{"No", true, BoxAnswer::No, 1, 0},
                                         ConflictCase{"NoControllerWindow", false, BoxAnswer::No, 0,
                                                      1}),
                         [](const auto& test) { return std::string(test.param.scenario); });

}  // namespace
}  // namespace Orva::Ui
