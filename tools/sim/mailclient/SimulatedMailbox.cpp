#include "SimulatedMailbox.h"

#include "common_src/platform/WideFormat.h"

namespace Orva::Sim {
namespace {

std::wstring SubjectOf(const std::wstring& headerText) {
    constexpr std::wstring_view kSubject = L"Subject: ";
    const size_t start = headerText.find(kSubject);
    if (start == std::wstring::npos) {
        return L"(no subject)";
    }
    const size_t from = start + kSubject.size();
    return headerText.substr(from, headerText.find(L"\r\n", from) - from);
}

}  // namespace

SimulatedMailbox::SimulatedMailbox() {
    m_deletedItems = m_store.AddAccount(kAccount);
    m_store.SetDefaultAccount(kAccount);
    const auto inbox = m_store.AddFolder(kAccount, L"Inbox");
    m_store.AddFolder(kAccount, L"Sent Items");
    m_store.AddMessage(inbox, OwnMessage(L"Lunch on Friday?"));
    m_store.AddMessage(m_deletedItems, QuarantinedMessage(L"Cheap watches"));
    m_store.AddMessage(m_deletedItems, OwnMessage(L"Old newsletter"));
}

std::optional<Orva::MailStore::StoreId> SimulatedMailbox::TopFolder(
    const std::wstring& name) const {
    return m_store.SubFolderId(kAccount, name);
}

std::wstring SimulatedMailbox::QuarantinedMessage(const std::wstring& subject) {
    return L"From: offers@spam.example\r\nSubject: " + subject +
           L"\r\nX-Halvion-AntiSpamAddin-QuarantineTime: 2026/11/22 09:31:00\r\n";
}

std::wstring SimulatedMailbox::OwnMessage(const std::wstring& subject) {
    return L"From: friend@example.com\r\nSubject: " + subject + L"\r\n";
}

std::wstring SimulatedMailbox::Describe(const std::wstring& folderName,
                                        Orva::MailStore::StoreId folder) const {
    const std::vector<std::wstring> headers = m_store.Headers(folder);
    std::wstring text = ZelCommon::Text::Format(L"mailbox %s: %u messages", folderName.c_str(),
                                                static_cast<unsigned>(headers.size()));
    for (size_t index = 0; index < headers.size(); ++index) {
        text += (index == 0 ? L": " : L", ") + SubjectOf(headers[index]);
    }
    return text;
}

}  // namespace Orva::Sim
