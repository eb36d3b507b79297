#include "terminal/interest/interest_dialog.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <set>
#include <utility>

#include "screen/palette/edges_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/look/list_look.h"

namespace jogeon::terminal {
namespace {

constexpr int kWidth = 380;

QRadioButton* Radio(const QString& caption, const char* name, QButtonGroup* group) {
    auto* radio = new QRadioButton(caption);
    radio->setObjectName(name);
    radio->setPalette(EdgePalette());
    group->addButton(radio);
    return radio;
}

}  // namespace

std::vector<std::string> Joined(std::vector<std::string> first, const std::vector<std::string>& second) {
    std::set<std::string> seen(first.begin(), first.end());
    for (const std::string& code : second)
        if (seen.insert(code).second) first.push_back(code);
    return first;
}

InterestDialog::InterestDialog(std::vector<service::InterestGroup> groups, std::vector<std::string> codes,
                               const Choice& first, QWidget* parent)
    : QDialog(parent),
      groups_(std::move(groups)),
      codes_(std::move(codes)),
      list_(new QComboBox),
      name_(new QLineEdit),
      advice_(new QLabel),
      ok_(new QPushButton(tr("저장"))) {
    setWindowTitle(tr("관심그룹 저장"));
    setPalette(ListPalette());
    auto* where = new QButtonGroup(this);
    existing_ = Radio(tr("기존 그룹"), "existing", where);
    new_ = Radio(tr("새 그룹"), "new", where);
    auto* how = new QButtonGroup(this);
    adds_ = Radio(tr("추가"), "add", how);
    replaces_ = Radio(tr("교체"), "replace", how);
    list_->setObjectName("group");
    name_->setObjectName("name");
    name_->setPlaceholderText(tr("그룹 이름"));
    advice_->setObjectName("advice");
    ok_->setObjectName("save");
    advice_->setWordWrap(true);
    for (const service::InterestGroup& group : groups_)
        list_->addItem(tr("%1 (%2종목)").arg(ToQString(group.name)).arg(group.stocks.size()),
                       QString::fromStdString(group.code));
    existing_->setEnabled(!groups_.empty());

    auto* layout = new QVBoxLayout(this);
    auto* head = new QLabel(tr("검색 결과 %1종목을 관심그룹에 저장합니다.").arg(codes_.size()));
    head->setObjectName("head");
    layout->addWidget(head);
    layout->addLayout(MakeChoices());
    layout->addWidget(advice_);
    layout->addStretch(1);
    layout->addLayout(MakeDialogFoot(*this, *ok_, tr("취소")));
    Preset(first);
    for (QRadioButton* radio : {existing_, new_, adds_, replaces_})
        connect(radio, &QRadioButton::toggled, this, &InterestDialog::Judge);
    connect(list_, &QComboBox::currentIndexChanged, this, &InterestDialog::Judge);
    connect(name_, &QLineEdit::textChanged, this, &InterestDialog::Judge);
    connect(new_, &QRadioButton::clicked, name_, [this] { name_->setFocus(); });
    Judge();
    resize(std::max(kWidth, sizeHint().width()), sizeHint().height());
}

void InterestDialog::Preset(const Choice& first) {
    list_->setCurrentIndex(std::max(0, list_->findData(QString::fromStdString(first.code))));
    name_->setText(first.name);
    const bool isNew = groups_.empty() || !first.name.isEmpty();
    (isNew ? new_ : existing_)->setChecked(true);
    (first.replaces ? replaces_ : adds_)->setChecked(true);
    if (isNew) name_->setFocus();
    name_->selectAll();
}

QLayout* InterestDialog::MakeChoices() {
    auto* how = new QHBoxLayout;
    how->addWidget(adds_);
    how->addWidget(replaces_);
    how->addStretch(1);
    auto* grid = new QGridLayout;
    grid->addWidget(existing_, 0, 0);
    grid->addWidget(list_, 0, 1);
    grid->addLayout(how, 1, 1);
    grid->addWidget(new_, 2, 0);
    grid->addWidget(name_, 2, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

InterestDialog::Choice InterestDialog::Chosen() const {
    if (const service::InterestGroup* group = Group()) return {group->code, {}, replaces_->isChecked()};
    return {{}, name_->text(), false};
}

const service::InterestGroup* InterestDialog::Group() const {
    const int place = list_->currentIndex();
    return existing_->isChecked() && place >= 0 ? &groups_[static_cast<std::size_t>(place)] : nullptr;
}

std::size_t InterestDialog::StocksAfter() const {
    const service::InterestGroup* group = Group();
    return group && adds_->isChecked() ? Joined(group->stocks, codes_).size() : codes_.size();
}

// What will be, or why it can't.
QString InterestDialog::Advice() const {
    const std::size_t after = StocksAfter();
    if (after > service::kMostStocks)
        return tr("저장하면 %1종목이 됩니다. 한 그룹에는 %2종목까지 담을 수 있습니다.")
            .arg(after)
            .arg(service::kMostStocks);
    const service::InterestGroup* group = Group();
    if (!group) return {};
    if (replaces_->isChecked())
        return tr("그룹에 있던 %1종목이 검색 결과 %2종목으로 바뀝니다.").arg(group->stocks.size()).arg(after);
    return tr("그룹에 없는 %1종목이 추가되어 %2종목이 됩니다.").arg(after - group->stocks.size()).arg(after);
}

void InterestDialog::Judge() {
    list_->setEnabled(existing_->isChecked());
    adds_->setEnabled(existing_->isChecked());
    replaces_->setEnabled(existing_->isChecked());
    name_->setEnabled(new_->isChecked());
    advice_->setText(Advice());
    const bool named = existing_->isChecked() || !name_->text().trimmed().isEmpty();
    ok_->setEnabled(named && StocksAfter() <= service::kMostStocks);
}

}  // namespace jogeon::terminal
