#include "screen/saved/name_dialog.h"

#include <QLabel>
#include <utility>

#include "screen/saved/dialog_form_qt.h"
#include "screen/saved/name_check.h"
#include "screen/saved/name_dialog_places.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

using namespace name_dialog;

NameDialog::NameDialog(std::vector<std::string> names, const std::string& start, host::Questions& questions,
                       QWidget* parent)
    : QDialog(parent), m_Names(std::move(names)), questions_(questions), edit_(this) {
    SetUpDialog(*this, kId, "사용자정의 조건저장", kWidth, kHeight);
    auto* label = new QLabel("조 건 명", this);
    PlaceControl(*label, kPlaces, kLabel);
    label->setBuddy(&edit_);
    PlaceControl(edit_, kPlaces, kEdit);
    edit_.setText(ToQString(start));
    edit_.selectAll();
    QPushButton& ok = AddButton(*this, kPlaces, kOk, "확인");
    ok.setDefault(true);
    connect(&ok, &QPushButton::clicked, this, &NameDialog::accept);
    connect(&AddButton(*this, kPlaces, kCancel, "취소"), &QPushButton::clicked, this, &QDialog::reject);
}

// Text from elsewhere may have its syllables in pieces, which no CP949 text has.
void NameDialog::accept() {
    const QString composed = edit_.text().normalized(QString::NormalizationForm_C);
    const NameVerdict verdict = CheckSavedName(composed.toStdString(), m_Names);
    if (!verdict.name) {
        questions_.Ask({verdict.refusal, "사용자정의 조건저장"_cp949, host::Icon::Warning});
        edit_.setFocus();
        return;
    }
    m_strName = *verdict.name;
    QDialog::accept();
}

}  // namespace jogeon
