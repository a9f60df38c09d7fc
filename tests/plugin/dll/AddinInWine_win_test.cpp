#include "plugin/dll/AddinRig_win.h"

namespace Orva::Plugin {
namespace {

TEST_F(AddinInWine, FirstCall_StartsTheAgentFromTheAddinFolderAndTheControllerOnce) {
    ASSERT_TRUE(addin) << ::GetLastError();
    EXPECT_EQ(Controller(), nullptr);

    EXPECT_EQ(InitializePlugin(), TRUE);
    EXPECT_EQ(InitializePlugin(), TRUE);

    const HWND controller = Controller();
    ASSERT_NE(controller, nullptr);
    EXPECT_EQ(::GetWindowThreadProcessId(controller, nullptr), ::GetCurrentThreadId());
    const HWND agent = Testing::WaitForWindowTitled(kAgentTitle);
    ASSERT_NE(agent, nullptr);
    EXPECT_EQ(ZelCommon::Path::FolderOf(ImagePathOfWindowsProcess(agent)),
              Testing::ProgramFolder());
    EXPECT_EQ(::SendMessageW(controller, ControllerMessage::AgentReady, 0, 0), 0);
    EXPECT_TRUE(LogShows("WLM Shadow is OK now!"));

    ShutDownController();
    EXPECT_FALSE(::IsWindow(controller));
    EXPECT_TRUE(LogShows("CToolBarWnd::OnClose() wait for on shutdown success"));

    // Classes are kept by module handle: the value is enough to ask after the unload.
    const HMODULE loadedAt = addin.get();
    addin.reset();
    WNDCLASSW registered{};
    EXPECT_FALSE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));
}

TEST_F(AddinInWine, UnloadWithoutTheHostsShutdown_LeavesNoWindowBehind) {
    ASSERT_TRUE(addin) << ::GetLastError();
    ASSERT_EQ(InitializePlugin(), TRUE);
    ASSERT_NE(Controller(), nullptr);
    // An agent still starting when the test ends would outlive its clean-up.
    ASSERT_NE(Testing::WaitForWindowTitled(kAgentTitle), nullptr);
    const HMODULE loadedAt = addin.get();
    WNDCLASSW registered{};
    ASSERT_TRUE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));

    addin.reset();

    EXPECT_EQ(Controller(), nullptr);
    EXPECT_FALSE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));
}

// The host's events, fired through the host's own objects, drive the loaded add-in from the
// ready event to the shut-down, with the real agent at the other end.
TEST_F(AddinInWine, HostEvents_RunTheAddinFromReadyToShutdown) {
    ASSERT_TRUE(addin) << ::GetLastError();
    ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    {
        RegisteredHostClass<Testing::FakeHostObject> init(L"NktWLMailApiInit.WLMailApiInit",
                                                          kInitClass);
        RegisteredHostClass<Testing::FakeRibbonHost> api(L"NktWLMailApi.WLMailApi", kApiClass);
        Testing::FakeHostObject& apiEvents = api.object.events;
        const ULONG apiReferencesBeforeTheAddin = api.object.object->References();

        ASSERT_EQ(InitializePlugin(), TRUE);
        ASSERT_NE(init.object.sink, nullptr) << "the init sink was not advised";
        ASSERT_NE(Testing::WaitForWindowTitled(kAgentTitle), nullptr);

        EXPECT_EQ(init.object.Fire(1, {}), S_OK);  // ready
        ASSERT_NE(apiEvents.sink, nullptr) << "the API sink was not advised";
        EXPECT_TRUE(LogShows("@@@ Creating NktWLMailApi::WLMailApi !"));
        // The ribbon: the group, the logo with five entries, the two reporting buttons.
        EXPECT_TRUE(LogShows("dump button ID: 500, 501, 503, 504, 505, 506, 507, 508, 510"))
            << LogText();
        ASSERT_EQ(api.object.entries.size(), 5u);
        EXPECT_EQ(api.object.entries[3]->Fire(1, {}), S_OK);  // help
        EXPECT_TRUE(LogShows("@@@ Error : Can't retrieve on-line help URL from registry."));

        EXPECT_EQ(apiEvents.Fire(3, {Testing::Int64Arg(0x100000002)}), S_OK);
        EXPECT_TRUE(
            LogShows("@@@ CWLMAApiEventSink::OnFolderSelectionChanged folderId=[0x100000002]"));

        EXPECT_EQ(init.object.Fire(2, {}), S_OK);  // shut-down
        EXPECT_TRUE(Testing::PumpMessagesUntil([&] { return Controller() == nullptr; }));
        EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
            return Testing::ReadFileBytes(record).find("sent 16 0 0") != std::string::npos;
        })) << Testing::ReadFileBytes(record);
        EXPECT_TRUE(LogShows("CToolBarWnd::OnClose() wait for on shutdown success"));

        EXPECT_EQ(init.object.calls, (std::vector<std::wstring>{L"advise", L"unadvise 42"}));
        EXPECT_EQ(apiEvents.calls, (std::vector<std::wstring>{L"advise", L"unadvise 42"}));
        for (const auto& entry : api.object.entries) {
            EXPECT_EQ(entry->calls, (std::vector<std::wstring>{L"advise", L"unadvise 42"}));
        }
        addin.reset();
        EXPECT_EQ(init.object.references, 0u);
        EXPECT_EQ(api.object.object->References(), apiReferencesBeforeTheAddin);
        EXPECT_EQ(apiEvents.references, 0u);
    }
    ::CoUninitialize();
}

// Unloaded while the mail client still runs: the host must not keep sinks whose code is gone.
TEST_F(AddinInWine, UnloadBeforeTheHostsShutdown_UnadvisesAndReleasesTheHostsObjects) {
    ASSERT_TRUE(addin) << ::GetLastError();
    ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    {
        RegisteredHostClass<Testing::FakeHostObject> init(L"NktWLMailApiInit.WLMailApiInit",
                                                          kInitClass);
        RegisteredHostClass<Testing::FakeHostObject> api(L"NktWLMailApi.WLMailApi", kApiClass);
        ASSERT_EQ(InitializePlugin(), TRUE);
        ASSERT_NE(Testing::WaitForWindowTitled(kAgentTitle), nullptr);
        EXPECT_EQ(init.object.Fire(1, {}), S_OK);  // ready
        ASSERT_NE(api.object.sink, nullptr) << "the API sink was not advised";

        addin.reset();

        EXPECT_EQ(init.object.sink, nullptr);
        EXPECT_EQ(api.object.sink, nullptr);
        EXPECT_EQ(init.object.references, 0u);
        EXPECT_EQ(api.object.references, 0u);
    }
    ::CoUninitialize();
}

}  // namespace
constexpr CLSID kStoreClass = {
    0x3f0b5a63, 0x2c1e, 0x4d7a, {0x8e, 0x21, 0x5b, 0x6c, 0x11, 0x02, 0x9a, 0x43}};
constexpr CLSID kAccountManagerClass = {
    0x3f0b5a64, 0x2c1e, 0x4d7a, {0x8e, 0x21, 0x5b, 0x6c, 0x11, 0x02, 0x9a, 0x44}};

std::vector<uint8_t> DeleteAllRecord(uint64_t folder) {
    std::vector<uint8_t> record(17, 0);
    for (size_t byte = 0; byte < 8; ++byte) {
        record[byte] = static_cast<uint8_t>(folder >> (8 * byte));
    }
    record[8] = 0x2A;
    record[16] = 1;
    return record;
}

// The spam folder on the host's store, reached by name through the store library registered
// under its ProgIDs: made when the ribbon is built, emptied of quarantined mail when the agent's
// process asks, looked for again when the default account changes, and the deleted items purged
// at the shut-down, the user's own mail kept.
TEST_F(AddinInWine, MailStore_SpamFolderMadeEmptiedAndPurged) {
    ASSERT_TRUE(addin) << ::GetLastError();
    ASSERT_TRUE(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    const std::wstring quarantined =
        L"Subject: won\r\nX-Halvion-AntiSpamAddin-QuarantineTime: 2026/11/22\r\n";
    const std::wstring own = L"Subject: photos\r\nX-Halvion-Scanned: yes\r\n";
    const std::wstring userFile = (LogFolder().parent_path() / L"ORVA_WLM.ini").wstring();
    std::filesystem::create_directories(LogFolder().parent_path());
    ::WritePrivateProfileStringW(L"General", L"DeleteDeleted", L"1", userFile.c_str());
    {
        constexpr MailStore::StoreId kAccount = 0x100000000;
        MailStore::Fakes::FakeMailStore store;
        const MailStore::StoreId deleted = store.AddAccount(kAccount);
        store.SetDefaultAccount(kAccount);
        store.AddFolder(kAccount, L"Inbox");
        store.AddMessage(deleted, quarantined);
        store.AddMessage(deleted, own);
        const auto storeObject = MailStore::Fakes::StoreObjectOver(store);
        Testing::FakeHostObject managerEvents;
        const auto managerObject = MailStore::Fakes::AccountManagerObjectOver(
            store, static_cast<IConnectionPointContainer*>(&managerEvents));
        RegisteredHostClass<Testing::FakeHostObject> init(L"NktWLMailApiInit.WLMailApiInit",
                                                          kInitClass);
        RegisteredHostClass<Testing::FakeRibbonHost> api(L"NktWLMailApi.WLMailApi", kApiClass);
        RegisteredObject storeClass(L"NktWLMailStore.MailStore", kStoreClass, *storeObject.Get());
        RegisteredObject managerClass(L"NktWLMailStore.MailAccountManager", kAccountManagerClass,
                                      *managerObject.Get());

        ASSERT_EQ(InitializePlugin(), TRUE);
        const HWND agent = Testing::WaitForWindowTitled(kAgentTitle);
        ASSERT_NE(agent, nullptr);
        EXPECT_EQ(init.object.Fire(1, {}), S_OK);  // ready
        // The re-query posted by the build tells the agent while it still runs.
        EXPECT_TRUE(LogShows("@@@ CToolBarWnd::OnReQueryDefaultAccount  OUT"));
        const std::optional<MailStore::StoreId> spam = store.SubFolderId(kAccount, L"Spam Mail");
        ASSERT_TRUE(spam) << LogText();

        store.AddMessage(*spam, quarantined);
        store.AddMessage(*spam, own);
        Orva::Sim::AgentCommand copy;
        copy.delivery = Orva::Sim::Delivery::CopyData;
        copy.copyDataId = 1078;
        copy.payload = DeleteAllRecord(*spam);
        EXPECT_EQ(Testing::SendAgentCommand(agent, copy), 1);
        EXPECT_EQ(store.Headers(*spam), std::vector<std::wstring>{own}) << LogText();

        // The user makes another account the default: the add-in looks for its folder again.
        ASSERT_NE(managerEvents.sink, nullptr) << "the account manager's sink was not advised";
        EXPECT_EQ(managerEvents.Fire(1, {}), S_OK);
        EXPECT_TRUE(LogShows("get the folder name in create spam folder = Spam Mail"));

        EXPECT_EQ(init.object.Fire(2, {}), S_OK);  // shut-down
        EXPECT_TRUE(Testing::PumpMessagesUntil([&] { return Controller() == nullptr; }));
        EXPECT_EQ(store.Headers(deleted), std::vector<std::wstring>{own}) << LogText();
        // The manager's sink goes with the store's objects, before COM does.
        EXPECT_EQ(managerEvents.calls, (std::vector<std::wstring>{L"advise", L"unadvise 42"}));
        addin.reset();
    }
    ::DeleteFileW(userFile.c_str());
    ::CoUninitialize();
}

}  // namespace Orva::Plugin
