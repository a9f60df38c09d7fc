#pragma once

namespace Orva::MailStore::StoreContract {

// What we assume of the plug-in host's store library, NktWLMailStore. We have no copy of its
// type library, so every ProgID and member name below is an assumption, kept in this one place
// and reached only by name (GetIDsOfNames, then Invoke). Getters are invoked as a method and a
// property at once, so a member the host declares as a property answers the same call. Ids
// travel as VT_UI8; any result that VariantChangeType turns into the wanted type is accepted.

inline constexpr wchar_t kStoreProgId[] = L"NktWLMailStore.MailStore";
inline constexpr wchar_t kAccountManagerProgId[] = L"NktWLMailStore.MailAccountManager";

// The store: (account id) -> deleted-items folder; (folder or account id) -> folder or null.
inline constexpr wchar_t kGetDeletedItemsFolder[] = L"GetDeletedItemsFolder";
inline constexpr wchar_t kGetFolder[] = L"GetFolder";

// The account manager: () -> default account or null.
inline constexpr wchar_t kGetDefaultAccount[] = L"GetDefaultAccount";

// An account and a folder: () -> id.
inline constexpr wchar_t kGetId[] = L"GetId";

// A folder.
inline constexpr wchar_t kGetName[] = L"GetName";
inline constexpr wchar_t kGetFirstSubFolder[] = L"GetFirstSubFolder";
inline constexpr wchar_t kGetNextFolder[] = L"GetNextFolder";
inline constexpr wchar_t kCreateSubFolder[] = L"CreateSubFolder";  // (name) -> new id
inline constexpr wchar_t kGetMessageCount[] = L"GetMessageCount";
inline constexpr wchar_t kGetFirstMessage[] = L"GetFirstMessage";
inline constexpr wchar_t kGetNextMessage[] = L"GetNextMessage";

// A message.
inline constexpr wchar_t kGetHeader[] = L"GetHeader";
inline constexpr wchar_t kDelete[] = L"Delete";  // (flags)

}  // namespace Orva::MailStore::StoreContract
