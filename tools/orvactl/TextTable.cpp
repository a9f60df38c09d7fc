#include "TextTable.h"

#include <algorithm>

namespace Orva::Orvactl {
namespace {

constexpr std::wstring_view kGap = L"  ";

void AppendRow(std::wstring& text, const std::vector<std::wstring>& cells,
               const std::vector<size_t>& widths) {
    for (size_t column = 0; column < cells.size(); ++column) {
        text += cells[column];
        if (column + 1 < cells.size()) {
            text.append(widths[column] - cells[column].size(), L' ');
            text += kGap;
        }
    }
    text += L'\n';
}

}  // namespace

std::wstring FormatTable(const std::vector<std::vector<std::wstring>>& rows) {
    std::vector<size_t> widths;
    for (const std::vector<std::wstring>& row : rows) {
        widths.resize(std::max(widths.size(), row.size()), 0);
        for (size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    std::wstring text;
    for (size_t index = 0; index < rows.size(); ++index) {
        std::vector<std::wstring> cells = rows[index];
        cells.resize(widths.size());
        AppendRow(text, cells, widths);
        if (index == 0) {
            std::vector<std::wstring> rule;
            for (size_t width : widths) {
                rule.emplace_back(width, L'-');
            }
            AppendRow(text, rule, widths);
        }
    }
    return text;
}

}  // namespace Orva::Orvactl
