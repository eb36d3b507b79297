#include "screen/target/target_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "screen/palette/dialog_style_qt.h"
#include "screen/palette/edges_qt.h"
#include "screen/target/target_dialog_controls.h"
#include "screen/target/target_tree_widget.h"
#include "screen/text/cp949.h"

namespace jogeon {

using namespace target_dialog;

namespace {

constexpr int kMonthColumns = 3;
constexpr QSize kSize(500, 470);  // this and the next two: at least
constexpr QSize kTreeSize(250, 270);
constexpr QSize kButtonSize(80, 26);

using Opened = TargetTreeWidget::Opened;

template <typename Widget>
Widget* Named(Widget* widget, int id) {
    widget->setObjectName(QString::number(id));
    return widget;
}

}  // namespace

TargetDialog::TargetDialog(const host::Services& services, const TargetFields& target, QWidget* parent)
    : QDialog(parent),
      questions_(*services.questions),
      choice_(*services.codeLists, *services.links, target),
      tabs_(new QButtonGroup(this)),
      months_(new QButtonGroup(this)),
      trees_(new QStackedWidget),
      otherMonth_(Named(new QComboBox, kOtherMonthId)) {
    Named(this, kDialogId);
    setWindowTitle("대상변경");
    StyleDialog(*this);
    auto* layout = new QGridLayout(this);
    layout->addWidget(MakeUniverse(), 0, 0, 2, 1);
    layout->addWidget(MakeExclusions(), 0, 1);
    layout->addWidget(MakeMonths(), 1, 1, Qt::AlignTop);
    layout->addLayout(MakeButtons(), 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);
    ShowEdges(*this);
    ShowTarget(target);
    resize(sizeHint().expandedTo(kSize));
}

QWidget* TargetDialog::MakeUniverse() {
    auto* box = new QGroupBox("검색대상");
    auto* layout = new QVBoxLayout(box);
    layout->addLayout(MakeTabs());
    layout->addWidget(trees_, 1);
    turnedOver_ = new QCheckBox;
    layout->addWidget(turnedOver_);
    return box;
}

QLayout* TargetDialog::MakeTabs() {
    auto* row = new QHBoxLayout;
    for (const Page& page : kPages) {
        auto* radio = Named(new QRadioButton(page.caption), page.radioId);
        radio->setAccessibleName(page.name);
        tabs_->addButton(radio, static_cast<int>(page.tab));
        row->addWidget(radio);
        const Opened opened = page.tab == TargetTab::Sector ? Opened::PartlyChecked : Opened::All;
        auto* tree = Named(new TargetTreeWidget(choice_.Tree(page.tab), opened), page.treeId);
        tree->setAccessibleName(page.name);
        tree->setMinimumSize(kTreeSize);
        trees_->addWidget(tree);
    }
    row->addStretch(1);
    connect(tabs_, &QButtonGroup::idToggled, this, [this] { ShowTab(); });
    // The keys go to the tree at once, unless they are what moves from button to button.
    connect(tabs_, &QButtonGroup::idClicked, this, [this] {
        const QList<QAbstractButton*> radios = tabs_->buttons();
        const bool byKey = std::any_of(radios.begin(), radios.end(),
                                       [](const QAbstractButton* radio) { return radio->hasFocus(); });
        if (!byKey) trees_->currentWidget()->setFocus();
    });
    for (QAbstractButton* radio : tabs_->buttons()) radio->setFocusPolicy(Qt::TabFocus);
    return row;
}

QWidget* TargetDialog::MakeExclusions() {
    auto* box = new QGroupBox("제외종목");
    auto* layout = new QVBoxLayout(box);
    for (const Exclusion& exclusion : kExclusions) {
        const bool below = exclusion.id == kTurnedOverId;
        QCheckBox* check = Named(below ? turnedOver_ : new QCheckBox, exclusion.id);
        check->setText(exclusion.caption);
        exclusions_.push_back(check);
        if (!below) layout->addWidget(check);
        if (exclusion.id == kUnusedId) check->hide();
    }
    return box;
}

QWidget* TargetDialog::MakeMonths() {
    auto* box = new QGroupBox("결산월");
    auto* layout = new QGridLayout(box);
    int place = 0;
    for (const MonthButton& month : kMonths) {
        auto* radio = Named(new QRadioButton(month.caption), month.id);
        months_->addButton(radio, month.month);
        layout->addWidget(radio, place / kMonthColumns, place % kMonthColumns);
        ++place;
    }
    for (int month = 1; month <= 12; ++month) otherMonth_->addItem(QString("%1월").arg(month));
    otherMonth_->setAccessibleName("기타 결산월");
    layout->addWidget(otherMonth_, place / kMonthColumns, kMonthColumns - 1);
    connect(months_->button(kOther), &QAbstractButton::toggled, otherMonth_, &QWidget::setEnabled);
    return box;
}

QBoxLayout* TargetDialog::MakeButtons() {
    auto* ok = Named(new QPushButton("확인"), kOkId);
    auto* cancel = Named(new QPushButton("취소"), kCancelId);
    ok->setDefault(true);
    cancel->setAutoDefault(false);
    connect(ok, &QPushButton::clicked, this, &TargetDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &TargetDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton* button : {ok, cancel}) {
        button->setMinimumSize(kButtonSize);
        row->addWidget(button);
    }
    return row;
}

void TargetDialog::ShowTarget(const TargetFields& target) {
    tabs_->button(static_cast<int>(ActiveTab(target)))->setChecked(true);
    ShowMonth(target.Month);
    for (std::size_t i = 0; i < exclusions_.size(); ++i) {
        exclusions_[i]->setChecked(target.*kExclusions[i].flag == 1);
    }
}

void TargetDialog::ShowTab() {
    trees_->setCurrentIndex(static_cast<int>(Tab()));
    turnedOver_->setVisible(Tab() == TargetTab::Portfolio);
}

// The list of the other months stands on the first as long as it doesn't count.
void TargetDialog::ShowMonth(int month) {
    QAbstractButton* other = months_->button(kOther);
    QAbstractButton* own = months_->button(month);
    (own ? own : other)->setChecked(true);
    otherMonth_->setEnabled(other->isChecked());
    otherMonth_->setCurrentIndex(other->isChecked() ? std::clamp(month, 1, 12) - 1 : 0);
}

void TargetDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    trees_->currentWidget()->setFocus();
}

TargetTab TargetDialog::Tab() const {
    return static_cast<TargetTab>(tabs_->checkedId());
}

int TargetDialog::Month() const {
    return months_->checkedId() == kOther ? otherMonth_->currentIndex() + 1 : months_->checkedId();
}

TargetFields TargetDialog::Options() const {
    TargetFields options;
    options.Month = Month();
    for (std::size_t i = 0; i < exclusions_.size(); ++i) {
        options.*kExclusions[i].flag = exclusions_[i]->isChecked() ? 1 : 0;
    }
    return options;
}

void TargetDialog::accept() {
    std::optional<SearchTarget> target = choice_.TargetOf(Tab(), Options());
    if (!target) {
        questions_.Ask({"대상 그룹이 선택되지 않았습니다.\n하나 이상의 대상 그룹이 선택되어야 합니다."_cp949,
                        "검색대상 선택"_cp949});
        return;
    }
    agreed_ = *std::move(target);
    QDialog::accept();
}

std::optional<SearchTarget> AskForTarget(const host::Services& services, const TargetFields& target,
                                         QWidget& screen) {
    TargetDialog dialog(services, target, &screen);
    if (!services.questions->Run("TargetDialog", static_cast<QDialog*>(&dialog))) return std::nullopt;
    return dialog.Target();
}

}  // namespace jogeon
