#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Orva::Lists {

inline constexpr std::wstring_view kEncodingsFileName = L"BlockEncodings.dat";

// One group of code pages the user can block as a whole.
struct EncodingGroup {
    bool blocked = false;
    std::vector<int32_t> codePages;

    friend bool operator==(const EncodingGroup&, const EncodingGroup&) = default;
};

// The blocked encodings of "BlockEncodings.dat": a whole-list value kept as read, and the
// groups by name.
//
// Damaged lines are read as far as they make sense, field by field: a missing or non-numeric
// blocked flag reads as not blocked; a code page field that does not start with a number is
// left out of its group, one that does keeps its leading number, as _wtoi reads it; an
// unreadable line-2 value reads as 0. A line loses nothing but its bad fields and never costs
// the other lines.
class CEncodingSet {
public:
    // Replaces the set with the file's content; a missing or unreadable file leaves it empty.
    void Load(const std::wstring& path);
    // A file that cannot be written is left as it was; answers the Win32 error (0 when saved).
    uint32_t Save(const std::wstring& path) const;

    // The file's text for the current content.
    std::wstring Format() const;
    // Replaces the content with that of a file's text.
    void Parse(std::wstring_view text);

    int32_t Value() const { return m_value; }
    void SetValue(int32_t value) { m_value = value; }
    const std::map<std::wstring, EncodingGroup>& Groups() const { return m_groups; }
    // Adds the group unless its name is empty, holds a tab or a line break, or is already
    // present; true when added.
    bool AddGroup(const std::wstring& name, EncodingGroup group);
    // False when there is no such group.
    bool SetBlocked(const std::wstring& name, bool blocked);
    void Clear();

private:
    int32_t m_value = 0;
    std::map<std::wstring, EncodingGroup> m_groups;
};

}  // namespace Orva::Lists
