#include "terminal/watch/watch_head.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screen/palette/colors_qt.h"
#include "terminal/watch/watch_texts.h"

namespace jogeon::terminal {
namespace {

constexpr int kSpeeds[] = {1, 10, 60, 300, 1000};
constexpr int kProgressHeight = 6;  // pixels
constexpr double kClockSize = 1.3;  // of the other texts'

}  // namespace

WatchHead::WatchHead(QWidget* parent)
    : QWidget(parent),
      day_(new QLabel(this)),
      name_(new ElidedLabel(this)),
      description_(new ElidedLabel(this)),
      run_(new QPushButton(tr("일시정지"), this)),
      restart_(new QPushButton(tr("처음부터"), this)),
      speed_(new QComboBox(this)),
      clock_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      notice_(new QLabel(this)) {
    day_->setObjectName("watchDay");
    name_->setObjectName("watchName");
    description_->setObjectName("watchDescription");
    run_->setObjectName("watchRun");
    restart_->setObjectName("watchRestart");
    speed_->setObjectName("watchSpeed");
    clock_->setObjectName("watchClock");
    notice_->setObjectName("watchNotice");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(TextRow());
    column->addWidget(description_);
    column->addLayout(ControlRow());
    column->addWidget(progress_);
    column->addWidget(notice_);
    notice_->setTextFormat(Qt::PlainText);
    notice_->setWordWrap(true);
    notice_->hide();
    progress_->setTextVisible(false);
    progress_->setFixedHeight(kProgressHeight);
    connect(run_, &QPushButton::clicked, this, [this] { emit RunAsked(run_->text() != tr("일시정지")); });
    connect(restart_, &QPushButton::clicked, this, &WatchHead::RestartAsked);
    connect(speed_, &QComboBox::activated, this, [this] { emit SpeedChosen(Speed()); });
    RefreshColors();
}

QLayout* WatchHead::TextRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    QFont bold = font();
    bold.setBold(true);
    name_->setFont(bold);
    row->addWidget(day_);
    row->addWidget(name_, 1);
    return row;
}

QLayout* WatchHead::ControlRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (const int times : kSpeeds) speed_->addItem(tr("%1배속").arg(times), times);
    speed_->setToolTip(tr("하루를 몇 배 빠르게 재생할지 고릅니다"));
    restart_->setToolTip(tr("장 시작부터 다시 감시합니다"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kClockSize);
    large.setBold(true);
    clock_->setFont(large);
    clock_->setToolTip(tr("시장 시각"));
    row->addWidget(run_);
    row->addWidget(restart_);
    row->addWidget(speed_);
    row->addStretch(1);
    row->addWidget(clock_);
    return row;
}

void WatchHead::ShowStart(const service::WatchStart& start) {
    day_->setText(watch_texts::Day(start));
    progress_->setRange(start.opens, start.closes);
    ShowTime(start.opens);
}

void WatchHead::ShowTime(int milliseconds) {
    clock_->setText(watch_texts::Time(milliseconds));
    progress_->setValue(milliseconds);
}

void WatchHead::ShowState(WatchRun::State state) {
    using State = WatchRun::State;
    run_->setText(state == State::Paused ? tr("시작") : tr("일시정지"));
    run_->setEnabled(state == State::Running || state == State::Paused);
    restart_->setEnabled(state != State::Idle && state != State::Opening);
    if (state == State::Over)
        ShowNotice(tr("장 마감까지 재생했습니다."));
    else if (state != State::Failed)
        ShowNotice({});
}

void WatchHead::ShowNotice(const QString& text) {
    notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
}

void WatchHead::SetSpeed(int times) {
    const int index = speed_->findData(times);
    if (index >= 0) speed_->setCurrentIndex(index);
}

void WatchHead::RefreshColors() {
    const QString box = QStringLiteral("color: %1; background: %2; border: 1px solid %3; padding: 1px 6px;")
                            .arg(ToQColor(Color::NoticeText).name(), ToQColor(Color::NoticeBack).name(),
                                 ToQColor(Color::NoticeEdge).name());
    day_->setStyleSheet("QLabel { " + box + " font-weight: bold; }");
    notice_->setStyleSheet("QLabel { " + box + " padding: 4px 6px; }");
}

}  // namespace jogeon::terminal
