#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lists/EncodingSet.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// One row of the encodings list: a group, ticked when its mail is blocked.
struct EncodingRow {
    std::wstring name;
    bool blocked = false;

    friend bool operator==(const EncodingRow&, const EncodingRow&) = default;
};

// The blocked-encodings page without its windows: the groups of the data folder's
// "BlockEncodings.dat", one row each in the file's order, and the user's ticks.
class CBlockEncodingPageModel {
public:
    CBlockEncodingPageModel(PageServices& services, std::wstring dataFolder);

    // Reads the file; a missing one gives no rows. The page is unmodified afterwards.
    void Load();
    bool Loaded() const { return m_loaded; }

    std::vector<EncodingRow> Rows() const;
    // The user's tick on `row`; only a change of the group's state modifies the page. False for
    // a row that does not exist.
    bool SetBlocked(std::size_t row, bool blocked);
    bool Modified() const { return m_modified; }
    const Lists::CEncodingSet& Encodings() const { return m_encodings; }

    // The sheet's OK: only for a read and modified page, writes the file (its line-2 value as
    // read), then posts the agent 1034. False when nothing was written; a file that cannot be
    // written is logged, keeps the page modified and is not announced.
    bool Apply();

private:
    PageServices& m_services;
    std::wstring m_dataFolder;
    Lists::CEncodingSet m_encodings;
    // The group names by row, in the set's order.
    std::vector<std::wstring> m_names;
    bool m_loaded = false;
    bool m_modified = false;
};

}  // namespace Orva::Ui
