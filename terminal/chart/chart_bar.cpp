#include "terminal/chart/chart_bar.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QSignalBlocker>
#include <QWidgetAction>

#include "screen/palette/colors_qt.h"

namespace jogeon::terminal::chart {
namespace {

constexpr int kBoxCharacters = 22;
constexpr int kGroupGap = 10;
constexpr int kClearButton = 34;

}  // namespace

ChartBar::ChartBar(QWidget* parent)
    : QWidget(parent),
      box_(new StockInput(this)),
      timeframes_(new QButtonGroup(this)),
      lower_(new QComboBox(this)),
      editor_(new StudyEditor) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(2);
    box_->setObjectName("stock");
    box_->setPlaceholderText(tr("종목코드 또는 종목명"));
    box_->setAccessibleName(tr("종목"));
    box_->setMinimumWidth(fontMetrics().horizontalAdvance("가나다라마바사") + kClearButton);
    box_->setMaximumWidth(fontMetrics().averageCharWidth() * kBoxCharacters + kClearButton);
    row->addWidget(box_, 1);
    Warn(false);
    connect(box_, &StockInput::textEdited, this, [this] { Warn(false); });
    connect(box_, &StockInput::Missed, this, [this] { Warn(true); });
    connect(box_, &StockInput::Chosen, this, &ChartBar::StockChosen);
    AddSteps();
    row->addSpacing(kGroupGap);
    AddTimeframes();
    row->addSpacing(kGroupGap);
    AddIndicators();
    row->addStretch(0);
    SetPlace(-1, 0);
    SetChoice({});
}

QToolButton* ChartBar::AddButton(const QString& text, const QString& name, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setAutoRaise(true);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    layout()->addWidget(button);
    return button;
}

void ChartBar::AddSteps() {
    back_ = AddButton(QStringLiteral("◀"), "back", tr("이전 종목"));
    place_ = new QLabel(this);
    place_->setObjectName("place");
    place_->setAlignment(Qt::AlignCenter);
    layout()->addWidget(place_);
    forward_ = AddButton(QStringLiteral("▶"), "forward", tr("다음 종목"));
    connect(back_, &QToolButton::clicked, this, [this] { emit StepAsked(-1); });
    connect(forward_, &QToolButton::clicked, this, [this] { emit StepAsked(1); });
}

void ChartBar::AddTimeframes() {
    const std::pair<QString, QString> buttons[] = {
        {tr("일"), tr("일봉")}, {tr("주"), tr("주봉")}, {tr("월"), tr("월봉")}};
    int id = 0;
    for (const auto& [text, tip] : buttons) {
        QToolButton* button = AddButton(text, "timeframe" + QString::number(id), tip);
        button->setCheckable(true);
        timeframes_->addButton(button, id++);
    }
    connect(timeframes_, &QButtonGroup::idClicked, this, &ChartBar::Tell);
}

void ChartBar::AddIndicators() {
    lower_->addItems({tr("하단 지표 없음"), "RSI", "MACD", tr("스토캐스틱")});
    lower_->setObjectName("lower");
    lower_->setToolTip(tr("하단 지표: RSI(14), MACD(12,26,9), 스토캐스틱(12,5,5)"));
    lower_->setAccessibleName(tr("하단 지표"));
    layout()->addWidget(lower_);
    connect(lower_, &QComboBox::currentIndexChanged, this, &ChartBar::Tell);

    QToolButton* lines = AddButton(tr("이동평균"), "lines", tr("이동평균과 볼린저밴드 설정"));
    auto* menu = new QMenu(lines);
    auto* action = new QWidgetAction(menu);
    action->setDefaultWidget(editor_);
    menu->addAction(action);
    lines->setMenu(menu);
    lines->setPopupMode(QToolButton::InstantPopup);
    connect(editor_, &StudyEditor::Changed, this, &ChartBar::Tell);
}

void ChartBar::ShowStock(const QString& code, const QString& name) {
    box_->ShowStock(code, name);
    Warn(false);
}

void ChartBar::Warn(bool unknown) {
    QPalette colors;
    if (unknown) colors.setColor(QPalette::Text, ToQColor(Color::ChartRise));
    box_->setPalette(colors);
    box_->setAccessibleDescription(unknown ? tr("그런 종목이 없습니다") : QString());
    box_->setToolTip(unknown ? tr("그런 종목이 없습니다")
                             : tr("종목코드나 종목명을 넣고 Enter 키를 누르면 차트가 바뀝니다"));
}

void ChartBar::SetChoice(const Choice& choice) {
    const QSignalBlocker silent(lower_);
    timeframes_->button(static_cast<int>(choice.timeframe))->setChecked(true);
    lower_->setCurrentIndex(static_cast<int>(choice.lower));
    editor_->Set(choice);
}

void ChartBar::SetPlace(int place, int count) {
    const QString where = place < 0 ? tr("검색 결과 %1종목").arg(count)
                                    : tr("검색 결과 %1종목 중 %2번째").arg(count).arg(place + 1);
    place_->setText(
        count == 0 ? QString()
                   : QStringLiteral("%1/%2").arg(place < 0 ? "-" : QString::number(place + 1)).arg(count));
    back_->setEnabled(count > 0);
    forward_->setEnabled(count > 0);
    back_->setToolTip(back_->accessibleName() + "\n" + where);
    forward_->setToolTip(forward_->accessibleName() + "\n" + where);
}

void ChartBar::Tell() {
    Choice choice;
    editor_->Read(choice);
    choice.lower = static_cast<Lower>(lower_->currentIndex());
    choice.timeframe = static_cast<market::Timeframe>(timeframes_->checkedId());
    emit ChoiceMade(choice);
}

}  // namespace jogeon::terminal::chart
