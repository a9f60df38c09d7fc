#pragma once

#include <string>
#include <utility>

#include "common_src/ZelCommon/ProfileApi.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::MailStore {

// The string table the spam folder's name comes from.
class ISpamFolderStrings {
public:
    virtual ~ISpamFolderStrings() = default;
    // Opens the table's `section`; false when no table could be opened.
    virtual bool Initialize(const std::wstring& section) = 0;
    // The text of `id` with its placeholders expanded; empty when the table lacks it.
    virtual std::wstring LoadExpanded(const std::wstring& id) = 0;
    virtual void UnInitialize() = 0;
};

// The product's string table through a loader of the spam folder's own, so that closing it
// never closes a table someone else is reading; placeholders take the installation file's
// branding first.
class CLoaderSpamFolderStrings final : public ISpamFolderStrings {
public:
    CLoaderSpamFolderStrings(ZelResourceStringLoader& loader,
                             ZelCommon::Storage::IProfileApi& profile, std::wstring installFile)
        : m_loader(loader), m_profile(profile), m_installFile(std::move(installFile)) {}

    bool Initialize(const std::wstring& section) override;
    std::wstring LoadExpanded(const std::wstring& id) override;
    void UnInitialize() override;

private:
    ZelResourceStringLoader& m_loader;
    ZelCommon::Storage::IProfileApi& m_profile;
    std::wstring m_installFile;
};

}  // namespace Orva::MailStore
