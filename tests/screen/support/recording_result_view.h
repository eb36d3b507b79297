// A result window without a window: a grid of texts, tabs and counts, and the order of what was done to them.
#pragma once

#include <string>
#include <vector>

#include "screen/results/result_view_interface.h"

namespace jogeon::test {

class RecordingResultView : public ResultView {
public:
    struct Column {
        std::string tag;
        bool hidden = false;
        std::string header = {};
    };

    int GetColCount() const override { return static_cast<int>(columns.size()); }
    bool IsColHidden(int column) const override { return At(column).hidden; }
    void HideCols(int first, int last, bool hide) override {
        for (int column = first; column <= last; ++column) At(column).hidden = hide;
    }
    void SetColHeader(int column, const std::string& text) override { At(column).header = text; }
    std::string ColumnTag(int column) const override { return At(column).tag; }
    void SetColumnTag(int column, const std::string& tag) override { At(column).tag = tag; }

    void LockUpdate(bool on) override { log.push_back(on ? "lock" : "unlock"); }
    void SetRowCount(int count) override {
        log.push_back("rows " + std::to_string(count));
        cells.resize(static_cast<std::size_t>(count - 1), std::vector<std::string>(columns.size()));
    }
    void SetRows(const RowTable& rows, std::size_t begin, std::size_t end,
                 std::span<const int> gridColumns) override {
        log.push_back("write " + std::to_string(begin) + "-" + std::to_string(end));
        for (std::size_t row = begin; row < end; ++row) {
            for (std::size_t column = 0; column < gridColumns.size(); ++column) {
                if (gridColumns[column] == 0) continue;
                cells.at(row).at(static_cast<std::size_t>(gridColumns[column]) - 1) = rows.Cell(row, column);
            }
        }
    }
    void RefreshRows(int firstRow) override { log.push_back("refresh " + std::to_string(firstRow)); }
    void Redraw() override { log.push_back("redraw"); }
    void EmptyGrid() override {
        log.push_back("empty");
        cells.clear();
    }
    int GetRowCount() const override { return static_cast<int>(cells.size()) + 1; }
    std::string GetValue(int row, int column) const override {
        const bool inside = row >= 2 && row <= GetRowCount() && column >= 1 && column <= GetColCount();
        return inside ? cells[static_cast<std::size_t>(row) - 2][static_cast<std::size_t>(column) - 1] : "";
    }
    int FindColumnByTag(const std::string& tag) const override {
        for (int column = 1; column <= GetColCount(); ++column) {
            if (At(column).tag == tag) return column;
        }
        return 0;
    }

    void ClearSelection() override {
        log.push_back("unselect");
        selectedRows.clear();
    }
    void ScrollCellInView(int row, int column) override {
        log.push_back("scroll " + std::to_string(row) + "," + std::to_string(column));
    }
    void SelectRow(int row) override {
        log.push_back("select " + std::to_string(row));
        selectedRows = {row};
    }
    std::vector<int> GetSelectedRows() const override { return selectedRows; }

    int TabCount() const override { return static_cast<int>(tabs.size()); }
    int SelectedTab() const override { return selectedTab; }
    void AddTab(const std::string& label) override {
        tabs.push_back(label);
        if (selectedTab < 0) selectedTab = 0;
    }
    void SelectTab(int tab) override { selectedTab = tab; }
    void RemoveTab(int tab) override { tabs.erase(tabs.begin() + tab); }

    int SelectedScope() const override { return scope; }
    void SelectScope(int index) override { scope = index; }
    void SetNextEnabled(bool enabled) override { nextEnabled = enabled; }
    void ShowCounts(int shownTotal, int shownReceived) override {
        total = shownTotal;
        received = shownReceived;
    }
    void SetCodeList(const std::string& title, const std::vector<std::string>& codes) override {
        codeListTitle = title;
        codeList = codes;
    }
    void ShowNoResultNotice() override { ++notices; }

    Column& At(int column) { return columns.at(static_cast<std::size_t>(column) - 1); }
    const Column& At(int column) const { return columns.at(static_cast<std::size_t>(column) - 1); }

    // The texts of the visible columns of result row `row`, joined by "|".
    std::string VisibleRow(std::size_t row) const {
        std::string text;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (columns[column].hidden) continue;
            text += (text.empty() ? "" : "|") + cells.at(row).at(column);
        }
        return text;
    }

    std::vector<Column> columns;
    std::vector<std::vector<std::string>> cells;  // result rows, without the header
    std::vector<std::string> tabs;
    std::vector<std::string> log;
    std::string codeListTitle;
    std::vector<std::string> codeList;
    std::vector<int> selectedRows;
    int selectedTab = -1;
    int scope = 0;
    int total = -1;
    int received = -1;
    int notices = 0;
    bool nextEnabled = false;
};

}  // namespace jogeon::test
