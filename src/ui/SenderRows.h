#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lists/SenderEntry.h"

namespace Orva::Ui {

enum class SortColumn { Address, Name };

// The rows of a sender list view: the list's entries in the order the user chose, and the
// selection, kept by address so that it follows its entries through a new order or new
// entries. The view asks for rows by index (a virtual list view).
class CSenderRows {
public:
    // Takes the entries in key order (the lower-cased address), as the list gives them.
    void Reset(std::vector<Lists::SenderEntry> entries);

    // A second click on the same column reverses the order; another column starts ascending.
    void SortBy(SortColumn column);
    SortColumn Column() const { return m_column; }
    bool Ascending() const { return m_ascending; }

    size_t Count() const { return m_order.size(); }
    const Lists::SenderEntry& At(size_t row) const { return m_entries[m_order[row]]; }

    void Select(const std::vector<size_t>& rows);
    void SelectAddress(const std::wstring& address);
    std::vector<size_t> SelectedRows() const;
    std::vector<std::wstring> SelectedAddresses() const;

private:
    void Order();

    std::vector<Lists::SenderEntry> m_entries;  // in key order
    std::vector<size_t> m_order;                // the entries' indices, row by row
    std::vector<std::wstring> m_selectedKeys;   // sorted
    SortColumn m_column = SortColumn::Address;
    bool m_ascending = true;
};

}  // namespace Orva::Ui
