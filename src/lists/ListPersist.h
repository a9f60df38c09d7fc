#pragma once

#include <string>
#include <string_view>

#include "lists/ListKinds.h"
#include "lists/SenderEntry.h"

namespace Orva::Lists {

// How one field of an entry is read from a record and written into one. A shared instance of
// each attribute class stands for its field while a list is read or written. A value that could
// not be written back unchanged (a tag text, a control character) is read as empty.
template <class Kind>
class IListPersist {
public:
    virtual ~IListPersist() = default;
    // Takes the field's value out of a record body (UTF-8, as in the file) into `entry`.
    virtual void Parse(std::string_view record, SenderEntry& entry) const = 0;
    // Appends the field as tagged UTF-8 text to `record`; false when its value cannot be
    // stored, and `record` is then to be dropped. A name is stored in its StorableForm instead.
    virtual bool Format(const SenderEntry& entry, std::string& record) const = 0;
};

using IBListPersist = IListPersist<BlockedList>;
using IWListPersist = IListPersist<ApprovedList>;

template <class Kind>
class CListSenderName final : public IListPersist<Kind> {
public:
    void Parse(std::string_view record, SenderEntry& entry) const override;
    bool Format(const SenderEntry& entry, std::string& record) const override;
    static const CListSenderName& Instance();
};

// The address's parse also collapses runs of "*".
template <class Kind>
class CListSenderAddr final : public IListPersist<Kind> {
public:
    void Parse(std::string_view record, SenderEntry& entry) const override;
    bool Format(const SenderEntry& entry, std::string& record) const override;
    static const CListSenderAddr& Instance();
};

using CBListSenderName = CListSenderName<BlockedList>;
using CBListSenderAddr = CListSenderAddr<BlockedList>;
using CWListSenderName = CListSenderName<ApprovedList>;
using CWListSenderAddr = CListSenderAddr<ApprovedList>;

extern template class CListSenderName<BlockedList>;
extern template class CListSenderAddr<BlockedList>;
extern template class CListSenderName<ApprovedList>;
extern template class CListSenderAddr<ApprovedList>;

}  // namespace Orva::Lists
