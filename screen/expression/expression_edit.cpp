#include "screen/expression/expression_edit.h"

#include "screen/text/cp949.h"

namespace jogeon {

ExpressionEdit::ExpressionEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    connect(this, &QPlainTextEdit::textChanged, this, &ExpressionEdit::KeepLimit);
}

std::string ExpressionEdit::ExpressionText() const {
    return ToCp949(toPlainText().toStdString());
}

void ExpressionEdit::SetExpressionText(const std::string& text) {
    setPlainText(QString::fromStdString(ToUtf8(text)));
}

void ExpressionEdit::KeepLimit() {
    if (toPlainText().size() > kTextLimit) setPlainText(toPlainText().left(kTextLimit));
}

}  // namespace jogeon
