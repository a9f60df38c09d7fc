#pragma once

#include <string>

#include "mailstore/SpamFolderStrings.h"

namespace Orva::MailStore::Fakes {

// A string table that opens or not, as the test says, and holds one text: the folder's name.
class FakeSpamFolderStrings final : public ISpamFolderStrings {
public:
    bool opens = true;
    std::wstring folderName = L"Spam Mail";

    bool Initialize(const std::wstring& section) override {
        m_open = opens && section == L"ORVA_WLM";
        return m_open;
    }
    std::wstring LoadExpanded(const std::wstring& id) override {
        return m_open && id == L"IDS_QUILLON_SPAMMAIL_FOLDERNAME" ? folderName : std::wstring();
    }
    void UnInitialize() override { m_open = false; }
    bool IsOpen() const { return m_open; }

private:
    bool m_open = false;
};

}  // namespace Orva::MailStore::Fakes
