// One search result: what a tab shows, and where its search can go on.
//
// It owns its rows and the optional columns that came with them; fixed columns belong to the column tables.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screen/results/row_table.h"
#include "screen/results/searched_set.h"
#include "screen/transactions/result_columns.h"
#include "screen/transactions/search_reply.h"

namespace jogeon {

// Counts have four digits on the wire; a result with more rows than they can tell is cut there.
inline constexpr std::size_t kMaxResultRows = 9999;

struct ResultSet {
    char kind = 'T';       // letter of the last reply
    char mode = '0';       // scope of the search: '0' whole, '1' within, '2' outside, '3' sequential
    int resultHandle = 0;  // the server's number of this result
    int total = 0;
    int received = 0;
    int rowCount = 0;          // rows of the last page, as many as really came
    int columnCount = 0;       // columns by the reply's word, the name column included
    int valueColumnCount = 0;  // optional columns among them
    std::vector<ResultColumn*> columns;
    std::vector<std::unique_ptr<ResultColumn>> valueColumns;  // the optional ones among `columns`
    RowTable rows;
    SearchedSet searched;  // what brought it; empty if that isn't known

    // Takes the columns of a first page: the name column, then each FID that the tables know.
    void TakeColumns(const SearchReply& reply, ColumnTables& tables);

    // How many rows of the reply a page would take: those that it claims, that are there whole, and that the
    // set has room for.
    std::size_t WholeRows(const SearchReply& reply) const;

    // Takes the counts, and appends the whole rows.
    void TakePage(const SearchReply& reply, char replyKind, char searchMode);

    // The code field of each row, market letter included.
    std::vector<std::string> CodeFields() const;

private:
    ResultColumn* Own(ResultColumn column);
};

}  // namespace jogeon
