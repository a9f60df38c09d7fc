#include "lists/EncodingSet.h"

#include <limits>
#include <optional>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/WideFormat.h"
#include "lists/ListFileText.h"
#include "lists/ListKinds.h"

namespace Orva::Lists {
namespace {

// _wtoi's reading: leading blanks, a sign, then digits up to the first non-digit. Nothing when
// no digit follows. Values beyond 32 bits are held at the nearest bound.
std::optional<int32_t> LeadingNumber(std::wstring_view text) {
    size_t at = 0;
    while (at < text.size() && (text[at] == L' ' || text[at] == L'\t')) {
        ++at;
    }
    const bool negative = at < text.size() && text[at] == L'-';
    if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) {
        ++at;
    }
    if (at == text.size() || text[at] < L'0' || text[at] > L'9') {
        return std::nullopt;
    }
    constexpr int64_t kLimit = int64_t{std::numeric_limits<int32_t>::max()} + 1;
    int64_t magnitude = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at) {
        magnitude = std::min(kLimit, magnitude * 10 + (text[at] - L'0'));
    }
    if (negative) {
        return static_cast<int32_t>(-magnitude);
    }
    return static_cast<int32_t>(std::min<int64_t>(magnitude, kLimit - 1));
}

std::wstring_view NextField(std::wstring_view& line) {
    const size_t tab = line.find(L'\t');
    const std::wstring_view field = line.substr(0, tab);
    line = tab == std::wstring_view::npos ? std::wstring_view() : line.substr(tab + 1);
    return field;
}

}  // namespace

void CEncodingSet::Clear() {
    m_value = 0;
    m_groups.clear();
}

bool CEncodingSet::AddGroup(const std::wstring& name, EncodingGroup group) {
    if (name.empty() || name.find_first_of(L"\t\r\n") != std::wstring::npos) {
        return false;
    }
    return m_groups.emplace(name, std::move(group)).second;
}

bool CEncodingSet::SetBlocked(const std::wstring& name, bool blocked) {
    const auto found = m_groups.find(name);
    if (found == m_groups.end()) {
        return false;
    }
    found->second.blocked = blocked;
    return true;
}

void CEncodingSet::Parse(std::wstring_view text) {
    Clear();
    size_t lineNumber = 0;
    ForEachLine(text, [this, &lineNumber](std::wstring_view line) {
        ++lineNumber;
        if (lineNumber == 1) {
            return true;  // the header is not checked
        }
        if (lineNumber == 2) {
            m_value = LeadingNumber(line).value_or(0);
            return true;
        }
        const std::wstring_view name = NextField(line);
        if (name.empty()) {
            return true;
        }
        EncodingGroup group;
        group.blocked = LeadingNumber(NextField(line)).value_or(0) != 0;
        while (!line.empty()) {
            if (const std::optional<int32_t> codePage = LeadingNumber(NextField(line))) {
                group.codePages.push_back(*codePage);
            }
        }
        m_groups.emplace(std::wstring(name), std::move(group));
        return true;
    });
}

std::wstring CEncodingSet::Format() const {
    std::wstring text(kWrittenHeader.begin(), kWrittenHeader.end());
    text.push_back(L'\n');
    text.append(ZelCommon::Text::Format(L"%d\n", m_value));
    for (const auto& [name, group] : m_groups) {
        text.append(name);
        text.append(group.blocked ? L"\t1" : L"\t0");
        for (const int32_t codePage : group.codePages) {
            text.append(ZelCommon::Text::Format(L"\t%d", codePage));
        }
        text.push_back(L'\n');
    }
    return text;
}

void CEncodingSet::Load(const std::wstring& path) {
    Clear();
    if (std::string bytes; ZelCommon::Platform::ReadWholeFile(path, bytes) == 0) {
        Parse(DecodeListText(bytes));
    }
}

uint32_t CEncodingSet::Save(const std::wstring& path) const {
    return ZelCommon::Platform::ReplaceFileContents(path, EncodeListText(Format()));
}

}  // namespace Orva::Lists
