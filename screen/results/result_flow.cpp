#include "screen/results/result_flow.h"

#include <algorithm>
#include <utility>

#include "screen/results/code_list.h"
#include "screen/results/column_match.h"
#include "screen/results/name_cell.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kSequentialScope = 3;

// How the scope list names a search on its tab; a sequential search counts as one of everything.
std::string ScopeLabel(int scope) {
    switch (scope) {
        case 1:
            return "결과내검색"_cp949;
        case 2:
            return "결과외검색"_cp949;
        default:
            return "전체검색"_cp949;
    }
}

char ModeCharacter(int scope) {
    return static_cast<char>('0' + scope);
}

std::string TabLabel(int number, int scope) {
    return std::string("[").append(Decimal(number)).append("]").append(ScopeLabel(scope));
}

std::vector<int> GridColumnsOf(const ResultSet& result) {
    std::vector<int> gridColumns;
    for (const ResultColumn* column : result.columns) gridColumns.push_back(column->gridColumn);
    return gridColumns;
}

}  // namespace

ResultFlow::ResultFlow(ResultView& view, ColumnTables& tables, host::LinkStore& links,
                       host::Questions& questions)
    : view_(view), tables_(tables), links_(links), questions_(questions) {}

void ResultFlow::OnSearchReply(std::string_view data, bool nextPage) {
    const auto reply = ParseSearchReply(data);
    if (!reply) return;
    switch (reply->outcome) {
        case ReplyOutcome::Failure:
            activeResult_ = nullptr;
            PublishCodes(nullptr);
            questions_.Ask({"조건 검색이 실패하였습니다.\n조건 대상을 다시 지정해 주세요."_cp949,
                            "조건 검색"_cp949, host::Icon::Information, host::Buttons::Ok});
            return;
        case ReplyOutcome::NoRows:
            PublishCodes(nullptr);
            view_.ShowNoResultNotice();
            return;
        case ReplyOutcome::Rows:
            if (nextPage) return TakeNextPage(*reply);
            return TakeFirstPage(*reply);
    }
}

void ResultFlow::TakeFirstPage(const SearchReply& reply) {
    auto result = std::make_unique<ResultSet>();
    result->TakeColumns(reply, tables_);
    // An answer cut before its first row is not worth the result on show.
    if (result->WholeRows(reply) == 0) return;

    result->searched = sent_;
    const int scope = std::clamp(view_.SelectedScope(), 0, kSequentialScope);
    ResultSet& placed = *result;
    PlaceUnderTab(std::move(result), scope == kSequentialScope ? 0 : scope);
    MatchColumns(placed, tables_, view_);
    placed.TakePage(reply, 'T', ModeCharacter(scope));
    ShowPage(placed, 0);
}

void ResultFlow::TakeNextPage(const SearchReply& reply) {
    if (!activeResult_ || activeResult_->WholeRows(reply) == 0) return;
    const std::size_t before = activeResult_->rows.Rows();
    const int scope = std::clamp(view_.SelectedScope(), 0, kSequentialScope);
    activeResult_->TakePage(reply, 'N', ModeCharacter(scope));
    // The grid may show another tab by now; the page is then seen when its own is chosen again.
    if (Selected() == activeResult_) ShowPage(*activeResult_, before);
}

void ResultFlow::PlaceUnderTab(std::unique_ptr<ResultSet> result, int scope) {
    tables_.CutToFixed();  // the set that goes may own columns that stand there
    activeResult_ = result.get();
    if (scope == 0 || resultSets_.empty()) {
        if (view_.TabCount() == 0) view_.AddTab(TabLabel(1, scope));
        if (resultSets_.empty()) {
            resultSets_.push_back(std::move(result));
        } else {
            resultSets_.front() = std::move(result);
        }
        view_.SelectTab(0);
        return;
    }
    resultSets_.push_back(std::move(result));
    const int number = static_cast<int>(resultSets_.size());
    view_.AddTab(TabLabel(number, scope));
    view_.SelectTab(number - 1);
}

void ResultFlow::ShowPage(const ResultSet& result, std::size_t firstRow) {
    UpdateNext(result);
    WriteRows(result, firstRow);
    const int gridRow = static_cast<int>(firstRow) + kFirstResultRow;
    view_.ClearSelection();
    view_.ScrollCellInView(gridRow, 2);
    view_.SelectRow(gridRow);
    PublishCodes(&result);
    view_.ShowCounts(result.total, result.received);
}

void ResultFlow::WriteRows(const ResultSet& result, std::size_t firstRow) {
    const std::size_t rows = result.rows.Rows();
    view_.LockUpdate(true);
    view_.SetRowCount(static_cast<int>(rows) + 1);
    view_.SetRows(result.rows, firstRow, rows, GridColumnsOf(result));
    view_.RefreshRows(static_cast<int>(firstRow) + kFirstResultRow);
    view_.LockUpdate(false);
    view_.Redraw();
}

void ResultFlow::OnTabSelected(int tab) {
    if (tab < 0 || tab >= std::ssize(resultSets_)) return;
    const ResultSet& result = *resultSets_[static_cast<std::size_t>(tab)];
    UpdateNext(result);
    MatchColumns(result, tables_, view_);
    WriteRows(result, 0);
    PublishCodes(&result);
    view_.ShowCounts(result.total, result.received);
}

void ResultFlow::Clear() {
    DropTabs();
    view_.EmptyGrid();
    view_.Redraw();
    DropResults();
    view_.SelectScope(0);
}

void ResultFlow::ApplyLayout() {
    std::vector<GridColumnLayout> layout;
    for (int column = 1; column <= view_.GetColCount(); ++column) {
        layout.push_back({column, view_.ColumnTag(column), view_.IsColHidden(column)});
    }
    ApplyGridLayout(tables_, layout);
}

void ResultFlow::ReloadLayout() {
    ApplyLayout();
    DropTabs();
    DropResults();
}

void ResultFlow::DropTabs() {
    if (view_.TabCount() > 0) view_.SelectTab(0);
    for (int tab = view_.TabCount() - 1; tab > 0; --tab) view_.RemoveTab(tab);
}

void ResultFlow::DropResults() {
    activeResult_ = nullptr;
    tables_.CutToFixed();
    resultSets_.clear();
    view_.SetNextEnabled(false);
    view_.ShowCounts(0, 0);
}

const ResultSet* ResultFlow::Selected() const {
    const int tab = view_.SelectedTab();
    return tab >= 0 && tab < std::ssize(resultSets_) ? resultSets_[static_cast<std::size_t>(tab)].get()
                                                     : nullptr;
}

const ResultSet* ResultFlow::Pageable() const {
    return Selected() == activeResult_ ? activeResult_ : nullptr;
}

std::optional<PriorResult> ResultFlow::Prior() const {
    const ResultSet* result = Selected();
    if (!result) return std::nullopt;
    return PriorResult{result->received, result->CodeFields()};
}

void ResultFlow::UpdateNext(const ResultSet& result) {
    view_.SetNextEnabled(&result == activeResult_ && result.total > result.received);
}

// Whoever takes the codes finds what they were searched with beside them.
void ResultFlow::PublishCodes(const ResultSet* result) {
    std::vector<std::string> codes;
    if (result) {
        codes = result->CodeFields();
        for (std::string& code : codes) code = BehindMarketLetter(code);
    }
    PublishCodeList(links_, view_, codes, result ? result->searched.conditionSet : std::string());
}

}  // namespace jogeon
