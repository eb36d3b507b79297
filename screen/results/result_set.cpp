#include "screen/results/result_set.h"

#include <algorithm>

namespace jogeon {
namespace {

// Bytes of the fields behind the code, which is the first column's.
std::vector<int> FieldWidths(const std::vector<ResultColumn*>& columns) {
    std::vector<int> widths;
    for (std::size_t i = 1; i < columns.size(); ++i) widths.push_back(columns[i]->width);
    return widths;
}

}  // namespace

void ResultSet::TakeColumns(const SearchReply& reply, ColumnTables& tables) {
    columnCount = static_cast<int>(reply.fids.size()) + 1;
    ResultColumn* name = tables.FindFixed(kNameColumnFid);
    // Without a column table the codes still have to stand somewhere.
    columns.push_back(name ? name : Own({"", std::string(kNameColumnFid), 0, 0, 1}));
    for (const std::string_view fid : reply.fids) {
        if (ResultColumn* fixed = tables.FindFixed(fid)) {
            columns.push_back(fixed);
        } else if (const ResultColumn* optional = tables.FindOptional(fid)) {
            columns.push_back(Own({optional->name, optional->fid, optional->width, 0, 1}));
            ++valueColumnCount;
        }
    }
    rows = RowTable(columns.size());
}

std::size_t ResultSet::WholeRows(const SearchReply& reply) const {
    const std::size_t present = reply.rows.size() / RowBytes(FieldWidths(columns));
    const std::size_t room = kMaxResultRows - std::min(rows.Rows(), kMaxResultRows);
    return std::min({present, room, static_cast<std::size_t>(reply.rowCount)});
}

void ResultSet::TakePage(const SearchReply& reply, char replyKind, char searchMode) {
    kind = replyKind;
    mode = searchMode;
    resultHandle = reply.resultHandle;
    total = reply.total;
    received = reply.received;

    const std::vector<int> widths = FieldWidths(columns);
    const std::size_t rowBytes = RowBytes(widths);
    const std::size_t count = WholeRows(reply);
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < count; ++i) {
        CutRow(reply.rows.substr(i * rowBytes, rowBytes), widths, fields);
        rows.AppendRow(fields);
    }
    rowCount = static_cast<int>(count);
}

std::vector<std::string> ResultSet::CodeFields() const {
    std::vector<std::string> codes;
    codes.reserve(rows.Rows());
    for (std::size_t row = 0; row < rows.Rows(); ++row) codes.emplace_back(rows.Cell(row, 0));
    return codes;
}

ResultColumn* ResultSet::Own(ResultColumn column) {
    valueColumns.push_back(std::make_unique<ResultColumn>(std::move(column)));
    return valueColumns.back().get();
}

}  // namespace jogeon
