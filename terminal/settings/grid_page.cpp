#include "terminal/settings/grid_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace jogeon::terminal {

GridPage::GridPage(host::Questions& questions, QWidget* parent)
    : SettingsPage(parent),
      lines_(tr("격자선 표시")),
      odd_(Color::GridOddRow, questions),
      even_(Color::GridEvenRow, questions),
      sizing_(tr("열 너비를 마우스로 조절")),
      arrows_(tr("화살표 키로 옮긴 종목을 다른 화면에 연결")) {
    lines_.setObjectName("gridLines");
    odd_.setObjectName("oddColor");
    even_.setObjectName("evenColor");
    sizing_.setObjectName("changeSize");
    arrows_.setObjectName("keyArrow");

    auto* looks = new QGroupBox(tr("모양"));
    auto* looksLayout = new QGridLayout(looks);
    looksLayout->addWidget(&lines_, 0, 0, 1, 3);
    AddColor(*looksLayout, 1, tr("홀수 행 색"), odd_);
    AddColor(*looksLayout, 2, tr("짝수 행 색"), even_);
    looksLayout->setColumnStretch(3, 1);

    auto* handling = new QGroupBox(tr("조작"));
    auto* handlingLayout = new QVBoxLayout(handling);
    handlingLayout->addWidget(&sizing_);
    handlingLayout->addWidget(&arrows_);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(looks);
    layout->addWidget(handling);
    layout->addStretch();
}

void GridPage::AddColor(QGridLayout& layout, int row, const QString& label, ColorChoice& choice) {
    auto* text = new QLabel(label);
    text->setBuddy(&choice);
    choice.setAccessibleName(label);
    choice.setToolTip(tr("누르면 색을 고릅니다. 검은색은 가장 어두운 회색으로 바뀝니다."));
    auto* own = new QPushButton(tr("기본색"));
    own->setObjectName(choice.objectName() + "Default");
    own->setAutoDefault(false);
    connect(own, &QPushButton::clicked, &choice, [&choice] { choice.Choose(0); });
    layout.addWidget(text, row, 0);
    layout.addWidget(&choice, row, 1);
    layout.addWidget(own, row, 2);
}

void GridPage::Show(const ScreenSettings& settings) {
    lines_.setChecked(!settings.lineBorder);
    odd_.Choose(settings.oddColor);
    even_.Choose(settings.evenColor);
    sizing_.setChecked(settings.changeSize);
    arrows_.setChecked(settings.keyArrow);
}

void GridPage::Take(ScreenSettings& settings) const {
    settings.lineBorder = !lines_.isChecked();
    settings.oddColor = odd_.Chosen();
    settings.evenColor = even_.Chosen();
    settings.changeSize = sizing_.isChecked();
    settings.keyArrow = arrows_.isChecked();
}

}  // namespace jogeon::terminal
