// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_mapping.h"

ColumnRole RoleOf(const ImportMapping& mapping, std::size_t column) {
    return column < mapping.columns.size() ? mapping.columns[column] : ColumnRole::Nothing;
}

std::vector<std::size_t> ColumnsOf(const ImportMapping& mapping, ColumnRole role) {
    std::vector<std::size_t> columns;
    for (std::size_t column = 0; column < mapping.columns.size(); ++column) {
        if (mapping.columns[column] == role) columns.push_back(column);
    }
    return columns;
}

std::string MissingInMapping(const ImportMapping& mapping) {
    if (ColumnsOf(mapping, ColumnRole::Dated).empty()) return "Choose the column of the date.";
    if (mapping.picks < 4 || mapping.picks > 7) return "A lottery has four to seven main numbers.";
    const std::size_t single = ColumnsOf(mapping, ColumnRole::Number).size();
    const bool lists = !ColumnsOf(mapping, ColumnRole::Numbers).empty();
    if (!lists && single < 4) return "Choose the columns of at least four main numbers.";
    if (!lists && single > 7) return "Choose at most seven columns of main numbers.";
    return {};
}
