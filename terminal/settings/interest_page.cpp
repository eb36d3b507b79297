#include "terminal/settings/interest_page.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace jogeon::terminal {

InterestPage::InterestPage(QWidget* parent)
    : SettingsPage(parent),
      regLink_(tr("저장한 뒤 관심그룹 화면 열기")),
      confirmOverwrite_(tr("있는 그룹의 종목을 바꾸기 전에 묻기")) {
    regLink_.setObjectName("regLink");
    confirmOverwrite_.setObjectName("confirmOverwrite");
    auto* saving = new QGroupBox(tr("검색 결과를 관심그룹에 저장할 때"));
    auto* savingLayout = new QVBoxLayout(saving);
    savingLayout->addWidget(&regLink_);
    savingLayout->addWidget(&confirmOverwrite_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(saving);
    layout->addStretch();
}

void InterestPage::Show(const ScreenSettings& settings) {
    regLink_.setChecked(settings.regLink != 0);
    confirmOverwrite_.setChecked(settings.confirmOverwrite != 0);
}

void InterestPage::Take(ScreenSettings& settings) const {
    settings.regLink = regLink_.isChecked() ? 1 : 0;
    settings.confirmOverwrite = confirmOverwrite_.isChecked() ? 1 : 0;
}

}  // namespace jogeon::terminal
