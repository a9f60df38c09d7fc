#pragma once

#include <algorithm>
#include <string_view>

#include "lists/ByteBuffer.h"
#include "lists/ListKinds.h"
#include "lists/ListText.h"
#include "lists/SenderEntry.h"
#include "lists/ValueCodec.h"

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
    virtual bool Format(const SenderEntry& entry, ByteBuffer& record) const = 0;
};

using IBListPersist = IListPersist<BlockedList>;
using IWListPersist = IListPersist<ApprovedList>;

// Writes a value between its tags from `out`, which has room for TaggedSize of it; nothing
// (null) when the value cannot be stored. A whole list is written field after field, so this
// and the attribute classes' writing are inline.
inline char* WriteTaggedValue(std::string_view open, std::wstring_view value,
                              std::string_view close, char* out) {
    out = EncodeStorableValue(value, std::copy(open.begin(), open.end(), out));
    return out == nullptr ? nullptr : std::copy(close.begin(), close.end(), out);
}

inline size_t TaggedSize(std::string_view open, std::wstring_view value, std::string_view close) {
    return open.size() + value.size() * kMaxUtf8PerUnit + close.size();
}

template <class Kind>
class CListSenderName final : public IListPersist<Kind> {
public:
    void Parse(std::string_view record, SenderEntry& entry) const override;
    bool Format(const SenderEntry& entry, ByteBuffer& record) const override {
        record.SetEnd(Write(entry, record.Room(MaxSize(entry))));
        return true;
    }
    // Parse's second half: the value already taken out of the record and trimmed.
    ValueRead ParseValue(std::string_view value, SenderEntry& entry) const;
    // Format's work, from `out`, which has room for MaxSize; returns the end of what it wrote.
    // A name often comes from a contact and may hold anything; it loses only what the file
    // cannot hold, never its entry.
    char* Write(const SenderEntry& entry, char* out) const {
        if (char* end = WriteTaggedValue(kNameOpen, entry.name, kNameClose, out)) {
            return end;
        }
        return WriteTaggedValue(kNameOpen, StorableForm(entry.name), kNameClose, out);
    }
    static size_t MaxSize(const SenderEntry& entry) {
        return TaggedSize(kNameOpen, entry.name, kNameClose);
    }
    static const CListSenderName& Instance() {
        static const CListSenderName instance;
        return instance;
    }
};

// The address's parse also collapses runs of "*".
template <class Kind>
class CListSenderAddr final : public IListPersist<Kind> {
public:
    void Parse(std::string_view record, SenderEntry& entry) const override;
    bool Format(const SenderEntry& entry, ByteBuffer& record) const override {
        char* end = Write(entry, record.Room(MaxSize(entry)));
        if (end != nullptr) {
            record.SetEnd(end);
        }
        return end != nullptr;
    }
    // A collapsed run of "*" reads as Decoded: writing the address gives other bytes.
    ValueRead ParseValue(std::string_view value, SenderEntry& entry) const;
    // Format's work, from `out`, which has room for MaxSize; nothing (null) when the address
    // cannot be stored.
    char* Write(const SenderEntry& entry, char* out) const {
        return WriteTaggedValue(kAddressOpen, entry.address, kAddressClose, out);
    }
    static size_t MaxSize(const SenderEntry& entry) {
        return TaggedSize(kAddressOpen, entry.address, kAddressClose);
    }
    static const CListSenderAddr& Instance() {
        static const CListSenderAddr instance;
        return instance;
    }
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
