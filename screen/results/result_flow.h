// What becomes of a search reply: result sets under tabs, the page in the grid, counts, the published codes.
//
// Relies on a window behind ResultView, the column tables and the host's links and boxes. It owns the result
// sets, whose index is their tab's. No number of a reply is trusted beyond the bytes that came with it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/host/services.h"
#include "screen/results/result_set.h"
#include "screen/results/result_view_interface.h"
#include "screen/transactions/result_columns.h"
#include "screen/transactions/search_request.h"

namespace jogeon {

class ResultFlow {
public:
    // All four outlive the flow.
    ResultFlow(ResultView& view, ColumnTables& tables, host::LinkStore& links, host::Questions& questions);

    // A search has been sent: the next first page is its result.
    void OnSearchSent(SearchedSet searched) { sent_ = std::move(searched); }

    // A reply to "T", or to "N" with `nextPage` set. One that can't be read changes nothing, and a next page
    // is taken only while its search is the active one.
    void OnSearchReply(std::string_view data, bool nextPage);

    // The user has chosen a tab.
    void OnTabSelected(int tab);

    // Drops all results; one empty tab stays, if there was any. The caller resets its sequence step.
    void Clear();

    // After the grid's layout has been read: selects and places the fixed columns by it.
    void ApplyLayout();

    // After the layout has been read again: the same, with all results dropped.
    void ReloadLayout();

    // The search that "next" goes on with; null when the selected tab isn't that of the last search.
    const ResultSet* Pageable() const;

    // The result of the selected tab, null if it has none.
    const ResultSet* Selected() const;

    // What a search within or outside the selected result starts from; none without a result there.
    std::optional<PriorResult> Prior() const;

    const ResultSet* ActiveResult() const { return activeResult_; }
    const std::vector<std::unique_ptr<ResultSet>>& ResultSets() const { return resultSets_; }

private:
    void TakeFirstPage(const SearchReply& reply);
    void TakeNextPage(const SearchReply& reply);
    void PlaceUnderTab(std::unique_ptr<ResultSet> result, int scope);
    void ShowPage(const ResultSet& result, std::size_t firstRow);
    void WriteRows(const ResultSet& result, std::size_t firstRow);
    void UpdateNext(const ResultSet& result);
    void DropTabs();
    void DropResults();
    void PublishCodes(const ResultSet* result);

    ResultView& view_;
    ColumnTables& tables_;
    host::LinkStore& links_;
    host::Questions& questions_;
    std::vector<std::unique_ptr<ResultSet>> resultSets_;
    ResultSet* activeResult_ = nullptr;
    SearchedSet sent_;  // by the last search
};

}  // namespace jogeon
