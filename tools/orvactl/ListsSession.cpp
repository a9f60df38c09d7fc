#include "ListsSession.h"

#include <utility>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::Orvactl {
namespace {

using Lists::SenderList;

Lists::SenderListPaths PathsFor(const std::wstring& path, SenderList list) {
    const std::wstring other = ZelCommon::Path::FolderOf(path) + FileNameOf(OtherList(list));
    return list == SenderList::Approved ? Lists::SenderListPaths{path, other}
                                        : Lists::SenderListPaths{other, path};
}

std::optional<std::wstring> ProblemOf(Lists::ListLoad load, const std::wstring& path,
                                      bool mayBeMissing) {
    switch (load) {
        case Lists::ListLoad::Loaded:
            return std::nullopt;
        case Lists::ListLoad::Absent:
            if (mayBeMissing) {
                return std::nullopt;
            }
            return path + L": cannot be read";
        case Lists::ListLoad::Unreadable:
            return path + L": cannot be read";
        case Lists::ListLoad::RejectedHeader:
            break;
    }
    return path + L": not a sender list file (its first line is not a list header)";
}

}  // namespace

std::wstring FileNameOf(SenderList list) {
    return std::wstring(list == SenderList::Approved ? Lists::ApprovedList::kFileName
                                                     : Lists::BlockedList::kFileName);
}

SenderList OtherList(SenderList list) {
    return list == SenderList::Approved ? SenderList::Blocked : SenderList::Approved;
}

std::optional<SenderList> ListNamedBy(const std::wstring& path) {
    const std::wstring name = ZelCommon::Text::ToLower(ZelCommon::Path::FileNameOf(path));
    for (const SenderList list : {SenderList::Approved, SenderList::Blocked}) {
        if (name == ZelCommon::Text::ToLower(FileNameOf(list))) {
            return list;
        }
    }
    return std::nullopt;
}

ListsSession::ListsSession(const std::wstring& path, SenderList list,
                           ZelCommon::Platform::IWindowMessaging& messaging)
    : m_list(list),
      m_notifier(messaging),
      m_editor(m_approved, m_blocked, PathsFor(path, list), m_notifier),
      m_path(path),
      m_otherPath(ZelCommon::Path::FolderOf(path) + FileNameOf(OtherList(list))) {
    m_editor.Load();
}

std::vector<Lists::SenderEntry> ListsSession::Entries() const {
    return m_list == SenderList::Approved ? m_approved.Entries() : m_blocked.Entries();
}

std::optional<std::wstring> ListsSession::LoadProblem(bool mayBeMissing, bool both) const {
    if (auto problem = ProblemOf(m_editor.LoadOf(m_list), m_path, mayBeMissing)) {
        return problem;
    }
    if (!both) {
        return std::nullopt;
    }
    return ProblemOf(m_editor.LoadOf(OtherList(m_list)), m_otherPath, true);
}

std::optional<std::wstring> ListsSession::Save() {
    const Lists::SaveOutcome saved = m_editor.Save();
    const bool approvedIsOurs = m_list == SenderList::Approved;
    for (const auto& [save, path] :
         {std::pair(saved.approved, approvedIsOurs ? m_path : m_otherPath),
          std::pair(saved.blocked, approvedIsOurs ? m_otherPath : m_path)}) {
        if (save == Lists::ListSave::Unwritable) {
            return path + L": cannot be written";
        }
        if (save == Lists::ListSave::KeptRefusedFile) {
            return path + L": not written, as it is not a sender list file";
        }
    }
    return std::nullopt;
}

}  // namespace Orva::Orvactl
