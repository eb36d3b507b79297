#include "screen/panes/menu_tree_pane.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QShortcut>

#include "screen/files/data_paths.h"
#include "screen/files/xls_writer.h"
#include "screen/host/window_messages_qt.h"
#include "screen/panes/tree_item_qt.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr char kSectorClass[] = "0504";

// Shows that the program is at work, until it goes out of scope.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

bool IsEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

CMenuTreeView::CMenuTreeView(QWidget* parent)
    : QWidget(parent),
      services_(host::Installed()),
      form_(this),
      m_hUserRoot(AddRoot("사용자저장조건", kImageUserRoot)),
      m_hVendorRoot(AddRoot("노빅조건", kImageVendorRoot)) {
    host::RegisterWindow(*this);
    WireControls();
    WireKeys();
}

CMenuTreeView::~CMenuTreeView() = default;

void CMenuTreeView::WireControls() {
    connect(&form_.find, &QToolButton::clicked, this, [this] { OnFind(); });
    connect(&form_.findText, &QLineEdit::returnPressed, this, [this] { OnFind(); });
    connect(&form_.previous, &QToolButton::clicked, this, [this] {
        if (find_.Previous()) ShowHit();
    });
    connect(&form_.next, &QToolButton::clicked, this, [this] {
        if (find_.Next()) ShowHit();
    });
    connect(&form_.tabs, &QTabBar::currentChanged, this, [this](int tab) { OnTab(tab); });
    connect(&form_.save, &QPushButton::clicked, this, [this] { OnSave(); });
    for (QTreeWidget* view : {&form_.tree, static_cast<QTreeWidget*>(&form_.list)}) {
        connect(view, &QTreeWidget::itemClicked, this,
                [this](QTreeWidgetItem* shown) { OnClick(NodeOf(*shown)); });
        connect(view, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* shown) {
            if (shown) OnDoubleClick(NodeOf(*shown));  // none beside the columns
        });
        view->installEventFilter(this);
    }
}

void CMenuTreeView::WireKeys() {
    const auto on = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    on(QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
        form_.findText.setFocus();
        form_.findText.selectAll();
    });
    on(QKeySequence(Qt::Key_F3), [this] { form_.next.click(); });
    on(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { form_.previous.click(); });
}

TreeItem* CMenuTreeView::AddRoot(const char* text, int image) {
    auto* root = new TreeItem(ToCp949(text), image);
    form_.tree.addTopLevelItem(root);
    return root;
}

// The catalogue's roots stand between the user's sets and the firm's.
void CMenuTreeView::LoadCatalogue() {
    std::map<std::string, std::vector<std::string>> lists{{kSectorClass, {}}};
    services_.codeLists->Fill(lists);
    const std::filesystem::path home = GetHomePath(*services_.links);
    catalogue_.Load(home / kSystemFolder, lists[kSectorClass]);
    form_.tree.insertTopLevelItems(1, MakeCatalogueItems(catalogue_));
    for (auto& set : LoadVendorConditions(VendorConditionPath(home), catalogue_)) {
        // What is left of a set of the firm would find other stocks under its name.
        if (!set->m_bWhole) continue;
        auto* node = new TreeItem(set->Name, kImageSavedSet);
        node->saved = std::move(set);
        m_hVendorRoot->addChild(node);
    }
    QFont bold = form_.tree.font();
    bold.setBold(true);
    for (int i = 0; i < form_.tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* root = form_.tree.topLevelItem(i);
        root->setFont(0, bold);
        root->setExpanded(true);
    }
}

void CMenuTreeView::ClearSelection() {
    form_.tree.clearSelection();
    form_.list.clearSelection();
}

void CMenuTreeView::RefreshColors() {
    form_.RefreshColors();
}

// --- picks

TreeItem& CMenuTreeView::NodeOf(QTreeWidgetItem& shown) const {
    return shown.treeWidget() == &form_.list ? FlatList::NodeOf(shown) : static_cast<TreeItem&>(shown);
}

void CMenuTreeView::OnClick(const TreeItem& node) {
    if (node.IsLeafWithData() && node.Image() != kImageGroup && node.index) OnPickIndex(*node.index);
}

// The handler may bring in a new list of sets, and with it the end of `node`.
void CMenuTreeView::OnDoubleClick(const TreeItem& node) {
    if (node.saved) {
        OnPickSaved(node.saved);
    } else {
        OnClick(node);
    }
}

void CMenuTreeView::OnPickIndex(const CIndexInfo& info) {
    if (screen_) screen_->OnPickIndex(info, catalogue_.FindFieldsByKey(info.m_strKey));
}

void CMenuTreeView::OnPickSaved(std::shared_ptr<CSavedIndexInfo> saved) {
    if (screen_) screen_->OnPickSaved(std::move(saved));
}

// --- tabs and the sheet

void CMenuTreeView::OnTab(int tab) {
    if (tab == TreeForm::kListTab && !m_bListFilled) FillList();
    form_.ShowTab(tab);
    ClearFind();
}

void CMenuTreeView::FillList() {
    const WaitCursor working;
    form_.list.Fill(AllItems(form_.tree));
    m_bListFilled = true;
}

void CMenuTreeView::OnSave() {
    const auto path = services_.questions->AskSavePath({"Excel Worksheet Files (*.xls)", "xls"});
    if (!path) return;
    const auto warn = [this](const std::string& text) {
        services_.questions->Ask({text, "조건검색"_cp949, host::Icon::Warning, host::Buttons::Ok});
    };
    XlsWriter sheet;
    if (!sheet.Open(*path)) return warn("파일을 열 수 없습니다."_cp949);
    form_.list.WriteTo(sheet);
    if (!sheet.Close()) warn("파일을 저장할 수 없습니다."_cp949);
}

// --- events

bool CMenuTreeView::event(QEvent* event) {
    const host::MessageEvent* message = host::AsMessage(event);
    if (!message) return QWidget::event(event);
    if (message->number == host::kInitialUpdate) LoadCatalogue();
    return true;
}

// Enter on a node does what a double click does. A key held down since the find doesn't.
bool CMenuTreeView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    QTreeWidgetItem* current = form_.Shown().currentItem();
    if (!IsEnter(key) || !current) return QWidget::eventFilter(watched, event);
    if (key.isAutoRepeat()) return true;
    if (current->childCount() > 0) current->setExpanded(!current->isExpanded());
    OnDoubleClick(NodeOf(*current));
    return true;
}

// Keys that the controls have no use for.
void CMenuTreeView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && form_.findText.hasFocus()) {
        form_.Shown().setFocus();
        return;
    }
    QWidget::keyPressEvent(event);
}

void CMenuTreeView::resizeEvent(QResizeEvent*) {
    form_.setGeometry(rect());
}

}  // namespace jogeon
