#include "terminal/watch/watch_screen.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include "screen/host/shared_tags.h"
#include "screen/text/cp949_qt.h"
#include "screen/transactions/condition_header.h"
#include "terminal/kept_bytes.h"
#include "terminal/screens/stock_link.h"
#include "terminal/texts/value_texts.h"
#include "terminal/watch/watch_texts.h"

namespace jogeon::terminal {
namespace {

using namespace host::tags;

constexpr int kMargin = 8;
constexpr int kFirstSpeed = 10;
constexpr int kFadeInterval = 500;  // milliseconds

// Names in the file of what is kept.
constexpr char kSpeedKey[] = "speed";
constexpr char kMatchColumnsKey[] = "matchColumns";
constexpr char kEventColumnsKey[] = "eventColumns";
constexpr char kSplitKey[] = "split";

}  // namespace

WatchScreen::WatchScreen(const Workplace& workplace, QWidget* parent)
    : OwnScreen(parent),
      workplace_(workplace),
      run_(workplace, this),
      pages_(new QStackedLayout(this)),
      head_(new WatchHead(this)),
      split_(new QSplitter(Qt::Vertical, this)),
      matchTable_(new WatchTable(this)),
      eventTable_(new WatchTable(this)),
      counts_(new QLabel(this)) {
    auto* nothing = new QLabel(tr("감시할 조건이 아직 없습니다.\n\n조건검색 화면에서 조건식을 만들고\n"
                                  "[실시간 검색]을 누르면 여기에서 감시합니다."),
                               this);
    nothing->setObjectName("watchNothing");
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->setMargin(kMargin);
    pages_->addWidget(nothing);
    pages_->addWidget(BuildPage());
    SetUpTables();
    Wire();
    head_->SetSpeed(kFirstSpeed);
    run_.SetSpeed(head_->Speed());
    ShowCounts();
}

QWidget* WatchScreen::BuildPage() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(6);
    column->addWidget(head_);
    column->addWidget(split_, 1);
    column->addWidget(counts_);
    split_->addWidget(matchTable_);
    split_->addWidget(eventTable_);
    split_->setChildrenCollapsible(false);
    split_->setStretchFactor(0, 3);
    split_->setStretchFactor(1, 2);
    counts_->setObjectName("watchCounts");
    return page;
}

void WatchScreen::SetUpTables() {
    matchTable_->setObjectName("watchMatches");
    eventTable_->setObjectName("watchEvents");
    sorted_.setSourceModel(&matches_);
    sorted_.setSortRole(MatchModel::kSortRole);
    sorted_.sort(MatchModel::kSince, Qt::DescendingOrder);
    matchTable_->SetColumns(sorted_, {116, 56, 76, 68, 70});
    matchTable_->horizontalHeader()->setSortIndicator(MatchModel::kSince, Qt::DescendingOrder);
    matchTable_->setSortingEnabled(true);
    eventTable_->SetColumns(events_, {66, 46, 120, 80, 70});
    eventTable_->SetEmptyText(tr("편입과 이탈이 여기에 기록됩니다."));
}

void WatchScreen::Wire() {
    connect(head_, &WatchHead::RunAsked, &run_, &WatchRun::SetRunning);
    connect(head_, &WatchHead::RestartAsked, this, &WatchScreen::Restart);
    connect(head_, &WatchHead::SpeedChosen, &run_, &WatchRun::SetSpeed);
    connect(&run_, &WatchRun::Opened, this, [this](const service::WatchStart& start) {
        head_->ShowStart(start);
        day_ = watch_texts::Day(start);
        emit TitleChanged();
    });
    connect(&run_, &WatchRun::NewsCame, this, &WatchScreen::OnNews);
    connect(&run_, &WatchRun::StateChanged, this, &WatchScreen::OnState);
    connect(&run_, &WatchRun::Refused, this,
            [this](const QString& why) { head_->ShowNotice(tr("감시할 수 없습니다: %1").arg(why)); });
    connect(&fade_, &QTimer::timeout, &matches_, &MatchModel::Fade);
    fade_.start(kFadeInterval);
    AnnounceFrom(*matchTable_, matches_, &sorted_);
    AnnounceFrom(*eventTable_, events_, nullptr);
}

// A click announces the row's stock, a double click opens its chart.
template <typename Model>
void WatchScreen::AnnounceFrom(WatchTable& table, const Model& model, const QSortFilterProxyModel* sorted) {
    const auto codeAt = [&model, sorted](const QModelIndex& at) {
        return model.CodeAt((sorted ? sorted->mapToSource(at) : at).row());
    };
    connect(&table, &QTableView::clicked, this,
            [this, codeAt](const QModelIndex& at) { Announce(codeAt(at)); });
    connect(&table, &QTableView::doubleClicked, this, [this, codeAt](const QModelIndex& at) {
        Announce(codeAt(at));
        emit ScreenAsked(kChartScreen, true);
    });
}

QString WatchScreen::Title() const {
    return day_.isEmpty() ? tr("실시간 조건검색") : tr("실시간 조건검색") + QStringLiteral(" · ") + day_;
}

// Whoever hands a set over opens the screen first and tells of the tags then, all of which are written: what
// is watched from here on isn't begun again there.
void WatchScreen::OnOpened(bool) {
    const std::string set = workplace_.links.NVLink_GetLinkTagData(kWatchKey, kWatchSetTag, nullptr);
    if (!set.empty() && set != watched_) Watch(set);
}

void WatchScreen::OnTagChanged(const std::string& mainKey, const std::string& tag) {
    if (mainKey != kWatchKey) return;
    if (tag == kWatchTextTag) ShowDescription();
    if (tag != kWatchSetTag) return;
    const std::string set = workplace_.links.NVLink_GetLinkTagData(kWatchKey, kWatchSetTag, nullptr);
    if (!set.empty() && (set != watched_ || !run_.Alive())) Watch(set);
}

void WatchScreen::Watch(const std::string& conditionSet) {
    watched_ = conditionSet;
    const auto header = DecodeConditionHeader(conditionSet);
    head_->ShowName(header ? ToQString(header->name) : QString());
    ShowDescription();
    pages_->setCurrentIndex(1);
    Restart();
}

void WatchScreen::ShowDescription() {
    head_->ShowDescription(
        ToQString(workplace_.links.NVLink_GetLinkTagData(kWatchKey, kWatchTextTag, nullptr)));
}

void WatchScreen::Restart() {
    matches_.Clear();
    events_.Clear();
    ticks_ = entered_ = left_ = 0;
    ShowCounts();
    matchTable_->SetEmptyText({});
    run_.Begin(watched_);
}

void WatchScreen::OnNews(const service::WatchNews& news) {
    head_->ShowTime(news.time);
    matches_.Take(news.matches);
    events_.Take(news.events);
    ticks_ += news.ticks;
    for (const service::WatchEvent& event : news.events) ++(event.entered ? entered_ : left_);
    matchTable_->SetEmptyText(tr("지금 조건에 맞는 종목이 없습니다."));
    ShowCounts();
}

void WatchScreen::OnState() {
    head_->ShowState(run_.GetState());
}

void WatchScreen::ShowCounts() {
    counts_->setText(
        tr("포착 %1종목  ·  편입 %2  ·  이탈 %3  ·  체결 %4건")
            .arg(CountText(matches_.rowCount()), CountText(entered_), CountText(left_), CountText(ticks_)));
}

void WatchScreen::Announce(const std::string& code) {
    ShareStockCode(workplace_.links, code);
    emit TagSet(kStockKey, kStockTag);
}

void WatchScreen::OnThemeChanged() {
    head_->RefreshColors();
    matchTable_->RefreshColors();
    eventTable_->RefreshColors();
}

void WatchScreen::SaveState(QSettings& file) const {
    file.setValue(kSpeedKey, head_->Speed());
    KeepBytes(file, kMatchColumnsKey, matchTable_->horizontalHeader()->saveState());
    KeepBytes(file, kEventColumnsKey, eventTable_->horizontalHeader()->saveState());
    KeepBytes(file, kSplitKey, split_->saveState());
}

void WatchScreen::RestoreState(const QSettings& file) {
    head_->SetSpeed(file.value(kSpeedKey).toInt());
    run_.SetSpeed(head_->Speed());
    matchTable_->horizontalHeader()->restoreState(KeptBytes(file, kMatchColumnsKey));
    eventTable_->horizontalHeader()->restoreState(KeptBytes(file, kEventColumnsKey));
    split_->restoreState(KeptBytes(file, kSplitKey));
}

}  // namespace jogeon::terminal
