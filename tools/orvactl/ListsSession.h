#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common_src/platform/WindowMessaging.h"
#include "lists/SenderListEditor.h"
#include "plugin/agent/AgentListNotifier.h"

namespace Orva::Orvactl {

// The file name of a list: WhiteList.dat for the approved list, BlackList.dat for the blocked.
std::wstring FileNameOf(Lists::SenderList list);
Lists::SenderList OtherList(Lists::SenderList list);
// The list that a file name names, whatever its case; nothing for any other name.
std::optional<Lists::SenderList> ListNamedBy(const std::wstring& path);

// The list file a command names, the other list's file beside it, both loaded, and the editor
// over them, which tells the agent when it writes.
class ListsSession {
public:
    ListsSession(const std::wstring& path, Lists::SenderList list,
                 ZelCommon::Platform::IWindowMessaging& messaging);

    Lists::CSenderListEditor& Editor() { return m_editor; }
    Lists::SenderList List() const { return m_list; }
    const std::wstring& Path() const { return m_path; }
    std::vector<Lists::SenderEntry> Entries() const;

    // Why the command's list, and the other list when `both`, cannot serve. A file that is not
    // a sender list is refused rather than read as empty, so that nothing overwrites it.
    std::optional<std::wstring> LoadProblem(bool mayBeMissing, bool both) const;
    // Saves what changed; why a file was not written, if one was not.
    std::optional<std::wstring> Save();

private:
    Lists::CWListSet m_approved;
    Lists::CBListSet m_blocked;
    Lists::SenderList m_list;
    Plugin::CAgentListNotifier m_notifier;
    Lists::CSenderListEditor m_editor;
    std::wstring m_path;
    std::wstring m_otherPath;
};

}  // namespace Orva::Orvactl
