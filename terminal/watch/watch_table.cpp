#include "terminal/watch/watch_table.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include "screen/palette/colors_qt.h"
#include "terminal/look/list_look.h"

namespace jogeon::terminal {
namespace {

constexpr int kHeaderPadding = 9;  // pixels beyond the text's height
constexpr int kLeastColumn = 36;

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
    LookLikeList(*this);
    setSelectionMode(SingleSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // columns don't jump when the table fills
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumSectionSize(kLeastColumn);
    SetHeights();
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

void WatchTable::SetHeights() {
    FitRows(*this);
    horizontalHeader()->setFixedHeight(fontMetrics().height() + kHeaderPadding);
}

void WatchTable::RefreshColors() {
    TakeListColors(*this);
}

void WatchTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) SetHeights();
}

void WatchTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (emptyText_.isEmpty() || (model() && model()->rowCount() > 0)) return;
    QPainter painter(viewport());
    painter.setPen(ToQColor(Color::ControlFaintText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

}  // namespace jogeon::terminal
