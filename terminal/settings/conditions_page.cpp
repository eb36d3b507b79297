#include "terminal/settings/conditions_page.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

namespace jogeon::terminal {

ConditionsPage::ConditionsPage(QWidget* parent)
    : SettingsPage(parent),
      confirm_(tr("저장하지 않은 조건을 버리기 전에 묻기")),
      nameConfirm_(tr("조건을 저장하기 전에 묻기")),
      initResult_(tr("조건을 열면 검색 결과 지우기")),
      showSequence_(tr("조건 이름 앞에 번호 표시")) {
    confirm_.setObjectName("confirm");
    nameConfirm_.setObjectName("nameConfirm");
    delConfirm_.setObjectName("delConfirm");
    initResult_.setObjectName("initResult");
    showSequence_.setObjectName("showSequence");
    delConfirm_.addItems({tr("묻지 않음"), tr("전체를 지울 때만 묻기"), tr("언제나 묻기")});

    auto* questions = new QGroupBox(tr("확인"));
    auto* deleting = new QHBoxLayout;
    auto* label = new QLabel(tr("개별조건을 지울 때"));
    label->setBuddy(&delConfirm_);
    deleting->addWidget(label);
    deleting->addWidget(&delConfirm_);
    deleting->addStretch();
    auto* questionsLayout = new QVBoxLayout(questions);
    questionsLayout->addWidget(&confirm_);
    questionsLayout->addWidget(&nameConfirm_);
    questionsLayout->addLayout(deleting);

    auto* sets = new QGroupBox(tr("저장된 조건"));
    auto* setsLayout = new QVBoxLayout(sets);
    setsLayout->addWidget(&initResult_);
    setsLayout->addWidget(&showSequence_);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(questions);
    layout->addWidget(sets);
    layout->addStretch();
}

// A number that is none of the three asks for nothing, as the screen takes it.
void ConditionsPage::Show(const ScreenSettings& settings) {
    confirm_.setChecked(settings.confirm != 0);
    nameConfirm_.setChecked(settings.nameConfirm != 0);
    delConfirm_.setCurrentIndex(std::clamp(settings.delConfirm, 0, delConfirm_.count() - 1));
    initResult_.setChecked(settings.initResult != 0);
    showSequence_.setChecked(settings.showSequence != 0);
}

void ConditionsPage::Take(ScreenSettings& settings) const {
    settings.confirm = confirm_.isChecked() ? 1 : 0;
    settings.nameConfirm = nameConfirm_.isChecked() ? 1 : 0;
    settings.delConfirm = delConfirm_.currentIndex();
    settings.initResult = initResult_.isChecked() ? 1 : 0;
    settings.showSequence = showSequence_.isChecked() ? 1 : 0;
}

}  // namespace jogeon::terminal
