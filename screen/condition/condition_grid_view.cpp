#include "screen/condition/condition_grid_view.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>
#include <algorithm>
#include <iterator>

#include "screen/fbgrid/fb_grid_geometry.h"
#include "screen/palette/colors.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

struct ColumnSpec {
    const char* header;
    int width;  // pixels
    const char* button;
};

constexpr ColumnSpec kColumns[] = {{"√", 22, ""},  {"지표", 28, ""},  {"내용", 386, ""},
                                   {"값", 20, ""}, {"삭제", 30, "X"}, {"▲", 14, "▲"},
                                   {"▼", 14, "▼"}, {"↑", 14, "↑"},    {"↓", 14, "↓"}};
static_assert(std::size(kColumns) == kConditionColumns);

void SetCheck(CCell& cell, int checked) {
    cell.state = CCell::kCheck;
    cell.format = CCell::kCentre;
    cell.check = checked ? CCell::kOn : CCell::kOff;
}

void SetText(CCell& cell, const std::string& text, std::uint32_t format, std::uint32_t state = 0) {
    cell.text = text;
    cell.format = format;
    cell.state = state;
}

void FillRow(CRow& row, const CIndexInfo& condition) {
    SetCheck(row[kColumnChecked], condition.m_bChecked);
    SetText(row[kColumnLetter], std::string(1, condition.m_chLetter), CCell::kCentre);
    SetText(row[kColumnContent], condition.GetDescription(), CCell::kLeft);
    SetCheck(row[kColumnValue], condition.m_bShowValue);
    for (int col = kColumnDelete; col < kConditionColumns; ++col) {
        SetText(row[col], ToCp949(kColumns[col].button), CCell::kCentre, CCell::kButton);
    }
}

}  // namespace

// --- the cells

void ConditionCells::keyPressEvent(QKeyEvent* event) {
    for (const ListCommand& command : commands) {
        if (command.key == event->keyCombination()) return command.run();
    }
    const int before = GetFocusedCellID().row;
    CFBGrid::keyPressEvent(event);
    TellRowReached(before);
}

void ConditionCells::TellRowReached(int before) {
    const int row = GetFocusedCellID().row;
    if (row != before && row > 0 && onRowReached) onRowReached(row);
}

// A press of the right button moves no focus, so the row under the pointer gets it first.
void ConditionCells::contextMenuEvent(QContextMenuEvent* event) {
    const CCellID cell = Geometry().GetCellFromPt({event->x(), event->y()}, false);
    if (event->reason() == QContextMenuEvent::Mouse && cell.row > 0) {
        const int before = GetFocusedCellID().row;
        SetCellFocus(cell.row, kColumnContent, true, true);
        TellRowReached(before);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const ListCommand& command : commands) {
        const QString key = QKeySequence(command.key).toString(QKeySequence::NativeText);
        menu->addAction(QString::fromUtf8(command.text) + '\t' + key, this, command.run);
    }
    menu->popup(event->globalPos());
}

bool ConditionCells::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (ShowWholeText(help->pos(), help->globalPos())) return true;
    }
    return CFBGrid::viewportEvent(event);
}

bool ConditionCells::ShowWholeText(QPoint position, QPoint globalPosition) {
    const CCellID cell = Geometry().GetCellFromPt({position.x(), position.y()}, false);
    if (cell.row < 1 || cell.col != kColumnContent) return false;
    const QString text = ToQString(GetCell(cell.row, cell.col).text);
    if (fontMetrics().horizontalAdvance(text) < GetColWidth(kColumnContent)) return false;
    QToolTip::showText(globalPosition, "<p>" + text.toHtmlEscaped() + "</p>", viewport());
    return true;
}

// --- the grid

ConditionGrid::ConditionGrid(int id, QWidget* parent) : QWidget(parent), cells_(this) {
    cells_.Create(rect(), this, id);
    cells_.setFrameStyle(QFrame::Panel | QFrame::Plain);
    cells_.FixScrollBar(false, true);
    cells_.SetDragAndDropColumn(kColumnContent);
    setFocusProxy(&cells_);
    MakeHeader();
    RefreshColors();
}

void ConditionGrid::LinkEditor(ConditionEditor& editor) {
    editor_ = &editor;
    MakeCommands();
    cells_.onRowReached = [this](int row) { editor_->OnCellPressed(row, kColumnContent); };
}

void ConditionGrid::MakeHeader() {
    for (const ColumnSpec& column : kColumns) cells_.AddColumn(ToCp949(column.header), column.width);
}

// In the order of the menu.
void ConditionGrid::MakeCommands() {
    const auto onButton = [this](int col) {
        return [this, col] { editor_->OnButtonPressed(FocusedRow(), col); };
    };
    const auto onHeader = [this](int col) { return [this, col] { editor_->OnHeaderPressed(col); }; };
    const auto onCell = [this](int col) {
        return [this, col] { editor_->OnCellPressed(FocusedRow(), col); };
    };
    cells_.commands = {
        {"조건 선택/해제", Qt::Key_Space, onCell(kColumnChecked)},
        {"지표값 보기/숨기기", Qt::CTRL | Qt::Key_Space, onCell(kColumnValue)},
        {"위로", Qt::ALT | Qt::Key_Up, onButton(kColumnUp)},
        {"아래로", Qt::ALT | Qt::Key_Down, onButton(kColumnDown)},
        {"맨 위로", Qt::ALT | Qt::Key_Home, onButton(kColumnFirst)},
        {"맨 아래로", Qt::ALT | Qt::Key_End, onButton(kColumnLast)},
        {"조건 삭제", Qt::Key_Delete, onButton(kColumnDelete)},
        {"전체 선택/해제", Qt::CTRL | Qt::Key_A, onHeader(kColumnChecked)},
        {"지표 문자 재정렬", Qt::CTRL | Qt::Key_R, onHeader(kColumnLetter)},
        {"전체 삭제", Qt::CTRL | Qt::Key_Delete, onHeader(kColumnDelete)},
    };
}

void ConditionGrid::Fill(const ConditionList& conditions) {
    cells_.SetRowCnt_NoRedraw(1);
    cells_.SetRowCnt_NoRedraw(1 + static_cast<int>(conditions.size()));
    int row = 0;
    for (const auto& condition : conditions) FillRow(cells_[++row], *condition);
    cells_.viewport()->update();
}

void ConditionGrid::UpdateRow(int row, const CIndexInfo& condition) {
    FillRow(cells_[row], condition);
    cells_.InvalidateRow(row);
}

void ConditionGrid::FocusRow(int row) {
    cells_.SetFocusRow(row, kColumnContent);
}

void ConditionGrid::MarkRow(int row) {
    PaintLetter(row, ColorOf(Color::SequenceMark), ColorOf(Color::SequenceMarkText));
}

void ConditionGrid::ClearMarks() {
    for (int row = 1; row < cells_.GetRowCnt(); ++row) {
        PaintLetter(row, fbcolour::kWindow, fbcolour::kWindowText);
    }
}

void ConditionGrid::PaintLetter(int row, FBColour back, FBColour text) {
    CCell& letter = cells_.GetCell(row, kColumnLetter);
    letter.backColour = back;
    letter.textColour = text;
    cells_.InvalidateCell(row, kColumnLetter);
}

// A marked cell keeps its mark.
void ConditionGrid::RefreshColors() {
    cells_.SetFixedCellColor(ColorOf(Color::GridHeaderBack));
    for (int row = 1; row < cells_.GetRowCnt(); ++row) {
        if (cells_.GetCell(row, kColumnLetter).backColour != fbcolour::kWindow) MarkRow(row);
    }
    cells_.viewport()->update();
}

bool ConditionGrid::event(QEvent* event) {
    if (event->type() != FBGridNotify::EventType()) return QWidget::event(event);
    if (editor_) OnNotify(static_cast<const FBGridNotify&>(*event));
    return true;
}

void ConditionGrid::resizeEvent(QResizeEvent*) {
    cells_.setGeometry(rect());
    FitContent();
}

// What the columns leave beside the scroll bar is the descriptions'.
void ConditionGrid::FitContent() {
    int others = 0;
    for (int col = 0; col < kConditionColumns; ++col) {
        if (col != kColumnContent) others += cells_.GetColWidth(col);
    }
    const int room = cells_.maximumViewportSize().width() - others;
    cells_.SetColWidth(kColumnContent, std::max(room, kColumns[kColumnContent].width));
}

void ConditionGrid::OnNotify(const FBGridNotify& notify) {
    const CCellID focused = cells_.GetFocusedCellID();
    switch (notify.code) {
        case FBGridNotify::kEnterKey:
            return OnEnter(focused);
        case FBGridNotify::kCheckToggled:
            // The grid has turned its box already; the condition follows.
            return editor_->OnCellPressed(focused.row, focused.col);
        case FBGridNotify::kButtonPressed:
            return editor_->OnButtonPressed(notify.row, notify.col);
        case FBGridNotify::kHeaderPressed:
            return editor_->OnHeaderPressed(notify.col);
        case FBGridNotify::kCellPressed:
            return editor_->OnCellPressed(notify.row, notify.col);
        case FBGridNotify::kDoubleClicked:
            return editor_->OnDoubleClicked(focused.row, focused.col);
        case FBGridNotify::kRowDropped:
            return editor_->OnRowDropped(notify.row, notify.col);
        default:
            return;
    }
}

// On a button it presses it, elsewhere it selects the condition; a check box has been turned by the grid.
void ConditionGrid::OnEnter(CCellID cell) {
    if (cell.col >= kColumnDelete) {
        editor_->OnButtonPressed(cell.row, cell.col);
    } else if (cell.col == kColumnLetter || cell.col == kColumnContent) {
        editor_->OnCellPressed(cell.row, cell.col);
    }
}

}  // namespace jogeon
