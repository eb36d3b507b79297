#include "terminal/interest/interest_screen.h"

#include <QApplication>
#include <QVBoxLayout>

#include "screen/text/cp949_qt.h"
#include "terminal/interest/portfolio_texts.h"
#include "terminal/kept_bytes.h"
#include "terminal/look/list_look.h"
#include "terminal/screens/stock_link.h"

namespace jogeon::terminal {
namespace {

// Keys of the kept state.
constexpr char kPageKey[] = "interest/page";
constexpr char kGroupKey[] = "interest/group";
constexpr char kSplitterKey[] = "interest/splitter";

}  // namespace

InterestScreen::InterestScreen(const Workplace& workplace, QWidget* parent)
    : OwnScreen(parent),
      links_(workplace.links),
      questions_(workplace.questions),
      book_(workplace),
      pages_(new QTabWidget),
      groups_(new GroupPage(book_, questions_)),
      holdings_(new HoldingsPage(book_, questions_,
                                 [&links = links_](const std::string& number) {
                                     return ToQString(links.NVLink_GetAccountFmt(number, 1));
                                 })),
      trouble_(new QLabel) {
    pages_->setObjectName("pages");
    pages_->setDocumentMode(true);
    pages_->addTab(groups_, tr("관심그룹"));
    pages_->addTab(holdings_, tr("보유종목"));
    trouble_->setObjectName("trouble");
    trouble_->setWordWrap(true);
    trouble_->setMargin(6);
    trouble_->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pages_);
    layout->addWidget(trouble_);
    connect(groups_, &GroupPage::StockChosen, this, &InterestScreen::ShareStock);
    connect(groups_, &GroupPage::StockOpened, this, &InterestScreen::OpenChart);
    connect(holdings_, &HoldingsPage::StockChosen, this, &InterestScreen::ShareStock);
    connect(holdings_, &HoldingsPage::StockOpened, this, &InterestScreen::OpenChart);
    connect(&book_, &PortfolioBook::Changed, this, &InterestScreen::OnBookChanged);
    connect(&book_, &PortfolioBook::Refused, this,
            [this](const QString& why) { Tell(questions_, why, Title(), host::Icon::Warning); });
    connect(&book_, &PortfolioBook::Failed, this, &InterestScreen::TellTrouble);
    // Until the book goes: the focus still changes while the screen's widgets do.
    connect(qApp, &QApplication::focusChanged, &book_,
            [this](const QWidget* old, const QWidget* now) { OnFocusChanged(old, now); });
    OnThemeChanged();
}

void InterestScreen::OnOpened(bool) {
    book_.Refresh();
}

void InterestScreen::OnServiceRenewed() {
    book_.Renew();
}

void InterestScreen::OnThemeChanged() {
    setPalette(ListPalette());
    setAutoFillBackground(true);
    groups_->RefreshColors();
    holdings_->RefreshColors();
}

void InterestScreen::SaveState(QSettings& settings) const {
    settings.setValue(kPageKey, pages_->currentIndex());
    settings.setValue(kGroupKey, QString::fromStdString(groups_->Chosen()));
    KeepBytes(settings, kSplitterKey, groups_->SplitterState());
}

void InterestScreen::RestoreState(const QSettings& settings) {
    pages_->setCurrentIndex(settings.value(kPageKey, 0).toInt());
    groups_->Choose(settings.value(kGroupKey).toString().toStdString());
    groups_->RestoreSplitter(KeptBytes(settings, kSplitterKey));
}

void InterestScreen::ShowGroup(const std::string& code) {
    pages_->setCurrentWidget(groups_);
    groups_->Choose(code);
    book_.Refresh();
}

bool InterestScreen::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show) book_.Refresh();
    return OwnScreen::event(event);
}

// Docks of one window are activated by the focus that comes into them.
void InterestScreen::OnFocusChanged(const QWidget* old, const QWidget* now) {
    const bool comesIn = now && isAncestorOf(now) && old && old->window() == window() && !isAncestorOf(old);
    if (comesIn) book_.Refresh();
}

void InterestScreen::ShareStock(const std::string& code) {
    ShareStockCode(links_, code);
    emit TagSet(kStockKey, kStockTag);
}

void InterestScreen::OpenChart(const std::string& code) {
    ShareStock(code);
    emit ScreenAsked(kChartScreen, true);
}

// Screens choose targets among the accounts as they are now.
void InterestScreen::OnBookChanged() {
    trouble_->hide();
    std::vector<std::string> numbers;
    for (const service::HeldAccount& account : book_.Accounts()) numbers.push_back(account.number);
    links_.SetAccounts(std::move(numbers));
}

void InterestScreen::TellTrouble(const QString& why) {
    trouble_->setText(tr("관심그룹을 읽거나 바꿀 수 없습니다: %1").arg(why));
    trouble_->show();
}

}  // namespace jogeon::terminal
