#include "lists/ListPersist.h"

#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

bool AppendTagged(std::string& record, std::string_view open, std::wstring_view value,
                  std::string_view close) {
    record.append(open);
    if (!AppendStorableUtf8(record, value)) {
        return false;
    }
    record.append(close);
    return true;
}

}  // namespace

template <class Kind>
void CListSenderName<Kind>::Parse(std::string_view record, SenderEntry& entry) const {
    const std::string_view value = ExtractTaggedValue(record, kNameOpen, kNameClose);
    entry.name = IsStorableUtf8(value) ? DecodeValue(value) : std::wstring();
}

// A name often comes from a contact and may hold anything; it loses only what the file cannot
// hold, never its entry.
template <class Kind>
bool CListSenderName<Kind>::Format(const SenderEntry& entry, std::string& record) const {
    const size_t start = record.size();
    if (!AppendTagged(record, kNameOpen, entry.name, kNameClose)) {
        record.resize(start);
        AppendTagged(record, kNameOpen, StorableForm(entry.name), kNameClose);
    }
    return true;
}

template <class Kind>
const CListSenderName<Kind>& CListSenderName<Kind>::Instance() {
    static const CListSenderName instance;
    return instance;
}

template <class Kind>
void CListSenderAddr<Kind>::Parse(std::string_view record, SenderEntry& entry) const {
    const std::string_view value = ExtractTaggedValue(record, kAddressOpen, kAddressClose);
    if (!IsStorableUtf8(value)) {
        entry.address.clear();
        return;
    }
    entry.address = DecodeValue(value);
    if (value.find("**") != std::string_view::npos) {
        entry.address = CollapseStars(entry.address);
    }
}

template <class Kind>
bool CListSenderAddr<Kind>::Format(const SenderEntry& entry, std::string& record) const {
    return AppendTagged(record, kAddressOpen, entry.address, kAddressClose);
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
