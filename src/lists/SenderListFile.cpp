#include "lists/SenderListFile.h"

#include "lists/ListPersist.h"
#include "lists/ListText.h"
#include "settings/log/DebugLog.h"

namespace Orva::Lists {
namespace {

struct RecordValues {
    std::string_view name;
    std::string_view address;
    bool trimmed = false;  // a blank was taken off either value
};

bool Consume(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

// The values of a line in the form every save writes:
//   open "<SN_ATTR>" name "<\SN_ATTR><SA_ATTR>" address "<\SA_ATTR>" close
// with no other '<' in it. The only tags of such a line are these six, so the tag rule finds
// exactly these values, and they are taken out without searching the line for each tag.
std::optional<RecordValues> WrittenFormValues(std::string_view line, std::string_view open,
                                              std::string_view close) {
    if (!Consume(line, open) || !Consume(line, kNameOpen)) {
        return std::nullopt;
    }
    const size_t nameEnd = line.find('<');
    const std::string_view name = line.substr(0, nameEnd);
    line.remove_prefix(name.size());
    if (!Consume(line, kNameClose) || !Consume(line, kAddressOpen)) {
        return std::nullopt;
    }
    const size_t addressEnd = line.find('<');
    const std::string_view address = line.substr(0, addressEnd);
    line.remove_prefix(address.size());
    if (!Consume(line, kAddressClose) || line != close) {
        return std::nullopt;
    }
    RecordValues values{TrimTagBlanks(name), TrimTagBlanks(address)};
    values.trimmed = values.name.size() != name.size() || values.address.size() != address.size();
    return values;
}

}  // namespace

template <class Kind>
typename SenderListFile<Kind>::Record SenderListFile<Kind>::ParseLine(std::string_view line) {
    const auto& address = CListSenderAddr<Kind>::Instance();
    const auto& name = CListSenderName<Kind>::Instance();
    Record record;
    SenderEntry& entry = record.entry;
    if (const auto values = WrittenFormValues(line, Kind::kRecordOpen, Kind::kRecordClose)) {
        const ValueRead addressRead = address.ParseValue(values->address, entry);
        if (!entry.address.empty()) {
            // Formatting gives the line back when neither value lost blanks or bytes on reading.
            const ValueRead nameRead = name.ParseValue(values->name, entry);
            record.asFormatted = !values->trimmed && nameRead == ValueRead::AsWritten &&
                                 addressRead == ValueRead::AsWritten;
        }
        return record;
    }
    const std::string_view body = ExtractTaggedValue(line, Kind::kRecordOpen, Kind::kRecordClose);
    if (body.empty()) {
        return record;
    }
    address.Parse(body, entry);
    if (!entry.address.empty()) {
        name.Parse(body, entry);
    }
    return record;
}

template <class Kind>
void SenderListFile<Kind>::AppendRecordLine(const SenderEntry& entry, ByteBuffer& bytes) {
    using Name = CListSenderName<Kind>;
    using Address = CListSenderAddr<Kind>;
    constexpr std::string_view kLineEnd = "\n";
    char* const start =
        bytes.Room(Kind::kRecordOpen.size() + Name::MaxSize(entry) + Address::MaxSize(entry) +
                   Kind::kRecordClose.size() + kLineEnd.size());
    char* at = std::copy(Kind::kRecordOpen.begin(), Kind::kRecordOpen.end(), start);
    at = Name::Instance().Write(entry, at);
    at = entry.address.empty() ? nullptr : Address::Instance().Write(entry, at);
    if (at == nullptr) {
        ZelCommon::Library::TheLog().LogMessage(
            ZelCommon::Library::LogError, "BlackList", __LINE__,
            L"xxx CBListSet::Save left out the entry of an address that cannot be written: %s",
            StorableForm(entry.address));
        return;
    }
    at = std::copy(Kind::kRecordClose.begin(), Kind::kRecordClose.end(), at);
    bytes.SetEnd(std::copy(kLineEnd.begin(), kLineEnd.end(), at));
}

template struct SenderListFile<BlockedList>;
template struct SenderListFile<ApprovedList>;

}  // namespace Orva::Lists
