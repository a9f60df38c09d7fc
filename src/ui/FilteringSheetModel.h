#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lists/ListFileStatus.h"
#include "lists/SenderListEditor.h"
#include "lists/SenderListSet.h"
#include "ui/AdvancedPageModel.h"
#include "ui/AgentListNotices.h"
#include "ui/BlockEncodingPageModel.h"
#include "ui/LinkFilterPageModel.h"
#include "ui/PageServices.h"
#include "ui/SenderPageModel.h"
#include "ui/SpamDetectionPageModel.h"

namespace Orva::Ui {

// The sheet's pages in the order they are added.
enum class SheetPage {
    SpamDetection,
    LinkFilter,
    ApprovedSenders,
    BlockedSenders,
    BlockedEncodings,
    Advanced
};
inline constexpr int kSheetPageCount = 6;

// The on-line help topic of the page at `pageIndex`.
std::wstring_view HelpTopicOf(int pageIndex);

// The paths the opener hands over: the user's settings file, the folder of the list files, the
// folder of the installation settings file, and a fourth path that no page reads.
struct SheetPaths {
    std::wstring settingsFile;
    std::wstring dataFolder;
    std::wstring programFolder;
    std::wstring sparePath;
};

// Alt+O and Alt+C press OK and Cancel while the sheet is active.
enum class SheetShortcut { None, Ok, Cancel };
SheetShortcut AltShortcut(uint32_t message, uintptr_t key, bool altDown);

// A button's rectangle in the sheet's client coordinates.
struct ButtonBox {
    int left;
    int top;
    int width;
    int height;

    friend bool operator==(const ButtonBox&, const ButtonBox&) = default;
};
struct SheetButtons {
    ButtonBox help;
    ButtonBox ok;
    ButtonBox cancel;

    friend bool operator==(const SheetButtons&, const SheetButtons&) = default;
};
// Help at the left edge; OK and Cancel at the right edge, Cancel rightmost. Sizes and tops stay.
SheetButtons PlaceSheetButtons(int clientWidth, SheetButtons current);

// The filtering sheet without its windows: the models of its pages and the two sender lists
// that the approved- and blocked-sender pages share.
class CFilteringSheetModel {
public:
    CFilteringSheetModel(PageServices& services, SheetPaths paths, SenderPagePorts senderPorts);
    CFilteringSheetModel(const CFilteringSheetModel&) = delete;
    CFilteringSheetModel& operator=(const CFilteringSheetModel&) = delete;

    // Loads both sender lists from the data folder; a missing file gives an empty list.
    void SetUp();

    CSpamDetectionPageModel& SpamDetection() { return m_spamDetection; }
    CLinkFilterPageModel& LinkFilter() { return m_linkFilter; }
    CBlockEncodingPageModel& Encodings() { return m_encodings; }
    CAdvancedPageModel& Advanced() { return m_advanced; }
    CSenderPageModel& ApprovedSenders() { return m_approvedPage; }
    CSenderPageModel& BlockedSenders() { return m_blockedPage; }
    Lists::CWListSet& Approved() { return m_approved; }
    Lists::CBListSet& Blocked() { return m_blocked; }
    // What SetUp found for each list file; a list whose file was refused is never saved over it.
    Lists::ListLoad ApprovedLoad() const { return m_editor.LoadOf(Lists::SenderList::Approved); }
    Lists::ListLoad BlockedLoad() const { return m_editor.LoadOf(Lists::SenderList::Blocked); }
    const SheetPaths& Paths() const { return m_paths; }

    // The sheet's OK: each page's apply, in page order. A page that was never shown writes
    // nothing.
    void ApplyAll();

private:
    SheetPaths m_paths;
    CSpamDetectionPageModel m_spamDetection;
    CLinkFilterPageModel m_linkFilter;
    CBlockEncodingPageModel m_encodings;
    CAdvancedPageModel m_advanced;
    Lists::CWListSet m_approved;
    Lists::CBListSet m_blocked;
    CAgentListNotices m_listNotices;
    Lists::CSenderListEditor m_editor;
    CSenderPageModel m_approvedPage;
    CSenderPageModel m_blockedPage;
};

}  // namespace Orva::Ui
