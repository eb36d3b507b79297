#include "terminal/look/list_look.h"

#include <QDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeWidget>

#include "screen/palette/colors_qt.h"
#include "screen/palette/header_style_qt.h"

namespace jogeon::terminal {
namespace {

constexpr int kRowPadding = 6;  // pixels of a row beyond its text's height

// What lists have of their own; the rest is every window's.
constexpr std::pair<QPalette::ColorRole, Color> kRoles[] = {
    {QPalette::Base, Color::GridOddRow},
    {QPalette::AlternateBase, Color::GridEvenRow},
    {QPalette::Text, Color::GridText},
    {QPalette::Highlight, Color::GridSelectedRow},
    {QPalette::HighlightedText, Color::GridText},
};

constexpr QSize kFootButton(80, 26);  // at least
constexpr int kCaptionPadding = 22;   // pixels of a button beyond its caption's width

int RowHeight(const QWidget& list) {
    return list.fontMetrics().height() + kRowPadding;
}

class ListCells : public QStyledItemDelegate {
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

QPalette ListPalette() {
    QPalette palette = QGuiApplication::palette();
    for (const auto& [role, color] : kRoles) palette.setColor(QPalette::All, role, ToQColor(color));
    palette.setColor(QPalette::Disabled, QPalette::Text, ToQColor(Color::ControlFaintText));
    return palette;
}

void LookLikeList(QTableView& table) {
    table.setItemDelegate(new ListCells(&table));
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.setCornerButtonEnabled(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setSectionsClickable(false);
    FitRows(table);
    TakeListColors(table);
}

void TakeListColors(QTableView& table) {
    table.setPalette(ListPalette());
    table.horizontalHeader()->setStyleSheet(HeaderStyle());
    table.viewport()->update();
}

void FitRows(QTableView& table) {
    table.verticalHeader()->setMinimumSectionSize(1);
    table.verticalHeader()->setDefaultSectionSize(RowHeight(table));
}

void LookLikeList(QTreeView& tree) {
    tree.setRootIsDecorated(false);
    tree.setUniformRowHeights(true);
    tree.setAlternatingRowColors(true);
    tree.setAllColumnsShowFocus(true);
    tree.header()->setSectionsMovable(false);
    tree.header()->setStyleSheet(HeaderStyle());
}

void LookLikeRow(QTreeWidgetItem& item) {
    item.setSizeHint(0, QSize(0, RowHeight(*item.treeWidget())));
}

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tooltip) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tooltip);
    button->setAccessibleName(tooltip);
    button->setAutoDefault(false);
    return button;
}

void FitToCaption(QPushButton& button) {
    button.setFixedWidth(button.fontMetrics().horizontalAdvance(button.text()) + kCaptionPadding);
}

QHBoxLayout* MakeDialogFoot(QDialog& dialog, QPushButton& ok, const QString& reject) {
    auto* other = new QPushButton(reject);
    other->setAutoDefault(false);
    ok.setDefault(true);
    QObject::connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(other, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton* button : {&ok, other}) {
        button->setMinimumSize(kFootButton);
        row->addWidget(button);
    }
    return row;
}

}  // namespace jogeon::terminal
