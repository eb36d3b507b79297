#include "screen/condition/bbox_panel_pane.h"

#include "screen/text/cp949.h"

namespace jogeon {

BBoxPanel::BBoxPanel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setWordWrap(true);
    setMargin(8);
    hide();
}

void BBoxPanel::ShowIndex(const CIndexInfo& condition) {
    const QString letter(QLatin1Char(condition.m_chLetter));
    const QString name = QString::fromStdString(ToUtf8(condition.m_strTitle));
    const QString text = QString::fromStdString(ToUtf8(condition.GetDescription()));
    setText(letter + "  " + name + "\n\n" + text);
}

}  // namespace jogeon
