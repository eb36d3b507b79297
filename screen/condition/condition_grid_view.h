// The condition grid: one row a condition, with its check boxes and buttons.
//
// It shows the list and hands every event to the condition editor; it changes no condition. Rows count from
// 1, the header is row 0.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "screen/condition/condition_editor.h"
#include "screen/fbgrid/fb_grid_widget.h"

namespace jogeon {

// A command on the focused row or on the whole list, by key and in the list's menu.
struct ListCommand {
    const char* text;  // UTF-8
    QKeyCombination key;
    std::function<void()> run;
};

// The cells. Beyond what every grid does, a key, the wheel or the right button that brings the focus to
// another row selects its condition, the keys of the list's commands work, and a description that is cut
// shows whole in a tooltip.
class ConditionCells : public CFBGrid {
    Q_OBJECT

public:
    explicit ConditionCells(QWidget* parent) : CFBGrid(parent) {}

    std::function<void(int row)> onRowReached;
    std::vector<ListCommand> commands;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void TellRowReached(int before);
    bool ShowWholeText(QPoint position, QPoint globalPosition);
};

class ConditionGrid : public QWidget {
    Q_OBJECT

public:
    // `id` is the control number of the grid of cells in it.
    explicit ConditionGrid(int id, QWidget* parent = nullptr);

    // Where the events go, once; the editor outlives the grid's events.
    void LinkEditor(ConditionEditor& editor);

    void Fill(const ConditionList& conditions);
    void UpdateRow(int row, const CIndexInfo& condition);
    void FocusRow(int row);
    int FocusedRow() const { return cells_.GetFocusedCellID().row; }

    // Marks the letter of a row as one that the sequential search has reached, by its background and, for the
    // focused row, which has another, by its text; and takes all marks away.
    void MarkRow(int row);
    void ClearMarks();

    // A colour number, red in the low byte.
    void SetLineColor(std::uint32_t color) { cells_.SetGridLine(color); }

    void RefreshColors();  // after a change of the colour table

    // The grid itself, for whoever saves it as a sheet.
    CFBGrid& Cells() { return cells_; }

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintLetter(int row, FBColour back, FBColour text);
    void MakeHeader();
    void FitContent();
    void MakeCommands();
    void OnNotify(const FBGridNotify& notify);
    void OnEnter(CCellID cell);

    ConditionCells cells_;
    ConditionEditor* editor_ = nullptr;
};

}  // namespace jogeon
