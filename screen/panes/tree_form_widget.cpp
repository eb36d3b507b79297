#include "screen/panes/tree_form_widget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "screen/palette/colors_qt.h"
#include "screen/panes/tree_icons_qt.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kMargin = 4;  // pixels
constexpr int kGap = 3;
constexpr int kControlHeight = 22;
constexpr int kIndentation = 14;
constexpr int kTabPadding = 4;  // leaves room for the counter beside the tabs

// %1 face, %2 edge, %3 text, %4 faint text, %5 accent, %6 background.
constexpr char kSheet[] = R"(
jogeon--TreeForm { background: %6; }
QToolTip { background: %1; border: 1px solid %2; color: %3; padding: 1px; }
QToolButton, QPushButton { background: %1; border: 1px solid %2; border-radius: 2px; color: %3; }
QToolButton:hover:enabled, QPushButton:hover { border-color: %5; }
QToolButton:focus, QPushButton:focus { border-color: %5; }
QToolButton:pressed, QPushButton:pressed { background: %2; }
QToolButton:disabled { color: %4; }
QLineEdit { background: %1; border: 1px solid %2; border-radius: 2px; padding: 0 2px; color: %3; }
QLineEdit:focus { border-color: %5; }
QLabel { color: %3; }
QTreeWidget { border: 1px solid %2; }
)";

// A style sheet gives a view's viewport a palette of its own, which has to follow.
void MakeColors(QAbstractItemView& view) {
    QPalette colors;  // what isn't set here stays as it is
    colors.setColor(QPalette::Base, ToQColor(Color::ControlFace));
    colors.setColor(QPalette::Text, ToQColor(Color::ControlText));
    colors.setColor(QPalette::Highlight, ToQColor(Color::GridSelectedRow));
    colors.setColor(QPalette::HighlightedText, ToQColor(Color::GridText));
    view.setPalette(colors);
    view.viewport()->setPalette(colors);
}

}  // namespace

TreeForm::TreeForm(QWidget* parent)
    : QWidget(parent),
      findText(this),
      find(this),
      previous(this),
      next(this),
      tabs(this, kTabPadding),
      counter(this),
      tree(this),
      list(this),
      save("엑셀 저장", this) {
    setAttribute(Qt::WA_StyledBackground);
    NameControls();
    SetUpTree();
    tabs.AddTab("분류별"_cp949);
    tabs.AddTab("가나다순"_cp949);
    LayOut();
    SetTabOrder();
    RefreshColors();
    ShowTab(kTreeTab);
    ShowCounter({}, {}, false);
}

void TreeForm::NameControls() {
    const struct {
        QWidget& control;
        const char* number;
        const char* name;  // for screen readers; the hint of those that have no caption
        const char* keys;
    } names[] = {{findText, "21008", "찾을 지표나 조건", " (Ctrl+F)"},
                 {find, "21007", "찾기", " (Enter)"},
                 {previous, "21151", "이전 결과", " (Shift+F3)"},
                 {next, "21152", "다음 결과", " (F3)"},
                 {counter, "21009", "찾은 순서와 개수", nullptr},
                 {tabs, "21162", "지표 보기", nullptr},
                 {tree, "21001", "분류별 지표와 조건", nullptr},
                 {list, "21127", "가나다순 지표와 조건", nullptr},
                 {save, "21038", "엑셀 파일로 저장", ""}};
    for (const auto& [control, number, name, keys] : names) {
        control.setObjectName(number);
        control.setAccessibleName(name);
        if (keys) control.setToolTip(QString(name) + keys);
    }
    findText.setPlaceholderText("지표 찾기");
    find.setIcon(FindIcon());
    previous.setText("▲");
    next.setText("▼");
    for (QToolButton* button : {&find, &previous, &next}) {
        button->setFixedSize(kControlHeight, kControlHeight);
        button->setFocusPolicy(Qt::TabFocus);
    }
    findText.setFixedHeight(kControlHeight);
    save.setFixedHeight(kControlHeight);
    counter.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void TreeForm::SetUpTree() {
    tree.setHeaderHidden(true);
    tree.setIndentation(kIndentation);
    tree.setUniformRowHeights(true);
    // The one column is as wide as the view, and wider where a text needs it.
    tree.header()->setStretchLastSection(false);
    tree.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree.viewport()->installEventFilter(this);
}

void TreeForm::LayOut() {
    auto* findRow = new QHBoxLayout;
    findRow->addWidget(&findText, 1);
    for (QToolButton* button : {&find, &previous, &next}) findRow->addWidget(button);
    auto* tabRow = new QHBoxLayout;
    tabRow->setSpacing(0);
    tabRow->addWidget(&tabs);
    tabRow->addWidget(&counter, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(0);
    findRow->setSpacing(kGap);
    rows->addLayout(findRow);
    rows->addSpacing(kMargin);
    rows->addLayout(tabRow);
    rows->addWidget(&tree, 1);
    rows->addWidget(&list, 1);
    rows->addSpacing(kMargin);
    rows->addWidget(&save);
}

void TreeForm::SetTabOrder() {
    QWidget* const order[] = {&findText, &find, &previous, &next, &tabs, &tree, &list, &save};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void TreeForm::ShowTab(int tab) {
    tree.setVisible(tab == kTreeTab);
    list.setVisible(tab == kListTab);
    save.setVisible(tab == kListTab);
}

void TreeForm::ShowCounter(const QString& text, const QString& hint, bool hits) {
    counter.setText(text);
    counter.setToolTip(hint);
    previous.setEnabled(hits);
    next.setEnabled(hits);
}

void TreeForm::RefreshColors() {
    const auto name = [](Color color) { return ToQColor(ColorOf(color)).name(); };
    setStyleSheet(QString::fromLatin1(kSheet).arg(name(Color::ControlFace), name(Color::ControlEdge),
                                                  name(Color::ControlText), name(Color::ControlFaintText),
                                                  name(Color::Accent), name(Color::ScreenBack)));
    MakeColors(tree);
    MakeColors(list);
    tabs.RefreshColors();
    list.RefreshColors();
}

bool TreeForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) tree.header()->setMinimumSectionSize(tree.viewport()->width());
    return QWidget::eventFilter(watched, event);
}

}  // namespace jogeon
