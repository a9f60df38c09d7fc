#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "plugin/controller/ControllerParts.h"
#include "plugin/controller/ControllerWindow.h"
#include "plugin/controller/MailClientVersion.h"
#include "plugin/host/HostObjects.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/plugin/FakeHostToolbar.h"

namespace ZelCommon::Fakes {

// The controller's own window: records "window topmost", "timer set <id> <ms>",
// "timer kill <id>" and keeps the running timers.
class FakeControllerWindow final : public Orva::Plugin::IControllerWindow, public JournalNotes {
public:
    void MakeTopMost() override;
    bool SetTimer(uintptr_t id, uint32_t milliseconds) override;
    bool KillTimer(uintptr_t id) override;

    bool HasTimer(uintptr_t id) const { return m_timers.contains(id); }

private:
    std::map<uintptr_t, uint32_t> m_timers;
};

// The host's objects: every call is recorded as "host <call>"; creations can be made to fail
// and unadvising to throw the host's error or something else.
class FakeHostObjects final : public Orva::Plugin::IHostObjects, public JournalNotes {
public:
    enum class Throw { Nothing, HostError, Other };

    bool CreateInitObject() override;
    bool AdviseInitSink() override;
    void UnadviseInitSink() override;
    void ReleaseInitObject() override;
    bool HasApiObject() const override { return m_apiObject; }
    bool CreateApiObject() override;
    bool AdviseApiSink() override;
    void UnadviseApiSink() override;
    void InitializeCom() override;
    void UninitializeCom() override;
    void StartGdiplus() override;
    void ShutdownGdiplus() override;
    Orva::Plugin::IHostToolbar& Toolbar() override { return toolbar; }

    FakeHostToolbar toolbar;

    void FailInitCreation(bool fail) { m_failInit = fail; }
    void FailApiCreation(bool fail) { m_failApi = fail; }
    void SetApiObject(bool exists) { m_apiObject = exists; }
    // What the next unadvise calls throw; the host error's text is `text`.
    void ThrowOnUnadvise(Throw what, std::string text = {}) {
        m_throw = what;
        m_throwText = std::move(text);
    }

private:
    void Record(const std::wstring& call);
    void MaybeThrow() const;

    bool m_failInit = false;
    bool m_failApi = false;
    bool m_initObject = false;
    bool m_apiObject = false;
    Throw m_throw = Throw::Nothing;
    std::string m_throwText;
};

class FakeMailClientVersion final : public Orva::Plugin::IMailClientVersion {
public:
    explicit FakeMailClientVersion(std::optional<int> version = 16) : m_version(version) {}
    std::optional<int> MajorVersion() override { return m_version; }
    void Set(std::optional<int> version) { m_version = version; }

private:
    std::optional<int> m_version;
};

// The ribbon: hands out the ids a test chose; records "ribbon build <flag>",
// "ribbon caption <caption id>" and "ribbon buttons <flag>".
class FakeRibbonCommands final : public Orva::Plugin::IRibbonCommands, public JournalNotes {
public:
    Orva::Plugin::RibbonIds BuildRibbonToolbar(bool toolbarEnabled) override;
    void SetOnOffCaption(bool enabled) override;
    void EnableButtons(bool enable) override;

    Orva::Plugin::RibbonIds ids{101, 102, 103, 104, 105, 106, 107, 108, 109};
    const std::wstring& OnOffCaption() const { return m_caption; }

private:
    std::wstring m_caption;
};

// The classic band: records "classic build <w> <l>", "classic refresh", "classic teardown",
// "classic deferred"; a build succeeds only while the test says the rebar is there.
class FakeClassicBand final : public Orva::Plugin::IClassicBand, public JournalNotes {
public:
    void OnBuildUserInterface(uintptr_t wParam, intptr_t lParam) override;
    bool IsBuilt() const override { return m_built; }
    bool Exists() const override { return m_built; }
    void Refresh() override;
    void TearDown() override;
    bool HasDeferredObject() const override { return m_deferred; }
    void CreateDeferredObject() override;

    void SetRebarPresent(bool present) { m_rebarPresent = present; }

private:
    bool m_rebarPresent = false;
    bool m_built = false;
    bool m_deferred = false;
};

// The mail store's spam-folder operations; records "store ..." lines.
class FakeSpamFolder final : public Orva::Plugin::ISpamFolder, public JournalNotes {
public:
    int CreateSpamMailFolder(bool force) override;
    void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t messageId, bool all) override;
    void PostCleanDeletedFolder() override;
    void ReleaseStore() override { Note(L"store release"); }
    void OnFolderSelectionChanged(uint64_t folderId) override;

    void SetCreateResult(int result) { m_createResult = result; }

private:
    int m_createResult = 1;
};

class FakeAccountCheck final : public Orva::Plugin::IAccountCheck, public JournalNotes {
public:
    int CheckIsUnsupportedMailServer() override {
        Note(L"account check");
        return m_unsupported ? 1 : 0;
    }
    void SetUnsupported(bool unsupported) { m_unsupported = unsupported; }

private:
    bool m_unsupported = false;
};

// The dialogs; records "dialog <name>". The unsupported-server notice answers as told.
class FakeCommandDialogs final : public Orva::Plugin::ICommandDialogs, public JournalNotes {
public:
    void OpenFilteringSheet() override { Note(L"dialog filtering"); }
    void OpenStatistics() override { Note(L"dialog statistics"); }
    void OpenOnlineHelp() override { Note(L"dialog help"); }
    void OpenAbout() override { Note(L"dialog about"); }
    bool ShowUnsupportedServerNotice() override {
        Note(L"dialog unsupported");
        return m_dontShowAgain;
    }
    void ImportContacts() override { Note(L"dialog import-contacts"); }

    void SetDontShowAgain(bool ticked) { m_dontShowAgain = ticked; }

private:
    bool m_dontShowAgain = false;
};

// Localised texts from a map; a missing id gives an empty text. Records "strings load <id>"
// and "strings release".
class FakeLocalisedStrings final : public Orva::Plugin::ILocalisedStrings, public JournalNotes {
public:
    std::wstring Load(const std::wstring& id) override;
    // The map's texts stand for expanded ones.
    std::wstring LoadShown(const std::wstring& id) override { return Load(id); }
    void Release() override { Note(L"strings release"); }

    std::map<std::wstring, std::wstring> texts;
};

}  // namespace ZelCommon::Fakes
