#include "support/fakes/plugin/FakePluginPorts.h"

#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Fakes {

void FakeControllerWindow::MakeTopMost() {
    Note(L"window topmost");
}

bool FakeControllerWindow::SetTimer(uintptr_t id, uint32_t milliseconds) {
    Note(Text::Format(L"timer set %Iu %u", id, milliseconds));
    m_timers[id] = milliseconds;
    return true;
}

bool FakeControllerWindow::KillTimer(uintptr_t id) {
    Note(Text::Format(L"timer kill %Iu", id));
    return m_timers.erase(id) > 0;
}

void FakeHostObjects::Record(const std::wstring& call) {
    Note(L"host " + call);
}

void FakeHostObjects::MaybeThrow() const {
    switch (m_throw) {
        case Throw::HostError:
            throw Orva::Plugin::HostCallError(m_throwText);
        case Throw::Other:
            throw 42;
        case Throw::Nothing:
            break;
    }
}

bool FakeHostObjects::CreateInitObject() {
    Record(L"CreateInitObject");
    m_initObject = !m_failInit;
    return m_initObject;
}

bool FakeHostObjects::AdviseInitSink() {
    Record(L"AdviseInitSink");
    return m_initObject;
}

// As the real objects do, our side lets go of the sink before the host may refuse.
void FakeHostObjects::UnadviseInitSink() {
    Record(L"UnadviseInitSink");
    MaybeThrow();
}

void FakeHostObjects::ReleaseInitObject() {
    Record(L"ReleaseInitObject");
    m_initObject = false;
}

bool FakeHostObjects::CreateApiObject() {
    Record(L"CreateApiObject");
    m_apiObject = !m_failApi;
    return m_apiObject;
}

bool FakeHostObjects::AdviseApiSink() {
    Record(L"AdviseApiSink");
    return m_apiObject;
}

void FakeHostObjects::UnadviseApiSink() {
    Record(L"UnadviseApiSink");
    m_apiObject = false;
    MaybeThrow();
}

void FakeHostObjects::InitializeCom() {
    Record(L"InitializeCom");
}

void FakeHostObjects::UninitializeCom() {
    Record(L"UninitializeCom");
}

void FakeHostObjects::StartGdiplus() {
    Record(L"StartGdiplus");
}

void FakeHostObjects::ShutdownGdiplus() {
    Record(L"ShutdownGdiplus");
}

Orva::Plugin::RibbonIds FakeRibbonCommands::BuildRibbonToolbar(bool toolbarEnabled) {
    Note(Text::Format(L"ribbon build %d", toolbarEnabled));
    return ids;
}

void FakeRibbonCommands::SetOnOffCaption(bool enabled) {
    m_caption = enabled ? L"IDS_DISABLE_CAPTION" : L"IDS_ENABLE_CAPTION";
    Note(L"ribbon caption " + m_caption);
}

void FakeRibbonCommands::EnableButtons(bool enable) {
    Note(Text::Format(L"ribbon buttons %d", enable));
}

void FakeClassicBand::OnBuildUserInterface(uintptr_t wParam, intptr_t lParam) {
    Note(Text::Format(L"classic build %Iu %Id", wParam, lParam));
    m_built = m_rebarPresent;
}

void FakeClassicBand::Refresh() {
    Note(L"classic refresh");
}

void FakeClassicBand::TearDown() {
    Note(L"classic teardown");
    m_built = false;
    m_deferred = false;
}

void FakeClassicBand::CreateDeferredObject() {
    Note(L"classic deferred");
    m_deferred = true;
}

int FakeSpamFolder::CreateSpamMailFolder(bool force) {
    Note(Text::Format(L"store create-folder %d", force));
    return m_createResult;
}

void FakeSpamFolder::ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t messageId, bool all) {
    Note(Text::Format(L"store delete-all 0x%llX 0x%llX %d", folderId, messageId, all));
}

void FakeSpamFolder::PostCleanDeletedFolder() {
    Note(L"store clean-deleted");
}

void FakeSpamFolder::OnFolderSelectionChanged(uint64_t folderId) {
    Note(Text::Format(L"store folder-selected 0x%llX", folderId));
}

std::wstring FakeLocalisedStrings::Load(const std::wstring& id) {
    Note(L"strings load " + id);
    const auto found = texts.find(id);
    return found == texts.end() ? std::wstring() : found->second;
}

}  // namespace ZelCommon::Fakes
