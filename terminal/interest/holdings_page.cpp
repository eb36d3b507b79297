#include "terminal/interest/holdings_page.h"

#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

#include "screen/text/cp949_qt.h"
#include "terminal/interest/holdings_csv.h"
#include "terminal/interest/holdings_dialog.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/look/list_look.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

constexpr int kMargin = 6;
constexpr int kAccountPlaces = 16;  // letters of the list of accounts, at least

// What all holdings are worth on the last day; those without a price count nothing.
struct Worth {
    double value = 0;
    int unpriced = 0;
};

StockRow RowOf(const service::Holding& held, const PortfolioBook& book, Worth& worth) {
    const service::Quote* quote = book.QuoteOf(held.stock);
    const double close = quote ? quote->close : NAN;
    const double value = close * static_cast<double>(held.quantity);
    const bool paid = held.averagePrice > 0;
    const double gain = paid ? (close / held.averagePrice - 1) * 100 : NAN;
    if (std::isnan(value))
        ++worth.unpriced;
    else
        worth.value += value;
    return {held.stock,
            {ToQString(book.NameOf(held.stock)), ToQString(held.stock), CountText(held.quantity),
             paid ? WonText(held.averagePrice) : QStringLiteral("-"), OrDash(WonText(value)),
             OrDash(PercentText(gain))},
            TrendOf(gain)};
}

}  // namespace

HoldingsPage::HoldingsPage(PortfolioBook& book, host::Questions& questions, FormatAccount format,
                           QWidget* parent)
    : QWidget(parent),
      book_(book),
      questions_(questions),
      format_(std::move(format)),
      accounts_(new QComboBox),
      import_(new QPushButton(tr("CSV 가져오기"))),
      remove_(new QPushButton(tr("계좌 삭제"))),
      holdings_(new StockTable({{tr("종목명"), 20, false, false},
                                {tr("코드"), 10, false, false},
                                {tr("수량"), 10, true, false},
                                {tr("매입단가"), 12, true, false},
                                {tr("평가금액"), 15, true, false},
                                {tr("수익률"), 11, true, true}})),
      total_(new QLabel) {
    accounts_->setObjectName("accounts");
    accounts_->setMinimumContentsLength(kAccountPlaces);
    import_->setObjectName("importHoldings");
    import_->setToolTip(tr("증권사에서 받은 잔고 파일을 읽습니다"));
    remove_->setObjectName("removeAccount");
    for (QPushButton* button : {import_, remove_}) FitToCaption(*button);
    holdings_->setObjectName("holdings");
    total_->setObjectName("holdingsTotal");
    auto* row = new QHBoxLayout;
    row->addWidget(accounts_);
    row->addStretch(1);
    row->addWidget(import_);
    row->addWidget(remove_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addLayout(row);
    layout->addWidget(holdings_);
    layout->addWidget(total_);
    connect(&book_, &PortfolioBook::Changed, this, &HoldingsPage::ShowAccounts);
    connect(accounts_, &QComboBox::currentIndexChanged, this, &HoldingsPage::ShowHoldings);
    connect(import_, &QPushButton::clicked, this, &HoldingsPage::Import);
    connect(remove_, &QPushButton::clicked, this, &HoldingsPage::RemoveAccount);
    connect(holdings_, &StockTable::StockChosen, this, &HoldingsPage::StockChosen);
    connect(holdings_, &StockTable::StockOpened, this, &HoldingsPage::StockOpened);
    ShowAccounts();
}

void HoldingsPage::RefreshColors() {
    holdings_->RefreshColors();
}

std::string HoldingsPage::Chosen() const {
    return accounts_->currentData().toString().toStdString();
}

void HoldingsPage::Choose(const std::string& number) {
    const int place = accounts_->findData(QString::fromStdString(number));
    if (place >= 0) accounts_->setCurrentIndex(place);
}

// A list that has the accounts as they are is left alone: the user may have it open.
void HoldingsPage::ShowAccounts() {
    if (!ListsAccounts()) {
        const std::string chosen = Chosen();
        const QSignalBlocker quiet(accounts_);
        accounts_->clear();
        for (const service::HeldAccount& account : book_.Accounts())
            accounts_->addItem(format_(account.number), QString::fromStdString(account.number));
        Choose(chosen);
    }
    import_->setEnabled(book_.Loaded());
    ShowHoldings();
}

bool HoldingsPage::ListsAccounts() const {
    std::vector<std::string> listed, known;
    for (int i = 0; i < accounts_->count(); ++i)
        listed.push_back(accounts_->itemData(i).toString().toStdString());
    for (const service::HeldAccount& account : book_.Accounts()) known.push_back(account.number);
    return listed == known;
}

void HoldingsPage::ShowHoldings() {
    std::vector<StockRow> rows;
    Worth worth;
    const service::HeldAccount* account = book_.FindAccount(Chosen());
    if (account)
        for (const service::Holding& held : account->holdings) rows.push_back(RowOf(held, book_, worth));
    QString total;
    if (account) total = tr("%1종목  ·  평가금액 합계 %2원").arg(rows.size()).arg(WonText(worth.value));
    if (worth.unpriced > 0) total += tr("  (가격이 없는 %1종목 제외)").arg(worth.unpriced);
    total_->setText(total);
    holdings_->SetRows(std::move(rows));
    remove_->setEnabled(account != nullptr);
}

// The user sees what was read and what wasn't before anything is taken.
void HoldingsPage::Import() {
    const std::optional<std::filesystem::path> path = AskFile();
    if (!path) return;
    const HoldingsFile file = ReadHoldings(*path, book_.Stocks());
    if (file.fault == FileFault::Unreadable)
        return Tell(questions_, tr("파일을 읽을 수 없습니다.\n%1").arg(QString::fromStdString(file.detail)),
                    import_->text(), host::Icon::Warning);
    if (file.fault == FileFault::Utf16)
        return Tell(questions_,
                    tr("유니코드(UTF-16) 파일은 읽을 수 없습니다.\nCSV UTF-8 형식으로 저장한 뒤 다시 "
                       "가져오십시오."),
                    import_->text(), host::Icon::Warning);
    if (file.fault == FileFault::NoHeader)
        return Tell(questions_,
                    tr("잔고 파일의 제목 줄을 찾을 수 없습니다.\n'종목코드'나 '종목명', 그리고 '수량' 항목이 "
                       "있어야 합니다."),
                    import_->text(), host::Icon::Warning);
    HoldingsDialog dialog(file, book_, format_, Chosen(), this);
    if (!questions_.Run("HoldingsDialog", static_cast<QDialog*>(&dialog))) return;
    const std::string account = dialog.Account();
    book_.Do(
        [account, holdings = file.holdings](service::Portfolios& portfolios,
                                            const std::string& user) -> service::Addition {
            return {portfolios.SetHoldings(user, account, holdings), {}};
        },
        [this, account](const service::Addition&) { Choose(account); });
}

std::optional<std::filesystem::path> HoldingsPage::AskFile() {
    QFileDialog dialog(this, import_->text());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("잔고 파일 (*.csv *.txt *.gz)"), tr("모든 파일 (*)")});
    if (!questions_.Run("HoldingsFileDialog", static_cast<QDialog*>(&dialog))) return std::nullopt;
    const QStringList files = dialog.selectedFiles();
    if (files.isEmpty()) return std::nullopt;
    return std::filesystem::path(QFile::encodeName(files.front()).toStdString());
}

void HoldingsPage::RemoveAccount() {
    const std::string number = Chosen();
    const QString question =
        tr("계좌 %1의 보유종목을 모두 지우고 계좌를 삭제하시겠습니까?").arg(format_(number));
    if (!Agrees(questions_, question, remove_->text())) return;
    book_.Do([number](service::Portfolios& portfolios, const std::string& user) -> service::Addition {
        return {portfolios.RemoveAccount(user, number), {}};
    });
}

}  // namespace jogeon::terminal
