#include "terminal/settings/settings_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "screen/palette/edges_qt.h"

namespace jogeon::terminal {

SettingsDialog::SettingsDialog(const SettingsChoice& start, SettingsChoice defaults,
                               host::Questions& questions, QWidget* parent)
    : QDialog(parent), start_(start.settings), defaults_(std::move(defaults)), grid_(questions) {
    setWindowTitle(tr("조건검색 설정"));
    tabs_.setObjectName("pages");
    tabs_.addTab(&grid_, tr("결과 표"));
    tabs_.addTab(&columns_, tr("열"));
    tabs_.addTab(&conditions_, tr("조건"));
    tabs_.addTab(&interest_, tr("관심그룹"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(&tabs_);
    AddButtons(*layout);
    for (SettingsPage* page : pages_) page->Show(start.settings);
    columns_.Show(start.columns);
    for (auto* box : findChildren<QCheckBox*>()) box->setPalette(EdgePalette());
}

void SettingsDialog::AddButtons(QLayout& layout) {
    auto* buttons = new QDialogButtonBox(this);
    const auto add = [&](const QString& text, const char* name, QDialogButtonBox::ButtonRole role) {
        QPushButton* button = buttons->addButton(text, role);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    QPushButton* defaults = add(tr("기본값"), "defaults", QDialogButtonBox::ResetRole);
    defaults->setToolTip(tr("보이는 쪽의 설정을 처음 값으로 되돌립니다."));
    connect(defaults, &QPushButton::clicked, this, &SettingsDialog::ShowDefaults);
    add(tr("확인"), "ok", QDialogButtonBox::AcceptRole)->setDefault(true);
    add(tr("취소"), "cancel", QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout.addWidget(buttons);
}

void SettingsDialog::ShowPage(int page) {
    tabs_.setCurrentIndex(page == host::SettingsDialog::kColumnsPage ? tabs_.indexOf(&columns_) : 0);
}

void SettingsDialog::ShowDefaults() {
    QWidget* shown = tabs_.currentWidget();
    if (shown == &columns_) columns_.Show(defaults_.columns);
    if (auto* page = qobject_cast<SettingsPage*>(shown)) page->Show(defaults_.settings);
}

SettingsChoice SettingsDialog::Choice() const {
    SettingsChoice choice{start_, columns_.Choices()};
    for (const SettingsPage* page : pages_) page->Take(choice.settings);
    return choice;
}

}  // namespace jogeon::terminal
