#include "plugin/controller/PendingParts.h"

namespace Orva::Plugin {

void CPendingParts::Missing(const wchar_t* operation) {
    if (m_reported.insert(operation).second) {
        m_log.LogText(L"### %s is not part of this build yet", operation);
    }
}

void CPendingParts::OnBuildUserInterface(uintptr_t, intptr_t) {
    Missing(L"The classic toolbar band");
}

void CPendingParts::CreateDeferredObject() {
    Missing(L"The classic toolbar band");
}

void CPendingParts::OpenFilteringSheet() {
    Missing(L"The filtering sheet");
}

void CPendingParts::OpenStatistics() {
    Missing(L"The statistics dialog");
}

void CPendingParts::OpenOnlineHelp() {
    Missing(L"The on-line help");
}

void CPendingParts::OpenAbout() {
    Missing(L"The about box");
}

bool CPendingParts::ShowUnsupportedServerNotice() {
    Missing(L"The unsupported-server notice");
    return false;
}

void CPendingParts::ImportContacts() {
    Missing(L"The contact import");
}

}  // namespace Orva::Plugin
