#include "terminal/settings/columns_page.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <algorithm>

#include "screen/results/grid_layout.h"
#include "screen/text/cp949_qt.h"
#include "screen/transactions/result_columns.h"
#include "terminal/look/list_look.h"

namespace jogeon::terminal {
namespace {

enum Column { kName, kWidth };
constexpr int kIndexRole = Qt::UserRole;
constexpr QSize kListSize(260, 300);  // the least, so that most columns are in sight
constexpr int kWidthPadding = 24;     // of the widths' column beyond its header

}  // namespace

ColumnsPage::ColumnsPage(QWidget* parent) : QWidget(parent) {
    SetUpList();
    width_.setObjectName("width");
    width_.setRange(kMinColumnWidth, kMaxColumnWidth);
    width_.setSuffix(tr(" 픽셀"));
    connect(&width_, &QSpinBox::valueChanged, this, [this](int width) {
        if (QTreeWidgetItem* item = list_.currentItem()) item->setData(kWidth, Qt::DisplayRole, width);
    });

    auto* side = new QVBoxLayout;
    side->addWidget(AddMove(tr("맨 위로"), "first", [](int, int) { return 0; }));
    side->addWidget(AddMove(tr("위로"), "up", [](int row, int) { return std::max(row - 1, 0); }));
    side->addWidget(AddMove(tr("아래로"), "down", [](int row, int last) { return std::min(row + 1, last); }));
    side->addWidget(AddMove(tr("맨 아래로"), "last", [](int, int last) { return last; }));
    side->addSpacing(12);
    auto* label = new QLabel(tr("열 너비"));
    label->setBuddy(&width_);
    side->addWidget(label);
    side->addWidget(&width_);
    side->addStretch();

    auto* note = new QLabel(tr("바꾸면 결과를 지우고, 다음 검색부터 이 열들을 요청합니다."));
    note->setWordWrap(true);
    auto* layout = new QGridLayout(this);
    layout->addWidget(&list_, 0, 0);
    layout->addLayout(side, 0, 1);
    layout->addWidget(note, 1, 0, 1, 2);
}

void ColumnsPage::SetUpList() {
    list_.setObjectName("columns");
    list_.setHeaderLabels({tr("열"), tr("너비")});
    list_.setPalette(ListPalette());
    LookLikeList(list_);
    list_.setDragDropMode(QAbstractItemView::InternalMove);
    list_.header()->setStretchLastSection(false);
    list_.header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    list_.header()->setSectionResizeMode(kWidth, QHeaderView::Fixed);
    list_.header()->resizeSection(kWidth, fontMetrics().horizontalAdvance(tr("너비")) + kWidthPadding);
    list_.headerItem()->setTextAlignment(kWidth, Qt::AlignRight | Qt::AlignVCenter);
    list_.setMinimumSize(kListSize);
    connect(&list_, &QTreeWidget::currentItemChanged, this, [this] { ShowCurrent(); });
}

QPushButton* ColumnsPage::AddMove(const QString& text, const char* name, int (*target)(int row, int last)) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, target] {
        const int row = list_.indexOfTopLevelItem(list_.currentItem());
        if (row >= 0) MoveCurrent(target(row, list_.topLevelItemCount() - 1));
    });
    return button;
}

void ColumnsPage::MoveCurrent(int target) {
    QTreeWidgetItem* item = list_.takeTopLevelItem(list_.indexOfTopLevelItem(list_.currentItem()));
    list_.insertTopLevelItem(target, item);
    list_.setCurrentItem(item);
}

void ColumnsPage::ShowCurrent() {
    const QTreeWidgetItem* item = list_.currentItem();
    width_.setEnabled(item != nullptr);
    if (item) width_.setValue(item->data(kWidth, Qt::DisplayRole).toInt());
}

QTreeWidgetItem* ColumnsPage::MakeItem(int index) const {
    const host::GridColumnChoice& column = columns_[static_cast<std::size_t>(index)];
    auto* item = new QTreeWidgetItem;
    item->setText(kName, ToQString(column.name));
    item->setData(kWidth, Qt::DisplayRole, column.width);
    item->setTextAlignment(kWidth, Qt::AlignRight | Qt::AlignVCenter);
    item->setData(kName, kIndexRole, index);
    const bool isName = column.fid == kNameColumnFid;
    item->setCheckState(kName, column.shown || isName ? Qt::Checked : Qt::Unchecked);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    if (!isName) flags |= Qt::ItemIsUserCheckable;
    item->setFlags(flags);
    if (isName) item->setToolTip(kName, tr("종목명은 언제나 표시합니다."));
    return item;
}

void ColumnsPage::Show(std::vector<host::GridColumnChoice> columns) {
    columns_ = std::move(columns);
    list_.clear();
    for (int index = 0; index < std::ssize(columns_); ++index) {
        list_.addTopLevelItem(MakeItem(index));
        LookLikeRow(*list_.topLevelItem(index));
    }
    list_.setCurrentItem(list_.topLevelItem(0));
    ShowCurrent();
}

std::vector<host::GridColumnChoice> ColumnsPage::Choices() const {
    std::vector<host::GridColumnChoice> choices;
    for (int row = 0; row < list_.topLevelItemCount(); ++row) {
        const QTreeWidgetItem& item = *list_.topLevelItem(row);
        choices.push_back(columns_[item.data(kName, kIndexRole).toUInt()]);
        choices.back().shown = item.checkState(kName) == Qt::Checked;
        choices.back().width = item.data(kWidth, Qt::DisplayRole).toInt();
    }
    return choices;
}

}  // namespace jogeon::terminal
