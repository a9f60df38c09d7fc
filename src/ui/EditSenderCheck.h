#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common_src/platform/WindowMessaging.h"
#include "lists/SenderValidation.h"
#include "settings/localisation/LocalisedStrings.h"
#include "ui/MessageBoxes.h"

namespace Orva::Ui {

// A sender's two fields as the edit dialog shows them.
struct SenderFields {
    std::wstring name;
    std::wstring address;

    friend bool operator==(const SenderFields&, const SenderFields&) = default;
};

// The field of the edit dialog that a refusal sends the focus back to.
enum class SenderField { Name, Address };

struct EditSenderCheck {
    Lists::SenderValidation validation;
    SenderField field = SenderField::Address;
};

// The edit dialog's OK, in the order the user is told: an address that is too long, an address
// that is no e-mail address, then a name that is too long. Accepted fields come back trimmed,
// the address with its runs of "*" collapsed.
EditSenderCheck CheckEditedSender(std::wstring_view name, std::wstring_view address);

// The localised message `messageId`, formatted with `number` unless it is 0, in a box captioned
// `captionId` (the confirmation caption when empty).
BoxAnswer ShowListMessage(IMessageBoxes& boxes, Settings::ILocalisedStrings& strings,
                          ZelCommon::Platform::WindowHandle owner, std::wstring_view messageId,
                          std::wstring_view captionId, int number, uint32_t style);

struct EditSenderAnswer {
    std::optional<SenderFields> accepted;
    SenderField refusedField = SenderField::Address;
};
// The dialog's OK: the checked fields, or the box telling the first refusal and the field to go
// back to.
EditSenderAnswer ConfirmEditedSender(std::wstring_view name, std::wstring_view address,
                                     IMessageBoxes& boxes, Settings::ILocalisedStrings& strings,
                                     ZelCommon::Platform::WindowHandle owner);

}  // namespace Orva::Ui
