#include <windows.h>

#include "plugin/dll/AddinRig_win.h"
#include "ui/AboutIds.h"
#include "ui/UpdatesIds.h"

namespace Orva::Plugin {
namespace {

class UpdatesInAddin : public AddinWithRibbon {};

// From the About box's button: Alt+O is swallowed while OK is disabled and a change enables it;
// Update now reaches the agent; the proxy dialog warns of an empty host and puts the focus on
// it, then keeps a good one; Alt+O then keeps the schedule.
TEST_F(UpdatesInAddin, AboutBoxButton_UpdatesAndProxyDialogsAsTheUserDrivesThem) {
    ASSERT_TRUE(StartAddin()) << LogText();
    HWND about = nullptr, updates = nullptr, proxy = nullptr;
    const auto item = [](HWND dialog, int id) { return ::GetDlgItem(dialog, id); };
    bool hostFocused = false;

    const std::string stopped = RunAfterClick(
        kAboutEntry,
        {
            When(
                "about box", [&] { return (about = Testing::FindDialogHolding(IDC_ABOUT_FILE)); },
                [&] { Testing::Click(item(about, IDC_ABOUT_UPDATES)); }),
            When(
                "updates dialog, OK disabled",
                [&] {
                    updates = Testing::FindDialogHolding(IDC_UPDATES_NOW);
                    return updates && !::IsWindowEnabled(item(updates, IDOK));
                },
                [&] { Testing::PostKey(item(updates, IDC_UPDATES_NOW), 'O', true); }),
            {"Alt+O swallowed", [ticks = 0]() mutable { return ++ticks > 5; }},
            When(
                "still open", [&] { return ::IsWindow(updates) != FALSE; },
                [&] { Testing::Click(item(updates, IDC_UPDATES_SILENT)); }),
            When(
                "OK enabled", [&] { return ::IsWindowEnabled(item(updates, IDOK)) != FALSE; },
                [&] {
                    Testing::Click(item(updates, IDC_UPDATES_NOW));
                    Testing::Click(item(updates, IDC_UPDATES_PROXY));
                }),
            When(
                "proxy dialog",
                [&] { return (proxy = Testing::FindDialogHolding(IDC_PROXY_PASSWORD)); },
                [&] { Testing::Click(item(proxy, IDOK)); }),
            When(
                "warning", [] { return ::FindWindowW(L"#32770", L"warning") != nullptr; },
                [] { ::PostMessageW(::FindWindowW(L"#32770", L"warning"), WM_COMMAND, IDOK, 0); }),
            When(
                "warning closed", [] { return ::FindWindowW(L"#32770", L"warning") == nullptr; },
                [&] {
                    hostFocused = ::GetFocus() == item(proxy, IDC_PROXY_HOST);
                    ::SetDlgItemTextW(proxy, IDC_PROXY_HOST, L"proxy.example");
                    ::SetDlgItemTextW(proxy, IDC_PROXY_PORT, L"8080");
                    ::SetDlgItemTextW(proxy, IDC_PROXY_PASSWORD, L"s3cret");
                    Testing::Click(item(proxy, IDC_PROXY_ENABLE));
                    Testing::Click(item(proxy, IDOK));
                }),
            When(
                "proxy closed", [&] { return !::IsWindow(proxy); },
                [&] { Testing::PostKey(item(updates, IDC_UPDATES_SILENT), 'O', true); }),
            When(
                "updates closed", [&] { return !::IsWindow(updates); },
                [&] { Testing::Click(item(about, IDOK)); }),
        });

    EXPECT_EQ(stopped, "");
    EXPECT_TRUE(hostFocused);
    const auto setting = [this](const wchar_t* key) { return Setting(L"RuleFile-Update", key); };
    EXPECT_EQ(setting(L"UpdateUI"), L"1");
    EXPECT_EQ(setting(L"Interval"), L"180");
    EXPECT_EQ(setting(L"EnableProxy"), L"yes");
    EXPECT_EQ(setting(L"HTTPProxy"), L"proxy.example");
    EXPECT_EQ(setting(L"HTTPPort"), L"8080");
    EXPECT_EQ(setting(L"ProxyPassword").rfind(L"dpapi:", 0), 0u);
    EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
        return AgentRecord().find("posted 1030 0 0") != std::string::npos;
    })) << AgentRecord();
}

}  // namespace
}  // namespace Orva::Plugin
