#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace Orva::Plugin::HostContract {

// What we believe the plug-in host's type libraries say. We have no copy of them, so every
// value here is an assumption kept in this one place. At run time the event interface's IID is
// always taken from the host object (its default source interface, or else its first
// connection point), and each event's DISPID is looked up by name in the host's type
// information whenever the object offers it; the DISPIDs below serve only when it does not.

inline constexpr wchar_t kInitProgId[] = L"NktWLMailApiInit.WLMailApiInit";
inline constexpr wchar_t kApiProgId[] = L"NktWLMailApi.WLMailApi";

// The arguments an event carries, in the order the host declares them.
enum class ArgKind { Int32, UInt64 };

struct EventDecl {
    std::wstring_view name;
    DISPID dispId;
    // Events whose arguments nobody reads accept whatever the host passes.
    bool checksArguments;
    std::size_t argCount;
    std::array<ArgKind, 2> args;
};

inline constexpr EventDecl Event(std::wstring_view name, DISPID dispId) {
    return {name, dispId, false, 0, {}};
}
inline constexpr EventDecl Event(std::wstring_view name, DISPID dispId, ArgKind first) {
    return {name, dispId, true, 1, {first, first}};
}
inline constexpr EventDecl Event(std::wstring_view name, DISPID dispId, ArgKind first,
                                 ArgKind second) {
    return {name, dispId, true, 2, {first, second}};
}

// WLMailApiInit's events.
namespace InitEvent {
inline constexpr std::size_t Ready = 0;
inline constexpr std::size_t Shutdown = 1;
}  // namespace InitEvent
inline constexpr std::array kInitEvents{Event(L"OnReady", 1), Event(L"OnShutdown", 2)};

// WLMailApi's events.
namespace ApiEvent {
inline constexpr std::size_t ToolbarButtonClicked = 0;
inline constexpr std::size_t FolderSelectionChanged = 2;
}  // namespace ApiEvent
inline constexpr std::array kApiEvents{
    Event(L"OnToolbarButtonClicked", 1, ArgKind::Int32, ArgKind::Int32),
    Event(L"OnMenuItemClicked", 2),
    Event(L"OnFolderSelectionChanged", 3, ArgKind::UInt64),
    Event(L"OnMessageSelectionChanged", 4),
    Event(L"OnCurrentMessageChanged", 5),
    Event(L"OnMessageDownloadStarted", 6),
    Event(L"OnMessageDownloadFinished", 7),
    Event(L"OnNewMessageInOutbox", 8),
    Event(L"OnToolbarButtonMsgWndClicked", 9),
    Event(L"OnSendButtonMsgWndClicked", 10)};

// NktWLMailStore's mail-account manager.
inline constexpr std::array kAccountManagerEvents{Event(L"OnDefaultAccountChanged", 1)};

// A ribbon drop-down entry: either event is a click.
inline constexpr std::array kSubButtonEvents{Event(L"OnClick", 1), Event(L"OnMsgWndClick", 2)};

// The WLMailApi object's ribbon methods, called by name through its IDispatch. Assumed: ids are
// 32-bit integers; adding a drop-down entry hands back the entry's own object, whose "Id"
// property names it and whose connection point carries its clicks (kSubButtonEvents).
namespace ToolbarMethod {
inline constexpr wchar_t kCreateGroup[] = L"CreateToolbar";
inline constexpr wchar_t kAddButton[] = L"AddToolbarButton";            // (group, caption, image)
inline constexpr wchar_t kAddDropDownEntry[] = L"AddToolbarSubButton";  // (group, button, caption)
inline constexpr wchar_t kEntryId[] = L"Id";
inline constexpr wchar_t kSetTooltip[] = L"SetToolbarButtonTooltip";  // (group, button, text)
inline constexpr wchar_t kSetCaption[] = L"SetToolbarButtonCaption";  // (group, button, text)
inline constexpr wchar_t kEnableButton[] = L"EnableToolbarButton";    // (group, button, enable)
}  // namespace ToolbarMethod

// NktWLMailApiContacts, the address book. Its members are called by name, getters as a method
// and a property at once, so that a member the host declares as a property answers the same
// call. The contact manager: () -> count, () -> first contact, () -> next contact (null after
// the last). A contact: () -> text, for its name and each of its five addresses.
namespace Contacts {
inline constexpr wchar_t kManagerProgId[] = L"NktWLMailApiContacts.ContactManager";
inline constexpr wchar_t kGetContactCount[] = L"GetContactCount";
inline constexpr wchar_t kGetFirstContact[] = L"GetFirstContact";
inline constexpr wchar_t kGetNextContact[] = L"GetNextContact";
inline constexpr std::array<std::wstring_view, 3> kManagerMembers{
    kGetContactCount, kGetFirstContact, kGetNextContact};

inline constexpr wchar_t kDisplayName[] = L"DisplayName";
// In the order of ContactAddress (Contacts.h): home, work, other, default IM, other IM.
inline constexpr std::array<std::wstring_view, 5> kAddressMembers{
    L"HomeEmail", L"WorkEmail", L"OtherEmail", L"DefaultIMEmail", L"OtherIMEmail"};
}  // namespace Contacts

}  // namespace Orva::Plugin::HostContract
