#pragma once

#include <string>
#include <utility>

#include "common_src/ZelCommon/ProfileApi.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Settings {

// The add-in's localised texts from the product's string table, opened on first use and
// closed again at shut-down. A table that cannot be opened is not looked for again until then:
// each attempt searches the disk and logs its failure, for every text the controller shows.
class CLoaderStrings final : public ILocalisedStrings {
public:
    static constexpr const wchar_t* kSection = L"ORVA_WLM";

    // The installation file and the profile functions name the branding that placeholders
    // become.
    CLoaderStrings(ZelResourceStringLoader& loader, std::wstring installFile,
                   ZelCommon::Storage::IProfileApi& profile)
        : m_loader(loader), m_installFile(std::move(installFile)), m_profile(profile) {}

    std::wstring Load(const std::wstring& id) override;
    std::wstring LoadShown(const std::wstring& id) override;
    void Release() override;

private:
    enum class TableState { NotTried, Open, Failed };

    ZelResourceStringLoader& m_loader;
    std::wstring m_installFile;
    ZelCommon::Storage::IProfileApi& m_profile;
    TableState m_state = TableState::NotTried;
};

}  // namespace Orva::Settings
