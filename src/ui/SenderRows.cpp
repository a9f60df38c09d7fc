#include "ui/SenderRows.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "lists/KeyedEntry.h"

namespace Orva::Ui {

void CSenderRows::Reset(std::vector<Lists::SenderEntry> entries) {
    m_entries = std::move(entries);
    Order();
}

void CSenderRows::SortBy(SortColumn column) {
    m_ascending = column == m_column ? !m_ascending : true;
    m_column = column;
    Order();
}

// The entries come in key order, so the address column needs no sorting, and a stable sort by
// name leaves equal names in address order.
void CSenderRows::Order() {
    m_order.resize(m_entries.size());
    std::iota(m_order.begin(), m_order.end(), size_t{0});
    if (m_column == SortColumn::Name) {
        std::vector<std::wstring> names(m_entries.size());
        for (size_t i = 0; i < m_entries.size(); ++i) {
            names[i] = Lists::ListKeyOf(m_entries[i].name);
        }
        std::stable_sort(m_order.begin(), m_order.end(),
                         [&](size_t a, size_t b) { return names[a] < names[b]; });
    }
    if (!m_ascending) {
        std::reverse(m_order.begin(), m_order.end());
    }
}

void CSenderRows::Select(const std::vector<size_t>& rows) {
    m_selectedKeys.clear();
    for (const size_t row : rows) {
        if (row < m_order.size()) {
            m_selectedKeys.push_back(Lists::ListKeyOf(At(row).address));
        }
    }
    std::sort(m_selectedKeys.begin(), m_selectedKeys.end());
}

void CSenderRows::SelectAddress(const std::wstring& address) {
    m_selectedKeys = {Lists::ListKeyOf(address)};
}

std::vector<size_t> CSenderRows::SelectedRows() const {
    std::vector<size_t> rows;
    if (m_selectedKeys.empty()) {
        return rows;
    }
    for (size_t row = 0; row < m_order.size(); ++row) {
        if (std::binary_search(m_selectedKeys.begin(), m_selectedKeys.end(),
                               Lists::ListKeyOf(At(row).address))) {
            rows.push_back(row);
        }
    }
    return rows;
}

std::vector<std::wstring> CSenderRows::SelectedAddresses() const {
    std::vector<std::wstring> addresses;
    for (const size_t row : SelectedRows()) {
        addresses.push_back(At(row).address);
    }
    return addresses;
}

}  // namespace Orva::Ui
