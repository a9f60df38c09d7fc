#include "lists/ListPersist.h"

namespace Orva::Lists {

template <class Kind>
void CListSenderName<Kind>::Parse(std::string_view record, SenderEntry& entry) const {
    ParseValue(ExtractTaggedValue(record, kNameOpen, kNameClose), entry);
}

template <class Kind>
ValueRead CListSenderName<Kind>::ParseValue(std::string_view value, SenderEntry& entry) const {
    const ValueRead read = DecodeStoredValue(value, entry.name);
    if (read == ValueRead::Refused) {
        entry.name.clear();
    }
    return read;
}

template <class Kind>
void CListSenderAddr<Kind>::Parse(std::string_view record, SenderEntry& entry) const {
    ParseValue(ExtractTaggedValue(record, kAddressOpen, kAddressClose), entry);
}

template <class Kind>
ValueRead CListSenderAddr<Kind>::ParseValue(std::string_view value, SenderEntry& entry) const {
    const ValueRead read = DecodeStoredValue(value, entry.address);
    if (read == ValueRead::Refused) {
        entry.address.clear();
    } else if (value.find("**") != std::string_view::npos) {
        entry.address = CollapseStars(entry.address);
        return ValueRead::Decoded;
    }
    return read;
}

template class CListSenderName<BlockedList>;
template class CListSenderAddr<BlockedList>;
template class CListSenderName<ApprovedList>;
template class CListSenderAddr<ApprovedList>;

}  // namespace Orva::Lists
