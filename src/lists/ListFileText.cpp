#include "lists/ListFileText.h"

#include "common_src/platform/TextCodec.h"
#include "lists/ListKinds.h"
#include "lists/ValueCodec.h"

namespace Orva::Lists {

std::string_view SkipUtf8Mark(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark)) {
        bytes.remove_prefix(kUtf8Mark.size());
    }
    return bytes;
}

bool IsUtf16LeText(std::string_view bytes) {
    return bytes.starts_with(kUtf16LeMark);
}

std::string Utf16LeTextToUtf8(std::string_view bytes) {
    return ZelCommon::Text::WideToUtf8(
        ZelCommon::Text::Utf16LeToWide(bytes.substr(kUtf16LeMark.size())));
}

std::wstring DecodeListText(std::string_view bytes) {
    if (IsUtf16LeText(bytes)) {
        return ZelCommon::Text::Utf16LeToWide(bytes.substr(kUtf16LeMark.size()));
    }
    return ZelCommon::Text::Utf8ToWide(SkipUtf8Mark(bytes));
}

std::string EncodeListText(std::wstring_view text) {
    std::string bytes(kUtf8Mark);
    bytes.reserve(kUtf8Mark.size() + text.size() + text.size() / 4);
    AppendUtf8(bytes, text);
    return bytes;
}

bool HasAcceptedHeader(std::string_view firstLine) {
    for (const std::string_view header : kAcceptedHeaders) {
        if (firstLine.find(header) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace Orva::Lists
