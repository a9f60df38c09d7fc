#include "lists/ListPersist.h"

#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

void AppendTagged(std::wstring& record, std::wstring_view open, std::wstring_view value,
                  std::wstring_view close) {
    record.append(open);
    record.append(value);
    record.append(close);
}

}  // namespace

template <class Kind>
void CListSenderName<Kind>::Parse(std::wstring_view record, SenderEntry& entry) const {
    entry.name.assign(ExtractTaggedValue(record, kNameOpen, kNameClose));
}

template <class Kind>
void CListSenderName<Kind>::Format(const SenderEntry& entry, std::wstring& record) const {
    AppendTagged(record, kNameOpen, entry.name, kNameClose);
}

template <class Kind>
const CListSenderName<Kind>& CListSenderName<Kind>::Instance() {
    static const CListSenderName instance;
    return instance;
}

template <class Kind>
void CListSenderAddr<Kind>::Parse(std::wstring_view record, SenderEntry& entry) const {
    const std::wstring_view value = ExtractTaggedValue(record, kAddressOpen, kAddressClose);
    if (value.find(L"**") == std::wstring_view::npos) {
        entry.address.assign(value);
    } else {
        entry.address = CollapseStars(value);
    }
}

template <class Kind>
void CListSenderAddr<Kind>::Format(const SenderEntry& entry, std::wstring& record) const {
    AppendTagged(record, kAddressOpen, entry.address, kAddressClose);
}

template <class Kind>
const CListSenderAddr<Kind>& CListSenderAddr<Kind>::Instance() {
    static const CListSenderAddr instance;
    return instance;
}

template class CListSenderName<BlockedList>;
template class CListSenderAddr<BlockedList>;
template class CListSenderName<ApprovedList>;
template class CListSenderAddr<ApprovedList>;

}  // namespace Orva::Lists
