#include "lists/ListFileText.h"

#include "common_src/platform/TextCodec.h"
#include "lists/ListKinds.h"

namespace Orva::Lists {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

}  // namespace

std::wstring DecodeListText(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark)) {
        bytes.remove_prefix(kUtf8Mark.size());
    }
    return ZelCommon::Text::Utf8ToWide(bytes);
}

std::string EncodeListText(std::wstring_view text) {
    std::string bytes(kUtf8Mark);
    bytes.append(ZelCommon::Text::WideToUtf8(text));
    return bytes;
}

bool HasAcceptedHeader(std::wstring_view firstLine) {
    for (const std::wstring_view header : kAcceptedHeaders) {
        if (firstLine.find(header) != std::wstring_view::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace Orva::Lists
