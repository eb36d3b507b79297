#include "terminal/chart/study_editor.h"

#include <QFormLayout>
#include <QPainter>
#include <QSignalBlocker>

#include "screen/palette/colors_qt.h"

namespace jogeon::terminal::chart {
namespace {

// A line's colour beside its name.
QPixmap Swatch(Color color, double ratio) {
    constexpr int kWidth = 16, kHeight = 3;
    QPixmap picture(QSize(kWidth, kHeight) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(ToQColor(color));
    return picture;
}

}  // namespace

StudyEditor::StudyEditor(QWidget* parent)
    : QWidget(parent), kind_(new QComboBox(this)), bands_(new QCheckBox(tr("볼린저밴드 (20, 2)"), this)) {
    auto* form = new QFormLayout(this);
    for (int i = 0; i < kAverages; ++i) {
        auto* period = new QSpinBox(this);
        period->setRange(0, kMostPeriod);
        period->setSpecialValueText(tr("없음"));
        period->setKeyboardTracking(false);
        period->setToolTip(tr("이동평균의 기간(봉 수). 0은 선을 그리지 않습니다"));
        period->setAccessibleName(tr("이동평균 %1의 기간").arg(i + 1));
        auto* name = new QLabel(this);
        name->setMinimumHeight(period->sizeHint().height());
        form->addRow(name, period);
        swatches_[static_cast<std::size_t>(i)] = name;
        periods_[static_cast<std::size_t>(i)] = period;
        connect(period, &QSpinBox::valueChanged, this, &StudyEditor::Changed);
    }
    kind_->addItems({tr("단순"), tr("지수")});
    kind_->setToolTip(tr("이동평균의 종류"));
    kind_->setAccessibleName(tr("이동평균의 종류"));
    bands_->setToolTip(tr("20봉 단순이동평균과 그 위아래 표준편차의 두 배"));
    form->addRow(tr("종류"), kind_);
    form->addRow(bands_);
    connect(kind_, &QComboBox::currentIndexChanged, this, &StudyEditor::Changed);
    connect(bands_, &QCheckBox::toggled, this, &StudyEditor::Changed);
    Restyle();
}

void StudyEditor::Restyle() {
    for (std::size_t i = 0; i < swatches_.size(); ++i)
        swatches_[i]->setPixmap(Swatch(kLineColors[i], devicePixelRatioF()));
}

void StudyEditor::Set(const Choice& choice) {
    const QSignalBlocker silent(this);
    for (std::size_t i = 0; i < periods_.size(); ++i) periods_[i]->setValue(choice.periods[i]);
    kind_->setCurrentIndex(static_cast<int>(choice.averageKind));
    bands_->setChecked(choice.bands);
}

void StudyEditor::Read(Choice& choice) const {
    for (std::size_t i = 0; i < periods_.size(); ++i) choice.periods[i] = periods_[i]->value();
    choice.averageKind = static_cast<AverageKind>(kind_->currentIndex());
    choice.bands = bands_->isChecked();
}

}  // namespace jogeon::terminal::chart
