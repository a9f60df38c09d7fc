#pragma once

#include <string>

#include "plugin/controller/ControllerParts.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Plugin {

// The controller's localised texts from the product's string table, opened on first use and
// closed again at shut-down. A table that cannot be opened is not looked for again until then:
// each attempt searches the disk and logs its failure, for every text the controller shows.
class CLoaderStrings final : public ILocalisedStrings {
public:
    static constexpr const wchar_t* kSection = L"ORVA_WLM";

    explicit CLoaderStrings(ZelResourceStringLoader& loader) : m_loader(loader) {}

    std::wstring Load(const std::wstring& id) override;
    void Release() override;

private:
    enum class TableState { NotTried, Open, Failed };

    ZelResourceStringLoader& m_loader;
    TableState m_state = TableState::NotTried;
};

}  // namespace Orva::Plugin
