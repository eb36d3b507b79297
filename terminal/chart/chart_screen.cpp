#include "terminal/chart/chart_screen.h"

#include <QVBoxLayout>

#include "screen/text/cp949_qt.h"
#include "terminal/chart/kept_choice.h"
#include "terminal/screens/stock_link.h"

namespace jogeon::terminal {

using chart::ChartBar;
using chart::ChartData;

ChartScreen::ChartScreen(const Workplace& workplace, QWidget* parent)
    : OwnScreen(parent),
      links_(workplace.links),
      data_(workplace),
      view_(new chart::ChartView(this)),
      bar_(new ChartBar(this)) {
    SetUp();
    Wire();
    TakeResult();
}

void ChartScreen::SetUp() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(view_, 1);
    setFocusProxy(view_);
    view_->setAccessibleName(tr("차트"));
    view_->ShowMessage(tr("종목을 고르면 차트가 나타납니다"));
}

void ChartScreen::Wire() {
    connect(bar_, &ChartBar::StepAsked, this, &ChartScreen::Step);
    connect(bar_, &ChartBar::ChoiceMade, this, &ChartScreen::Choose);
    connect(bar_, &ChartBar::StockChosen, this, [this](const std::string& code) {
        ShowStock(code);
        if (!data_.BarsAwaited()) Name(name_);  // the box holds what was typed
        view_->setFocus();
    });
    connect(&data_, &ChartData::BarsCame, this, &ChartScreen::OnBars);
    connect(&data_, &ChartData::BarsFailed, this, &ChartScreen::OnBarsFailed);
    connect(&data_, &ChartData::DaysChanged, this, &ChartScreen::PlaceMarks);
    connect(&data_, &ChartData::StocksCame, this, [this](const std::vector<service::StockEntry>& stocks) {
        stocks_ = StockIndex(stocks);
        bar_->SetStocks(stocks_);
    });
    connect(&links_, &Links::CodesPublished, this, &ChartScreen::TakeResult);
}

QString ChartScreen::Title() const {
    if (code_.empty()) return tr("차트");
    const QString code = QString::fromStdString(code_);
    return name_.isEmpty() ? tr("차트 - %1").arg(code) : tr("차트 - %1 (%2)").arg(name_, code);
}

void ChartScreen::OnOpened(bool linked) {
    data_.AskStocks();
    if (linked) FollowLink();
}

void ChartScreen::OnTagChanged(const std::string& mainKey, const std::string& tag) {
    if (mainKey == kStockKey && tag == kStockTag) FollowLink();
}

void ChartScreen::OnServiceRenewed() {
    data_.Outdate();
    data_.AskStocks();
    if (!code_.empty()) ShowStock(code_);
}

void ChartScreen::OnThemeChanged() {
    bar_->Restyle();
    view_->Restyle();
}

void ChartScreen::SaveState(QSettings& settings) const {
    chart::Keep(settings, choice_);
}

void ChartScreen::RestoreState(const QSettings& settings) {
    const chart::Choice kept = chart::ReadKept(settings);
    bar_->SetChoice(kept);
    Choose(kept);
}

// --- which stock, of which result

void ChartScreen::FollowLink() {
    const std::string code = links_.NVLink_GetLinkTagData(kStockKey, kStockTag, nullptr);
    if (!code.empty()) ShowStock(code);
}

void ChartScreen::ShowStock(const std::string& code) {
    if (code != code_) name_.clear();
    code_ = code;
    ShowPlace();
    data_.AskBars(code_, choice_.timeframe);
    AskMarks();
}

void ChartScreen::Step(int by) {
    if (result_.codes.empty()) return;
    ShowStock(result_.Step(code_, by));
    ShareStockCode(links_, code_);
    emit TagSet(kStockKey, kStockTag);
}

void ChartScreen::TakeResult() {
    result_ = chart::ReadPublished(links_);
    ShowPlace();
    AskMarks();
}

void ChartScreen::ShowPlace() {
    bar_->SetPlace(result_.PlaceOf(code_), static_cast<int>(result_.codes.size()));
}

// The days on which the result's conditions were true of this stock, if it is one of the result's.
void ChartScreen::AskMarks() {
    if (!result_.conditionSet.empty() && result_.PlaceOf(code_) >= 0)
        data_.AskDays(result_.conditionSet, code_);
    else
        data_.ForgetDays();
}

void ChartScreen::Choose(const chart::Choice& choice) {
    const bool otherBars = choice.timeframe != choice_.timeframe;
    choice_ = choice;
    if (otherBars && !code_.empty()) data_.AskBars(code_, choice_.timeframe);
    if (!otherBars && !view_->Shown().bars.empty())
        view_->SetStudy(chart::StudyOf(view_->Shown().bars, choice_));
}

// --- what the service has said of it

void ChartScreen::OnBars(const std::optional<service::StockBars>& stock) {
    Name(stock ? ToQString(stock->name) : QString());
    const QString code = QString::fromStdString(code_);
    if (!stock) return view_->ShowMessage(tr("%1: 없는 종목입니다").arg(code));
    if (stock->bars.empty()) return view_->ShowMessage(tr("%1: 시세 자료가 없습니다").arg(name_));
    const chart::Bars& bars = stock->bars;
    view_->Show({code, name_, choice_.timeframe, bars, chart::StudyOf(bars, choice_)});
    view_->setAccessibleDescription(tr("%1 %2, 봉 %3개, 종가 %4")
                                        .arg(name_, code)
                                        .arg(bars.size())
                                        .arg(chart::PriceText(bars.back().close)));
    PlaceMarks();
}

void ChartScreen::OnBarsFailed() {
    Name({});
    view_->ShowMessage(tr("지금은 차트를 불러올 수 없습니다"));
}

void ChartScreen::Name(const QString& name) {
    name_ = name;
    bar_->ShowStock(QString::fromStdString(code_), name_);
    emit TitleChanged();
}

// Nothing to place while the bars are still on their way: then it is done when they come.
void ChartScreen::PlaceMarks() {
    const chart::Content& shown = view_->Shown();
    if (data_.BarsAwaited() || shown.bars.empty()) return;
    if (!data_.Days()) return view_->SetMarks({});
    const std::vector<int>& days = *data_.Days();
    view_->SetMarks(
        {true, static_cast<int>(days.size()), chart::BarsHolding(shown.bars, shown.timeframe, days)});
}

}  // namespace jogeon::terminal
