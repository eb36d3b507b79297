#include "screen/panes/menu_tree_pane.h"

#include "screen/files/data_paths.h"
#include "screen/host/window_messages_qt.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr char kTreeName[] = "21001";
constexpr char kSectorClass[] = "0504";
constexpr int kSetRole = Qt::UserRole;  // a node's place in its root's list of sets

QTreeWidgetItem* AddRoot(QTreeWidget& tree, const char* text) {
    auto* root = new QTreeWidgetItem(&tree, {QString::fromUtf8(text)});
    QFont bold = root->font(0);
    bold.setBold(true);
    root->setFont(0, bold);
    root->setExpanded(true);
    return root;
}

}  // namespace

CMenuTreeView::CMenuTreeView(QWidget* parent)
    : QWidget(parent),
      services_(host::Installed()),
      tree_(this),
      userRoot_(AddRoot(tree_, "사용자저장조건")),
      vendorRoot_(AddRoot(tree_, "노빅조건")) {
    host::RegisterWindow(*this);
    tree_.setObjectName(kTreeName);
    tree_.setHeaderHidden(true);
    tree_.setIndentation(14);
    tree_.setExpandsOnDoubleClick(true);
    connect(&tree_, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { OnDoubleClick(item); });
}

CMenuTreeView::~CMenuTreeView() = default;

void CMenuTreeView::ShowSavedConditions() {
    host::LinkStore& links = *services_.links;
    userSets_ =
        LoadSavedConditions(SavedConditionPath(GetHomePath(links), GetUserId(links)), catalogue_).sets;
    FillRoot(*userRoot_, userSets_);
    LabelUserSets();
}

void CMenuTreeView::ShowNumbers(bool shown) {
    if (numbersShown_ == shown) return;
    numbersShown_ = shown;
    LabelUserSets();
}

void CMenuTreeView::ClearSelection() {
    tree_.clearSelection();
}

bool CMenuTreeView::event(QEvent* event) {
    const host::MessageEvent* message = host::AsMessage(event);
    if (!message) return QWidget::event(event);
    if (message->number == host::kInitialUpdate) LoadCatalogue();
    return true;
}

void CMenuTreeView::resizeEvent(QResizeEvent*) {
    tree_.setGeometry(rect());
}

void CMenuTreeView::LoadCatalogue() {
    std::map<std::string, std::vector<std::string>> lists{{kSectorClass, {}}};
    services_.codeLists->Fill(lists);
    const std::filesystem::path home = GetHomePath(*services_.links);
    catalogue_.Load(home / kSystemFolder, lists[kSectorClass]);
    vendorSets_ = LoadVendorConditions(VendorConditionPath(home), catalogue_);
    // What is left of a set of the firm would find other stocks under its name.
    std::erase_if(vendorSets_, [](const auto& set) { return !set->m_bWhole; });
    FillRoot(*vendorRoot_, vendorSets_);
}

void CMenuTreeView::FillRoot(QTreeWidgetItem& root, const SavedSets& sets) {
    qDeleteAll(root.takeChildren());
    for (std::size_t i = 0; i < sets.size(); ++i) {
        auto* node = new QTreeWidgetItem(&root, {QString::fromStdString(ToUtf8(sets[i]->Name))});
        node->setData(0, kSetRole, static_cast<int>(i));
        node->setToolTip(0, node->text(0));
    }
}

void CMenuTreeView::LabelUserSets() {
    for (int i = 0; i < userRoot_->childCount(); ++i) {
        const CSavedIndexInfo& set = *userSets_[static_cast<std::size_t>(i)];
        const std::string label = numbersShown_ ? "[" + set.m_strKey + "]" + set.Name : set.Name;
        userRoot_->child(i)->setText(0, QString::fromStdString(ToUtf8(label)));
    }
}

void CMenuTreeView::OnDoubleClick(QTreeWidgetItem* item) {
    const QTreeWidgetItem* root = item->parent();
    if (!root || !screen_) return;
    const SavedSets& sets = root == userRoot_ ? userSets_ : vendorSets_;
    screen_->OnPickSaved(sets[static_cast<std::size_t>(item->data(0, kSetRole).toInt())]);
}

}  // namespace jogeon
