#include "screen/results/result_controls_widget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

#include "screen/panes/progress_label_widget.h"
#include "screen/results/code_list_button_widget.h"
#include "screen/results/result_grid_view.h"
#include "screen/results/result_notice_dialog.h"
#include "screen/results/result_tabs_widget.h"

namespace jogeon {

ResultControlsView::ResultControlsView(const ResultControls& controls, host::Questions& questions,
                                       host::Clock& clock)
    : controls_(controls), questions_(questions), clock_(clock) {}

// --- the grid

int ResultControlsView::GetColCount() const {
    return controls_.grid.GetColCount();
}

bool ResultControlsView::IsColHidden(int column) const {
    return controls_.grid.IsColHidden(column);
}

void ResultControlsView::HideCols(int first, int last, bool hide) {
    controls_.grid.HideCols(first, last, hide);
}

void ResultControlsView::SetColHeader(int column, const std::string& text) {
    controls_.grid.SetColHeader(column, text);
}

std::string ResultControlsView::ColumnTag(int column) const {
    return controls_.grid.ColumnTag(column);
}

void ResultControlsView::SetColumnTag(int column, const std::string& tag) {
    controls_.grid.SetColumnTag(column, tag);
}

void ResultControlsView::LockUpdate(bool on) {
    controls_.grid.LockUpdate(on);
}

void ResultControlsView::SetRowCount(int rows) {
    controls_.grid.SetRowCount(rows);
}

void ResultControlsView::SetRows(const RowTable& rows, std::size_t begin, std::size_t end,
                                 std::span<const int> gridColumns) {
    controls_.grid.SetRows(rows, begin, end, gridColumns);
}

void ResultControlsView::RefreshRows(int firstRow) {
    controls_.grid.RefreshRows(firstRow);
}

void ResultControlsView::Redraw() {
    controls_.grid.Redraw();
}

void ResultControlsView::EmptyGrid() {
    controls_.grid.EmptyGrid();
}

int ResultControlsView::GetRowCount() const {
    return controls_.grid.GetRowCount();
}

std::string ResultControlsView::GetValue(int row, int column) const {
    return controls_.grid.GetValue(row, column);
}

int ResultControlsView::FindColumnByTag(const std::string& tag) const {
    return controls_.grid.FindColumnByTag(tag);
}

void ResultControlsView::ClearSelection() {
    controls_.grid.ClearSelection();
}

void ResultControlsView::ScrollCellInView(int row, int column) {
    controls_.grid.ScrollCellInView(row, column);
}

void ResultControlsView::SelectRow(int row) {
    controls_.grid.SelectRange(row, row);
}

std::vector<int> ResultControlsView::GetSelectedRows() const {
    return controls_.grid.GetSelectedRows();
}

// --- tabs

int ResultControlsView::TabCount() const {
    return controls_.tabs.TabCount();
}

int ResultControlsView::SelectedTab() const {
    return controls_.tabs.SelectedTab();
}

void ResultControlsView::AddTab(const std::string& label) {
    controls_.tabs.AddTab(label);
}

void ResultControlsView::SelectTab(int tab) {
    controls_.tabs.SelectTab(tab);
}

void ResultControlsView::RemoveTab(int tab) {
    controls_.tabs.RemoveTab(tab);
}

// --- what stands beside them

int ResultControlsView::SelectedScope() const {
    return controls_.scope.currentIndex();
}

void ResultControlsView::SelectScope(int scope) {
    const QSignalBlocker quiet(controls_.scope);
    controls_.scope.setCurrentIndex(scope);
}

void ResultControlsView::SetNextEnabled(bool enabled) {
    controls_.next.setEnabled(enabled);
}

void ResultControlsView::ShowCounts(int total, int received) {
    controls_.progress.SetRange(0, total);
    controls_.progress.SetPos(received);
    controls_.total.setText(QString::number(total));
    controls_.received.setText(QString::number(received));
}

void ResultControlsView::SetCodeList(const std::string& title, const std::vector<std::string>& codes) {
    controls_.codeList.SetCodes(title, codes);
}

void ResultControlsView::ShowNoResultNotice() {
    ShowResultNotice(controls_.screen, questions_, clock_);
}

}  // namespace jogeon
