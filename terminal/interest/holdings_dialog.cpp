#include "terminal/interest/holdings_dialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "screen/palette/edges_qt.h"
#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/interest/stock_table.h"
#include "terminal/look/list_look.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

constexpr QSize kSize(620, 460);
constexpr int kRefusedHeight = 130;
constexpr int kAccountPlaces = 16;

QString CountedLabel(const QString& what, std::size_t count) {
    return QStringLiteral("<b>%1</b>  %2").arg(what, CountText(static_cast<qint64>(count)));
}

}  // namespace

HoldingsDialog::HoldingsDialog(const HoldingsFile& file, const PortfolioBook& book,
                               const FormatAccount& format, const std::string& chosen, QWidget* parent)
    : QDialog(parent),
      file_(file),
      book_(book),
      accounts_(new QComboBox),
      without_(new QCheckBox(tr("읽지 못한 줄을 빼고 가져오기"))),
      advice_(new QLabel),
      ok_(new QPushButton(tr("가져오기"))) {
    setWindowTitle(tr("보유종목 가져오기"));
    setPalette(ListPalette());
    accounts_->setObjectName("account");
    accounts_->setEditable(true);
    accounts_->setInsertPolicy(QComboBox::NoInsert);
    accounts_->setMinimumContentsLength(kAccountPlaces);
    accounts_->setToolTip(tr("새 계좌는 번호 11자리를 입력합니다"));
    for (const service::HeldAccount& account : book.Accounts())
        accounts_->addItem(format(account.number), QString::fromStdString(account.number));
    accounts_->setCurrentIndex(std::max(0, accounts_->findData(QString::fromStdString(chosen))));
    without_->setObjectName("withoutRefused");
    without_->setPalette(EdgePalette());
    advice_->setObjectName("advice");
    advice_->setWordWrap(true);
    ok_->setObjectName("take");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(CountedLabel(tr("읽은 종목"), file.holdings.size())));
    layout->addWidget(MakeRead(), 1);
    if (!file.refused.empty()) {
        layout->addWidget(new QLabel(CountedLabel(tr("읽지 못한 줄"), file.refused.size())));
        layout->addWidget(MakeRefused());
        layout->addWidget(without_);
    } else {
        without_->setParent(this);
        without_->hide();
    }
    layout->addLayout(MakeFoot());
    layout->addWidget(advice_);
    connect(without_, &QCheckBox::toggled, this, &HoldingsDialog::Judge);
    connect(accounts_, &QComboBox::editTextChanged, this, &HoldingsDialog::Judge);
    Judge();
    resize(kSize.expandedTo(sizeHint()));
}

QWidget* HoldingsDialog::MakeRead() {
    auto* table = new StockTable({{tr("종목명"), 24, false, false},
                                  {tr("코드"), 12, false, false},
                                  {tr("수량"), 14, true, false},
                                  {tr("매입단가"), 14, true, false}});
    table->setObjectName("read");
    std::vector<StockRow> rows;
    for (const service::Holding& held : file_.holdings) {
        const QString price = held.averagePrice > 0 ? WonText(held.averagePrice) : QStringLiteral("-");
        rows.push_back(
            {held.stock,
             {ToQString(book_.NameOf(held.stock)), ToQString(held.stock), CountText(held.quantity), price}});
    }
    table->SetRows(std::move(rows));
    return table;
}

QWidget* HoldingsDialog::MakeRefused() {
    auto* list = new QTreeWidget;
    list->setObjectName("refused");
    list->setHeaderLabels({tr("줄"), tr("이유")});
    LookLikeList(*list);
    for (const RefusedLine& line : file_.refused) {
        auto* item = new QTreeWidgetItem(list, {QString::number(line.number), FaultText(line)});
        item->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(1, FaultText(line));
        LookLikeRow(*item);
    }
    list->resizeColumnToContents(0);
    list->setMaximumHeight(kRefusedHeight);
    return list;
}

QLayout* HoldingsDialog::MakeFoot() {
    QHBoxLayout* row = MakeDialogFoot(*this, *ok_, tr("취소"));
    row->insertWidget(0, new QLabel(tr("계좌")));
    row->insertWidget(1, accounts_);
    return row;
}

// An account of the list may also be written by hand, with or without its dash.
std::string HoldingsDialog::Account() const {
    const QString written = accounts_->currentText();
    const int listed = accounts_->findText(written);
    if (listed >= 0) return accounts_->itemData(listed).toString().toStdString();
    return QString(written).remove(QLatin1Char('-')).remove(QLatin1Char(' ')).toStdString();
}

void HoldingsDialog::Judge() {
    const std::string account = Account();
    const bool isNumber =
        account.size() == service::kAccountDigits &&
        std::all_of(account.begin(), account.end(), [](char c) { return c >= '0' && c <= '9'; });
    const service::HeldAccount* known = book_.FindAccount(account);
    QString advice;
    if (!isNumber)
        advice = tr("계좌번호는 숫자 11자리입니다.");
    else if (!known)
        advice = tr("새 계좌를 만듭니다.");
    else if (!known->holdings.empty())
        advice = tr("이 계좌에 있던 %1종목은 지워지고 읽은 종목으로 바뀝니다.").arg(known->holdings.size());
    if (file_.holdings.empty()) advice = tr("가져올 종목이 없습니다.");
    advice_->setText(advice);
    const bool agreed = file_.refused.empty() || without_->isChecked();
    ok_->setEnabled(isNumber && agreed && !file_.holdings.empty());
}

}  // namespace jogeon::terminal
