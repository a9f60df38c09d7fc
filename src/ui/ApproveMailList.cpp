#include "ui/ApproveMailList.h"

#include "lists/SenderValidation.h"

namespace Orva::Ui {

std::optional<std::vector<std::wstring>> ParseApproveMailList(std::wstring_view value) {
    std::vector<std::wstring> addresses;
    size_t start = 0;
    while (start <= value.size()) {
        size_t end = value.find_first_of(L";,", start);
        if (end == std::wstring_view::npos) {
            end = value.size();
        }
        const std::wstring_view item = value.substr(start, end - start);
        if (item.find_first_not_of(L" \t\r\n") != std::wstring_view::npos) {
            const Lists::SenderValidation checked = Lists::ValidateSender({}, item);
            if (!checked.Accepted()) {
                return std::nullopt;
            }
            addresses.push_back(checked.address);
        }
        start = end + 1;
    }
    return addresses;
}

}  // namespace Orva::Ui
