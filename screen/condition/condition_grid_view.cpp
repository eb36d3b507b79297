#include "screen/condition/condition_grid_view.h"

#include <QHeaderView>

#include "screen/palette/colors_qt.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

struct ColumnSpec {
    const char* header;
    int width;  // pixels
};

enum { kChecked, kLetter, kContent, kValue };

constexpr ColumnSpec kColumns[] = {{"√", 26}, {"지표", 34}, {"내용", 456}, {"값", 26}};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));
constexpr int kRowHeight = 20;

QTableWidgetItem* MakeItem(const QString& text, Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment);
    return item;
}

QString Tick(int set) {
    return set ? QStringLiteral("✓") : QString();
}

}  // namespace

ConditionGrid::ConditionGrid(QWidget* parent) : QTableWidget(0, kColumnCount, parent) {
    for (int column = 0; column < kColumnCount; ++column) {
        setHorizontalHeaderItem(column,
                                MakeItem(QString::fromUtf8(kColumns[column].header), Qt::AlignCenter));
        setColumnWidth(column, kColumns[column].width);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(kContent, QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(10);
    horizontalHeader()->setFixedHeight(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ConditionGrid::Fill(const std::vector<std::unique_ptr<CIndexInfo>>& conditions) {
    setRowCount(static_cast<int>(conditions.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const CIndexInfo& condition = *conditions[static_cast<std::size_t>(row)];
        const QString text = QString::fromStdString(ToUtf8(condition.GetDescription()));
        setItem(row, kChecked, MakeItem(Tick(condition.m_bChecked), Qt::AlignCenter));
        setItem(row, kLetter, MakeItem(QString(QLatin1Char(condition.m_chLetter)), Qt::AlignCenter));
        setItem(row, kContent, MakeItem(text, Qt::AlignLeft | Qt::AlignVCenter));
        setItem(row, kValue, MakeItem(Tick(condition.m_bShowValue), Qt::AlignCenter));
        item(row, kContent)->setToolTip(text);
    }
}

void ConditionGrid::FocusRow(int row) {
    setCurrentCell(row - 1, kContent);
}

void ConditionGrid::ClearMarks() {
    for (int row = 0; row < rowCount(); ++row) item(row, kLetter)->setBackground(QBrush());
}

void ConditionGrid::SetLineColor(std::uint32_t color) {
    setStyleSheet(QStringLiteral("QTableView { gridline-color: %1; }").arg(ToQColor(color).name()));
}

}  // namespace jogeon
