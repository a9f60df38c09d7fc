#pragma once

#include <string>

namespace Orva::Settings {

// Localised texts by string id, for the controller and the dialogs alike.
class ILocalisedStrings {
public:
    virtual ~ILocalisedStrings() = default;
    virtual std::wstring Load(const std::wstring& id) = 0;
    // The text as the user sees it, its placeholders ("<$PRODUCT NAME>", ...) expanded.
    virtual std::wstring LoadShown(const std::wstring& id) = 0;
    // Frees the loader's table at shut-down.
    virtual void Release() = 0;
};

}  // namespace Orva::Settings
