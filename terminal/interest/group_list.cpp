#include "terminal/interest/group_list.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "screen/text/cp949_qt.h"
#include "terminal/interest/list_order.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/look/list_look.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

constexpr int kCodeRole = Qt::UserRole;

enum Column { kName, kCount };

std::string CodeOf(const QTreeWidgetItem& item) {
    return item.data(kName, kCodeRole).toString().toStdString();
}

}  // namespace

GroupList::GroupList(PortfolioBook& book, host::Questions& questions, QWidget* parent)
    : QWidget(parent), book_(book), questions_(questions), groups_(new GroupTree) {
    MakeList();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(groups_);
    layout->addLayout(MakeButtons());
    connect(&book_, &PortfolioBook::Changed, this, &GroupList::ShowGroups);
    connect(&book_, &PortfolioBook::Failed, this, &GroupList::ShowGroups);  // a name that wasn't stored
}

void GroupList::MakeList() {
    groups_->setObjectName("groups");
    groups_->setHeaderLabels({tr("관심그룹"), tr("종목")});
    groups_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    groups_->header()->setStretchLastSection(false);
    groups_->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    groups_->header()->setSectionResizeMode(kCount, QHeaderView::ResizeToContents);
    LookLikeList(*groups_);
    connect(groups_, &QTreeWidget::itemSelectionChanged, this, &GroupList::OnSelected);
    connect(groups_, &QTreeWidget::itemDoubleClicked, this, &GroupList::RenameGroup);
    connect(groups_, &QTreeWidget::itemChanged, this, &GroupList::OnNameEdited);
    connect(groups_, &GroupTree::RowDropped, this, &GroupList::DropGroup);
    AddKey(Qt::Key_F2, &GroupList::RenameGroup);
    AddKey(Qt::Key_Delete, &GroupList::DeleteGroup);
}

void GroupList::AddKey(Qt::Key key, void (GroupList::*command)()) {
    auto* shortcut = new QShortcut(key, groups_);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, command);
}

QLayout* GroupList::MakeButtons() {
    auto* add = MakeButton("newGroup", tr("새 그룹"), tr("빈 관심그룹을 만듭니다"));
    auto* rename = MakeButton("renameGroup", tr("이름변경"), tr("관심그룹의 이름을 바꿉니다 (F2)"));
    auto* remove = MakeButton("deleteGroup", tr("삭제"), tr("관심그룹을 삭제합니다 (Delete)"));
    auto* up = MakeButton("groupUp", "▲", tr("관심그룹을 위로 옮깁니다"));
    auto* down = MakeButton("groupDown", "▼", tr("관심그룹을 아래로 옮깁니다"));
    connect(add, &QPushButton::clicked, this, &GroupList::NewGroup);
    connect(rename, &QPushButton::clicked, this, &GroupList::RenameGroup);
    connect(remove, &QPushButton::clicked, this, &GroupList::DeleteGroup);
    connect(up, &QPushButton::clicked, this, [this] { MoveGroup(-1); });
    connect(down, &QPushButton::clicked, this, [this] { MoveGroup(1); });
    buttons_ = {rename, remove, up, down};
    for (QPushButton* button : buttons_) button->setEnabled(false);
    auto* rows = new QVBoxLayout;
    for (const std::vector<QPushButton*>& buttons :
         {std::vector<QPushButton*>{add, rename}, std::vector<QPushButton*>{remove, up, down}}) {
        auto* row = new QHBoxLayout;
        for (QPushButton* button : buttons) row->addWidget(button);
        rows->addLayout(row);
    }
    return rows;
}

void GroupList::RefreshColors() {
    LookLikeList(*groups_);
}

void GroupList::Choose(const std::string& code) {
    awaited_ = code;
    if (book_.Loaded()) ShowGroups();
}

// A list that shows the groups as they are is left alone: the user may be writing a name in it.
void GroupList::ShowGroups() {
    const QScopedValueRollback showing(showing_, true);
    if (book_.FindGroup(awaited_)) chosen_ = std::exchange(awaited_, {});
    if (!ListsGroups()) ListGroups();
    for (int i = 0; i < groups_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = groups_->topLevelItem(i);
        const auto stocks = book_.Groups()[static_cast<std::size_t>(i)].stocks.size();
        item->setText(kCount, CountText(static_cast<qint64>(stocks)));
        if (CodeOf(*item) == chosen_ && item != groups_->currentItem()) groups_->setCurrentItem(item);
    }
    chosen_ = groups_->currentItem() ? CodeOf(*groups_->currentItem()) : std::string();
    for (QPushButton* button : buttons_) button->setEnabled(!chosen_.empty());
    emit Shown(chosen_, false);
}

bool GroupList::ListsGroups() const {
    const auto& groups = book_.Groups();
    if (groups_->topLevelItemCount() != static_cast<int>(groups.size())) return false;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const QTreeWidgetItem& item = *groups_->topLevelItem(static_cast<int>(i));
        if (CodeOf(item) != groups[i].code || item.text(kName) != ToQString(groups[i].name)) return false;
    }
    return true;
}

// The chosen group stays chosen; when it is gone, the one in its place is.
void GroupList::ListGroups() {
    const int place = groups_->indexOfTopLevelItem(groups_->currentItem());
    groups_->clear();
    for (const service::InterestGroup& group : book_.Groups()) {
        QTreeWidgetItem* item = groups_->AddRow({ToQString(group.name)});
        item->setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(kName, kCodeRole, QString::fromStdString(group.code));
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        LookLikeRow(*item);
        if (group.code == chosen_) groups_->setCurrentItem(item);
    }
    const int last = groups_->topLevelItemCount() - 1;
    if (!groups_->currentItem() && last >= 0)
        groups_->setCurrentItem(groups_->topLevelItem(std::clamp(place, 0, last)));
}

void GroupList::OnSelected() {
    if (showing_ || !groups_->currentItem()) return;
    awaited_.clear();
    chosen_ = CodeOf(*groups_->currentItem());
    emit Shown(chosen_, true);
}

void GroupList::OnNameEdited(QTreeWidgetItem* item) {
    if (showing_) return;
    book_.Do([code = CodeOf(*item), name = Bytes(item->text(kName))](
                 service::Portfolios& portfolios, const std::string& user) -> service::Addition {
        return {portfolios.Rename(user, code, name), {}};
    });
}

void GroupList::NewGroup() {
    const QString first = tr("새 그룹");
    QString name = first;
    for (int number = 2;; ++number) {
        const bool inUse = std::any_of(book_.Groups().begin(), book_.Groups().end(),
                                       [&](const auto& group) { return ToQString(group.name) == name; });
        if (!inUse) break;
        name = first + QLatin1Char(' ') + QString::number(number);
    }
    book_.Do([bytes = Bytes(name)](service::Portfolios& portfolios,
                                   const std::string& user) { return portfolios.Add(user, bytes, {}); },
             [this](const service::Addition& added) {
                 Choose(added.code);
                 RenameGroup();
             });
}

void GroupList::RenameGroup() {
    if (groups_->currentItem()) groups_->editItem(groups_->currentItem(), kName);
}

void GroupList::DeleteGroup() {
    const service::InterestGroup* group = book_.FindGroup(chosen_);
    if (!group) return;
    const QString question =
        tr("관심그룹 '%1'(%2종목)을 삭제하시겠습니까?").arg(ToQString(group->name)).arg(group->stocks.size());
    const std::string code = group->code;
    if (!Agrees(questions_, question, tr("관심그룹 삭제"))) return;
    book_.Do([code](service::Portfolios& portfolios, const std::string& user) -> service::Addition {
        return {portfolios.Delete(user, code), {}};
    });
}

void GroupList::MoveGroup(int by) {
    std::vector<std::string> order = Order();
    MoveWithin(order, {chosen_}, by);
    Reorder(std::move(order));
}

void GroupList::DropGroup(int place) {
    std::vector<std::string> order = Order();
    MoveTo(order, chosen_, place);
    Reorder(std::move(order));
}

std::vector<std::string> GroupList::Order() const {
    std::vector<std::string> order;
    for (const service::InterestGroup& group : book_.Groups()) order.push_back(group.code);
    return order;
}

void GroupList::Reorder(std::vector<std::string> order) {
    book_.Do([order = std::move(order)](service::Portfolios& portfolios,
                                        const std::string& user) -> service::Addition {
        return {portfolios.Reorder(user, order), {}};
    });
}

}  // namespace jogeon::terminal
