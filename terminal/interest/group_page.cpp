#include "terminal/interest/group_page.h"

#include <QVBoxLayout>

namespace jogeon::terminal {
namespace {

constexpr int kLeftWidth = 190;  // pixels, at first
constexpr int kRightWidth = 430;
constexpr int kMargin = 6;

}  // namespace

GroupPage::GroupPage(PortfolioBook& book, host::Questions& questions, QWidget* parent)
    : QWidget(parent),
      splitter_(new QSplitter),
      groups_(new GroupList(book, questions)),
      stocks_(new GroupStocks(book, questions)) {
    splitter_->addWidget(groups_);
    splitter_->addWidget(stocks_);
    splitter_->setSizes({kLeftWidth, kRightWidth});
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(splitter_);
    connect(groups_, &GroupList::Shown, stocks_, &GroupStocks::Show);
    connect(stocks_, &GroupStocks::StockChosen, this, &GroupPage::StockChosen);
    connect(stocks_, &GroupStocks::StockOpened, this, &GroupPage::StockOpened);
}

void GroupPage::RefreshColors() {
    groups_->RefreshColors();
    stocks_->RefreshColors();
}

}  // namespace jogeon::terminal
