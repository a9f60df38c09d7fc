#include "ui/FilteringSheetModel.h"

#include <array>
#include <utility>

#include "lists/SenderLists.h"

namespace Orva::Ui {
namespace {

constexpr std::array<std::wstring_view, kSheetPageCount> kHelpTopics{
    L"FunID_SPAM_EMAIL_FILTER", L"FunID_LINK_FILTER",       L"FunID_APPROVED_SENDERS",
    L"FunID_BLOCKED_SENDERS",   L"FunID_BLOCKED_LANGUAGES", L"FunID_ADVANCED_SETTINGS",
};

constexpr uint32_t kFirstKeyMessage = 0x100;  // WM_KEYDOWN
constexpr uint32_t kLastKeyMessage = 0x109;   // WM_UNICHAR
constexpr int kButtonMargin = 6;

}  // namespace

std::wstring_view HelpTopicOf(int pageIndex) {
    if (pageIndex < 0 || pageIndex >= kSheetPageCount) {
        return kHelpTopics[0];
    }
    return kHelpTopics[static_cast<std::size_t>(pageIndex)];
}

SheetShortcut AltShortcut(uint32_t message, uintptr_t key, bool altDown) {
    if (!altDown || message < kFirstKeyMessage || message > kLastKeyMessage) {
        return SheetShortcut::None;
    }
    switch (key) {
        case 'O':
        case 'o':
            return SheetShortcut::Ok;
        case 'C':
        case 'c':
            return SheetShortcut::Cancel;
        default:
            return SheetShortcut::None;
    }
}

SheetButtons PlaceSheetButtons(int clientWidth, SheetButtons current) {
    current.help.left = kButtonMargin;
    current.cancel.left = clientWidth - kButtonMargin - current.cancel.width;
    current.ok.left = current.cancel.left - kButtonMargin - current.ok.width;
    return current;
}

CFilteringSheetModel::CFilteringSheetModel(PageServices& services, SheetPaths paths,
                                           SenderPagePorts senderPorts)
    : m_paths(std::move(paths)),
      m_spamDetection(services),
      m_linkFilter(services),
      m_encodings(services, m_paths.dataFolder),
      m_advanced(services),
      m_listNotices(services.agent),
      m_editor(m_approved, m_blocked, Lists::SenderListPathsIn(m_paths.dataFolder), m_listNotices),
      m_approvedPage(Lists::SenderList::Approved, {m_approved, m_blocked, m_editor}, services,
                     senderPorts),
      m_blockedPage(Lists::SenderList::Blocked, {m_approved, m_blocked, m_editor}, services,
                    senderPorts) {}

void CFilteringSheetModel::SetUp() {
    m_editor.Load();
}

void CFilteringSheetModel::ApplyAll() {
    m_spamDetection.Apply();
    m_linkFilter.Apply();
    m_approvedPage.Apply();
    m_blockedPage.Apply();
    m_encodings.Apply();
    m_advanced.Apply();
}

}  // namespace Orva::Ui
