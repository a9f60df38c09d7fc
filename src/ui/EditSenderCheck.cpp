#include "ui/EditSenderCheck.h"

#include <utility>

#include "common_src/platform/WideFormat.h"

namespace Orva::Ui {

using Lists::SenderCheck;

// ValidateSender looks at both lengths before the address's form; the dialog speaks of the
// address first.
EditSenderCheck CheckEditedSender(std::wstring_view name, std::wstring_view address) {
    EditSenderCheck result{Lists::ValidateSender(name, address)};
    if (result.validation.check == SenderCheck::NameTooLong &&
        !Lists::IsAcceptableAddress(result.validation.address)) {
        std::wstring trimmedName = std::move(result.validation.name);
        result.validation = Lists::ValidateSender({}, address);
        result.validation.name = std::move(trimmedName);
    }
    const SenderCheck check = result.validation.check;
    result.field = check == SenderCheck::NameTooLong || check == SenderCheck::NameNotPlainText
                       ? SenderField::Name
                       : SenderField::Address;
    return result;
}

BoxAnswer ShowListMessage(IMessageBoxes& boxes, Settings::ILocalisedStrings& strings,
                          ZelCommon::Platform::WindowHandle owner, std::wstring_view messageId,
                          std::wstring_view captionId, int number, uint32_t style) {
    std::wstring text = strings.LoadShown(std::wstring(messageId));
    if (number != 0) {
        text = ZelCommon::Text::Format(text, number);
    }
    const std::wstring caption = strings.LoadShown(std::wstring(
        captionId.empty() ? std::wstring_view(L"IDS_CONFIRMATION_CAPTION") : captionId));
    return boxes.Show(owner, text, caption, style);
}

EditSenderAnswer ConfirmEditedSender(std::wstring_view name, std::wstring_view address,
                                     IMessageBoxes& boxes, Settings::ILocalisedStrings& strings,
                                     ZelCommon::Platform::WindowHandle owner) {
    const EditSenderCheck check = CheckEditedSender(name, address);
    const Lists::SenderValidation& validation = check.validation;
    if (!validation.Accepted()) {
        ShowListMessage(boxes, strings, owner, validation.messageId, validation.captionId,
                        validation.number, BoxStyle::kOk | BoxStyle::kIconInformation);
        return {std::nullopt, check.field};
    }
    return {SenderFields{validation.name, validation.address}, check.field};
}

}  // namespace Orva::Ui
