#include "screen/transactions/result_columns.h"

#include <algorithm>
#include <utility>

#include "screen/condition/token_list.h"
#include "screen/files/ini_mem_file.h"

namespace jogeon {
namespace {

constexpr char kFixedSection[] = "Basic_Fid";
constexpr char kOptionalSection[] = "Extend_Fid";

ResultColumn ReadColumn(CIniMemFile& file, const char* section, const std::string& fid) {
    const CTokenList tokens(file.GetString(section, fid.c_str(), ""), ';');
    ResultColumn column;
    column.name = tokens.GetToken(0);
    column.fid = fid;
    column.width = std::max(tokens.GetInt(1), 0);
    return column;
}

}  // namespace

ResultColumn* ColumnTables::FindFixed(std::string_view fid) {
    const auto found = fixedColumns.find(fid);
    return found == fixedColumns.end() ? nullptr : &found->second;
}

const ResultColumn* ColumnTables::FindOptional(std::string_view fid) const {
    const auto found = optionalColumns.find(fid);
    return found == optionalColumns.end() ? nullptr : &found->second;
}

void ColumnTables::CutToFixed() {
    columns.resize(std::min(columns.size(), fixedColumns.size()));
}

void ColumnTables::UpdateSequenceStart() {
    const ResultColumn* name = FindFixed(kNameColumnFid);
    sequenceStart = name && name->selected ? 0 : 1;
}

ColumnTables LoadColumnTable(const std::filesystem::path& file) {
    ColumnTables tables;
    CIniMemFile ini(file.string(), 1);
    std::vector<std::string> fids;
    ini.GetKeys(kFixedSection, fids);
    for (const std::string& fid : fids) {
        const auto [entry, added] = tables.fixedColumns.emplace(fid, ReadColumn(ini, kFixedSection, fid));
        if (!added) continue;
        tables.columns.push_back(&entry->second);
        entry->second.gridColumn = static_cast<int>(tables.columns.size());
        entry->second.selected = 1;
    }
    ini.GetKeys(kOptionalSection, fids);
    for (const std::string& fid : fids) {
        tables.optionalColumns.emplace(fid, ReadColumn(ini, kOptionalSection, fid));
    }
    tables.UpdateSequenceStart();
    return tables;
}

void ApplyGridLayout(ColumnTables& tables, std::span<const GridColumnLayout> grid) {
    for (auto& [fid, column] : tables.fixedColumns) {
        column.selected = 0;
        // A place that the grid doesn't confirm may be another column's by now.
        column.gridColumn = 0;
    }
    for (const GridColumnLayout& place : grid) {
        ResultColumn* column = tables.FindFixed(place.fid);
        if (!column) continue;
        column->selected = place.hidden ? 0 : 1;
        column->gridColumn = place.number;
    }
    tables.UpdateSequenceStart();
}

std::vector<std::string> SelectedFids(const ColumnTables& tables, std::size_t first) {
    std::vector<std::string> fids;
    const std::size_t end = std::min(tables.columns.size(), tables.fixedColumns.size());
    for (std::size_t i = first; i < end; ++i) {
        const ResultColumn& column = *tables.columns[i];
        if (column.selected && column.fid != kNameColumnFid) fids.push_back(column.fid);
    }
    return fids;
}

}  // namespace jogeon
