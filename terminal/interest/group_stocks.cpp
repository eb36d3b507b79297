#include "terminal/interest/group_stocks.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "screen/text/cp949_qt.h"
#include "terminal/interest/list_order.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/look/list_look.h"
#include "terminal/texts/value_texts.h"

namespace jogeon::terminal {
namespace {

constexpr std::size_t kShownUnknown = 5;  // lines of a pasted text
constexpr std::size_t kShownBytes = 40;   // of each

StockRow RowOf(const std::string& code, const PortfolioBook& book) {
    const service::Quote* known = book.QuoteOf(code);
    const service::Quote quote = known ? *known : service::Quote{code, NAN, NAN};
    const double percent = quote.change / (quote.close - quote.change) * 100;
    return {code,
            {ToQString(book.NameOf(code)), ToQString(code), OrDash(WonText(quote.close)),
             ChangeText(quote.change), OrDash(PercentText(percent))},
            TrendOf(quote.change)};
}

}  // namespace

GroupStocks::GroupStocks(PortfolioBook& book, host::Questions& questions, QWidget* parent)
    : QWidget(parent),
      book_(book),
      questions_(questions),
      input_(new StockInput),
      stocks_(new StockTable({{tr("종목명"), 20, false, false},
                              {tr("코드"), 9, false, false},
                              {tr("현재가"), 11, true, true},
                              {tr("대비"), 11, true, true},
                              {tr("등락률"), 10, true, true}})),
      count_(new QLabel),
      paste_(MakeButton("paste", tr("붙여넣기"),
                        tr("클립보드에 있는 종목코드나 종목명을 추가합니다 (Ctrl+V)"))) {
    input_->setObjectName("stockInput");
    input_->setPlaceholderText(tr("추가할 종목의 이름이나 코드"));
    input_->SetListPalette(ListPalette());
    stocks_->setObjectName("stocks");
    count_->setObjectName("stockCount");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(input_);
    layout->addWidget(stocks_);
    layout->addLayout(MakeFoot());
    ConnectParts();
    EnableButtons();
}

QLayout* GroupStocks::MakeFoot() {
    auto* remove = MakeButton("removeStocks", tr("제거"), tr("고른 종목을 그룹에서 뺍니다 (Delete)"));
    auto* up = MakeButton("stocksUp", "▲", tr("고른 종목을 위로 옮깁니다"));
    auto* down = MakeButton("stocksDown", "▼", tr("고른 종목을 아래로 옮깁니다"));
    connect(paste_, &QPushButton::clicked, this, &GroupStocks::Paste);
    connect(remove, &QPushButton::clicked, this, &GroupStocks::RemoveStocks);
    connect(up, &QPushButton::clicked, this, [this] { MoveStocks(-1); });
    connect(down, &QPushButton::clicked, this, [this] { MoveStocks(1); });
    buttons_ = {remove, up, down};
    auto* row = new QHBoxLayout;
    row->addWidget(count_, 1);
    for (QPushButton* button : {paste_, remove, up, down}) {
        FitToCaption(*button);
        row->addWidget(button);
    }
    return row;
}

void GroupStocks::ConnectParts() {
    connect(input_, &StockInput::Chosen, this, &GroupStocks::AddChosen);
    connect(input_, &StockInput::Chosen, input_, &QLineEdit::selectAll, Qt::QueuedConnection);
    connect(input_, &StockInput::Missed, this, [this](const QString& text) {
        Tell(questions_, tr("'%1'에 맞는 종목이 없습니다.").arg(text), tr("종목 추가"));
    });
    connect(stocks_, &StockTable::StockChosen, this, &GroupStocks::StockChosen);
    connect(stocks_, &StockTable::StockOpened, this, &GroupStocks::StockOpened);
    connect(stocks_, &StockTable::PasteAsked, this, &GroupStocks::Paste);
    connect(stocks_, &StockTable::RemovalAsked, this, &GroupStocks::RemoveStocks);
    connect(stocks_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GroupStocks::EnableButtons);
}

void GroupStocks::Show(const std::string& group, bool anew) {
    group_ = group;
    if (anew) stocks_->clearSelection();
    input_->SetStocks(book_.Stocks());
    std::vector<StockRow> rows;
    const service::InterestGroup* shown = book_.FindGroup(group_);
    if (shown)
        for (const std::string& code : shown->stocks) rows.push_back(RowOf(code, book_));
    count_->setText(shown ? tr("%1종목").arg(rows.size()) : QString());
    stocks_->SetRows(std::move(rows));
    EnableButtons();
}

void GroupStocks::RefreshColors() {
    stocks_->RefreshColors();
    input_->SetListPalette(ListPalette());
}

void GroupStocks::EnableButtons() {
    const bool hasGroup = book_.FindGroup(group_) != nullptr;
    const bool hasStock = hasGroup && stocks_->selectionModel()->hasSelection();
    for (QPushButton* button : buttons_) button->setEnabled(hasStock);
    paste_->setEnabled(hasGroup);
    input_->setEnabled(hasGroup);
}

// The text stays until its stock is in, and longer if another one is being written by then.
void GroupStocks::AddChosen(const std::string& code) {
    adding_ = code;
    input_->setModified(false);
    AddStocks({code});
}

void GroupStocks::AddStocks(const std::vector<std::string>& codes) {
    book_.EditStocks(
        group_,
        [codes](std::vector<std::string>& stocks) {
            for (const std::string& code : codes)
                if (std::find(stocks.begin(), stocks.end(), code) == stocks.end()) stocks.push_back(code);
        },
        [this, codes](const service::Addition&) {
            stocks_->Select(codes);
            if (codes.back() == adding_ && !input_->isModified()) input_->clear();
        });
}

void GroupStocks::RemoveStocks() {
    const std::vector<std::string> gone = stocks_->SelectedCodes();
    if (gone.empty()) return;
    book_.EditStocks(group_, [gone](std::vector<std::string>& stocks) {
        std::erase_if(stocks, [&](const std::string& code) {
            return std::find(gone.begin(), gone.end(), code) != gone.end();
        });
    });
}

void GroupStocks::MoveStocks(int by) {
    const std::vector<std::string> moved = stocks_->SelectedCodes();
    book_.EditStocks(group_,
                     [moved, by](std::vector<std::string>& stocks) { MoveWithin(stocks, moved, by); });
}

void GroupStocks::Paste() {
    if (!book_.FindGroup(group_)) return;
    const PastedStocks pasted =
        ReadPastedStocks(book_.Stocks(), FromQString(QGuiApplication::clipboard()->text()));
    if (!pasted.codes.empty()) AddStocks(pasted.codes);
    if (!pasted.unknown.empty()) return TellSkipped(pasted);
    if (pasted.codes.empty()) Tell(questions_, tr("클립보드에 글자가 없습니다."), paste_->text());
}

void GroupStocks::TellSkipped(const PastedStocks& pasted) {
    QStringList lines;
    for (std::size_t i = 0; i < std::min(kShownUnknown, pasted.unknown.size()); ++i)
        lines += ToQString(std::string(CutToBytes(pasted.unknown[i], kShownBytes)));
    if (pasted.unknown.size() > kShownUnknown) lines += "...";
    Tell(questions_,
         tr("%1종목을 찾았고, 종목을 찾을 수 없는 %2줄은 건너뛰었습니다.\n\n%3")
             .arg(pasted.codes.size())
             .arg(pasted.unknown.size())
             .arg(lines.join(QLatin1Char('\n'))),
         paste_->text(), host::Icon::Warning);
}

}  // namespace jogeon::terminal
