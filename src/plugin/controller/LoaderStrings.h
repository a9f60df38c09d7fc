#pragma once

#include <string>

#include "plugin/controller/ControllerParts.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Plugin {

// The controller's localised texts from the product's string table, opened on first use and
// closed again at shut-down.
class CLoaderStrings final : public ILocalisedStrings {
public:
    static constexpr const wchar_t* kSection = L"ORVA_WLM";

    explicit CLoaderStrings(ZelResourceStringLoader& loader) : m_loader(loader) {}

    std::wstring Load(const std::wstring& id) override;
    void Release() override;

private:
    ZelResourceStringLoader& m_loader;
    bool m_open = false;
};

}  // namespace Orva::Plugin
