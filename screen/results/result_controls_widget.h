// The controls of the screen that show results, as the result flow drives them.
//
// Everything is borrowed from the screen, which creates the controls and outlives this.
#pragma once

#include <QWidget>

#include "screen/host/services.h"
#include "screen/results/result_view_interface.h"

class QAbstractButton;
class QComboBox;
class QLabel;

namespace jogeon {

class CNVTab;
class CodeListButton;
class ProgressLabel;
class ResultGrid;

struct ResultControls {
    QWidget& screen;  // what the notice stands over
    ResultGrid& grid;
    CNVTab& tabs;
    QComboBox& scope;
    QAbstractButton& next;
    CodeListButton& codeList;
    QLabel& total;
    QLabel& received;
    ProgressLabel& progress;
};

class ResultControlsView : public ResultView {
public:
    ResultControlsView(const ResultControls& controls, host::Questions& questions, host::Clock& clock);

    int GetColCount() const override;
    bool IsColHidden(int column) const override;
    void HideCols(int first, int last, bool hide) override;
    void SetColHeader(int column, const std::string& text) override;
    std::string ColumnTag(int column) const override;
    void SetColumnTag(int column, const std::string& tag) override;

    void LockUpdate(bool on) override;
    void SetRowCount(int rows) override;
    void SetRows(const RowTable& rows, std::size_t begin, std::size_t end,
                 std::span<const int> gridColumns) override;
    void RefreshRows(int firstRow) override;
    void Redraw() override;
    void EmptyGrid() override;
    int GetRowCount() const override;
    std::string GetValue(int row, int column) const override;
    int FindColumnByTag(const std::string& tag) const override;

    void ClearSelection() override;
    void ScrollCellInView(int row, int column) override;
    void SelectRow(int row) override;
    std::vector<int> GetSelectedRows() const override;

    int TabCount() const override;
    int SelectedTab() const override;
    void AddTab(const std::string& label) override;
    void SelectTab(int tab) override;
    void RemoveTab(int tab) override;

    int SelectedScope() const override;
    void SelectScope(int scope) override;
    void SetNextEnabled(bool enabled) override;
    void ShowCounts(int total, int received) override;
    void SetCodeList(const std::string& title, const std::vector<std::string>& codes) override;
    void ShowNoResultNotice() override;

private:
    ResultControls controls_;
    host::Questions& questions_;
    host::Clock& clock_;
};

}  // namespace jogeon
