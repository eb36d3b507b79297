#include "terminal/watch/watch_table.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "screen/palette/colors_qt.h"
#include "screen/palette/header_style_qt.h"

namespace jogeon::terminal {
namespace {

constexpr int kRowPadding = 6;  // pixels beyond the text's height
constexpr int kHeaderPadding = 9;
constexpr int kLeastColumn = 36;

// A price keeps its colour in the row that is selected.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->palette.setColor(QPalette::HighlightedText, option->palette.color(QPalette::Text));
        option->state &= ~QStyle::State_HasFocus;  // the row is what is chosen
    }
};

}  // namespace

QVariant AlignmentOf(Placing placing) {
    const Qt::Alignment across = placing == Placing::Text     ? Qt::AlignLeft
                                 : placing == Placing::Number ? Qt::AlignRight
                                                              : Qt::AlignHCenter;
    return QVariant::fromValue(across | Qt::AlignVCenter);
}

QVariant MoveColor(double percent) {
    if (percent > 0) return ToQColor(Color::GridRise);
    return percent < 0 ? ToQColor(Color::GridFall) : QVariant();
}

WatchTable::WatchTable(QWidget* parent) : QTableView(parent) {
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // columns don't jump when the table fills
    verticalHeader()->setVisible(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumSectionSize(kLeastColumn);
    SetRowHeight();
    RefreshColors();
}

void WatchTable::SetColumns(QAbstractItemModel& model, const std::vector<int>& widths) {
    setModel(&model);
    for (std::size_t i = 0; i < widths.size(); ++i) setColumnWidth(static_cast<int>(i), widths[i]);
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
        if (first == 0) KeepPlace(last + 1);
    });
}

// Who has scrolled down to read isn't pushed on by rows that come in at the top.
void WatchTable::KeepPlace(int inserted) {
    QScrollBar& bar = *verticalScrollBar();
    const int place = bar.value();
    if (place == 0) return;
    updateGeometries();
    bar.setValue(place + inserted);
}

void WatchTable::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

void WatchTable::SetRowHeight() {
    const int text = fontMetrics().height();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(text + kRowPadding);
    horizontalHeader()->setFixedHeight(text + kHeaderPadding);
}

void WatchTable::RefreshColors() {
    horizontalHeader()->setStyleSheet(HeaderStyle());
    QPalette colors = palette();
    colors.setColor(QPalette::Base, ToQColor(Color::GridOddRow));
    colors.setColor(QPalette::AlternateBase, ToQColor(Color::GridEvenRow));
    colors.setColor(QPalette::Text, ToQColor(Color::GridText));
    colors.setColor(QPalette::Highlight, ToQColor(Color::GridSelectedRow));
    setPalette(colors);
    viewport()->update();
}

void WatchTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) SetRowHeight();
}

void WatchTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (emptyText_.isEmpty() || (model() && model()->rowCount() > 0)) return;
    QPainter painter(viewport());
    painter.setPen(ToQColor(Color::ControlFaintText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

}  // namespace jogeon::terminal
