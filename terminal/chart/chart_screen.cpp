#include "terminal/chart/chart_screen.h"

#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <utility>

#include "screen/text/cp949_qt.h"
#include "terminal/chart/kept_choice.h"
#include "terminal/screens/stock_link.h"

namespace jogeon::terminal {
namespace {

using chart::Choice;

constexpr char kResultKey[] = "CS_RESULT";
constexpr char kSetTag[] = "CONDSET";

}  // namespace

ChartScreen::ChartScreen(const Workplace& workplace, QWidget* parent)
    : OwnScreen(parent),
      workplace_(workplace),
      bar_(new chart::ChartBar(this)),
      view_(new chart::ChartView(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(view_, 1);
    setFocusProxy(view_);
    view_->setAccessibleName(tr("차트"));
    view_->ShowMessage(tr("종목을 고르면 차트가 나타납니다"));
    connect(bar_, &chart::ChartBar::StepAsked, this, &ChartScreen::Step);
    connect(bar_, &chart::ChartBar::ChoiceMade, this, &ChartScreen::Choose);
    connect(bar_, &chart::ChartBar::StockChosen, this, [this](const std::string& code) {
        ShowStock(code);
        view_->setFocus();
    });
}

QString ChartScreen::Title() const {
    if (code_.empty()) return tr("차트");
    const QString code = QString::fromStdString(code_);
    return name_.isEmpty() ? tr("차트 - %1").arg(code) : tr("차트 - %1 (%2)").arg(name_, code);
}

void ChartScreen::OnOpened(bool linked) {
    AskStocks();
    RefreshSteps();
    if (linked) FollowLink();
}

// Another search's codes are published right behind its conditions: the marks wait until they are.
void ChartScreen::OnTagChanged(const std::string& mainKey, const std::string& tag) {
    if (mainKey == kStockKey && tag == kStockTag) FollowLink();
    if (mainKey == kResultKey && tag == kSetTag)
        QMetaObject::invokeMethod(this, &ChartScreen::AskMarks, Qt::QueuedConnection);
}

void ChartScreen::OnThemeChanged() {
    bar_->Restyle();
    view_->Restyle();
}

void ChartScreen::SaveState(QSettings& settings) const {
    chart::Keep(settings, choice_);
}

void ChartScreen::RestoreState(const QSettings& settings) {
    const Choice kept = chart::ReadKept(settings);
    bar_->SetChoice(kept);
    Choose(kept);
}

// Codes are published without a word to us.
void ChartScreen::enterEvent(QEnterEvent* event) {
    RefreshSteps();
    OwnScreen::enterEvent(event);
}

std::string ChartScreen::TagOf(const char* mainKey, const char* tag) const {
    int found = 0;
    return workplace_.links.NVLink_GetLinkTagData(mainKey, tag, &found);
}

std::vector<std::string> ChartScreen::Listed() const {
    return workplace_.links.CodesOf("조건검색"_cp949);
}

void ChartScreen::FollowLink() {
    const std::string code = TagOf(kStockKey, kStockTag);
    if (code.empty()) return;
    if (code == code_ && (loading_ || !view_->Shown().bars.empty()))
        AskMarks();
    else
        ShowStock(code);
}

// The next of the published codes, round at the ends; the first or last from a stock that isn't among them.
void ChartScreen::Step(int by) {
    const std::vector<std::string> codes = Listed();
    if (codes.empty()) return RefreshSteps();
    const auto count = static_cast<int>(codes.size());
    const auto found = std::find(codes.begin(), codes.end(), code_);
    const int from = found == codes.end() ? (by > 0 ? -1 : 0) : static_cast<int>(found - codes.begin());
    ShowStock(codes[static_cast<std::size_t>((from + by + count) % count)]);
    Announce();
}

void ChartScreen::Announce() {
    ShareStockCode(workplace_.links, code_);
    emit TagSet(kStockKey, kStockTag);
}

void ChartScreen::Choose(const Choice& choice) {
    const bool otherBars = choice.timeframe != choice_.timeframe;
    choice_ = choice;
    if (otherBars)
        Load();
    else if (!view_->Shown().bars.empty())
        view_->SetStudy(chart::StudyOf(view_->Shown().bars, choice_));
}

void ChartScreen::ShowStock(const std::string& code) {
    code_ = code;
    name_.clear();
    trueDays_.reset();
    RefreshSteps();
    Load();
    AskMarks();
}

void ChartScreen::Load() {
    if (code_.empty()) return;
    loading_ = true;
    const int load = ++loads_;
    const auto ask = [&charts = workplace_.service.GetCharts(), code = code_,
                      timeframe = choice_.timeframe]() -> Loaded {
        try {
            return {charts.Bars(code, timeframe), false};
        } catch (const std::exception&) {
            return {std::nullopt, true};
        }
    };
    InBackground(workplace_, *this, ask, [this, load](const Loaded& loaded) {
        if (load == loads_) OnLoaded(loaded);
    });
}

void ChartScreen::OnLoaded(const Loaded& loaded) {
    loading_ = false;
    const QString code = QString::fromStdString(code_);
    name_ = loaded.stock ? ToQString(loaded.stock->name) : QString();
    bar_->ShowStock(code, name_);
    emit TitleChanged();
    if (loaded.failed) return view_->ShowMessage(tr("지금은 차트를 불러올 수 없습니다"));
    if (!loaded.stock) return view_->ShowMessage(tr("%1: 없는 종목입니다").arg(code));
    if (loaded.stock->bars.empty()) return view_->ShowMessage(tr("%1: 시세 자료가 없습니다").arg(name_));
    const chart::Bars& bars = loaded.stock->bars;
    view_->Show({code, name_, choice_.timeframe, bars, chart::StudyOf(bars, choice_)});
    view_->setAccessibleDescription(tr("%1 %2, 봉 %3개, 종가 %4")
                                        .arg(name_, code)
                                        .arg(bars.size())
                                        .arg(chart::PriceText(bars.back().close)));
    PlaceMarks();
}

// For the box, once; without them it takes codes only.
void ChartScreen::AskStocks() {
    if (std::exchange(named_, true)) return;
    const auto ask = [&portfolios = workplace_.service.GetPortfolios()] {
        try {
            return portfolios.Stocks();
        } catch (const std::exception&) {
            return std::vector<service::StockEntry>();
        }
    };
    InBackground(workplace_, *this, ask, [this](const std::vector<service::StockEntry>& stocks) {
        named_ = !stocks.empty();
        stocks_ = StockIndex(stocks);
        bar_->SetStocks(stocks_);
    });
}

// The days on which the conditions of the shown result were true of this stock, if it is one of the result's.
void ChartScreen::AskMarks() {
    RefreshSteps();
    const int asked = ++asks_;
    const std::vector<std::string> codes = Listed();
    const std::string set = TagOf(kResultKey, kSetTag);
    marking_ = !set.empty() && std::find(codes.begin(), codes.end(), code_) != codes.end();
    if (!marking_) {
        trueDays_.reset();
        return PlaceMarks();
    }
    using Days = std::optional<std::vector<int>>;
    const auto ask = [&charts = workplace_.service.GetCharts(), user = workplace_.user, set,
                      code = code_]() -> Days {
        try {
            return charts.TrueDays(user, set, code);
        } catch (const std::exception&) {
            return std::nullopt;
        }
    };
    InBackground(workplace_, *this, ask, [this, asked](const Days& days) {
        if (asked != asks_) return;
        marking_ = false;
        trueDays_ = days;
        PlaceMarks();
    });
}

// Nothing to place while the bars are still on their way: then it is done when they come.
void ChartScreen::PlaceMarks() {
    const chart::Content& shown = view_->Shown();
    if (loading_ || shown.bars.empty()) return;
    if (!trueDays_) return view_->SetMarks({});
    view_->SetMarks({true, static_cast<int>(trueDays_->size()),
                     chart::BarsHolding(shown.bars, shown.timeframe, *trueDays_)});
}

void ChartScreen::RefreshSteps() {
    const std::vector<std::string> codes = Listed();
    const auto found = std::find(codes.begin(), codes.end(), code_);
    const int place = found == codes.end() ? -1 : static_cast<int>(found - codes.begin());
    bar_->SetPlace(place, static_cast<int>(codes.size()));
}

}  // namespace jogeon::terminal
