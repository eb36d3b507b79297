#include "screen/expression/expression_edit.h"

#include <QKeyEvent>

#include "screen/text/cp949.h"

namespace jogeon {

ExpressionEdit::ExpressionEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    connect(this, &QPlainTextEdit::textChanged, this, &ExpressionEdit::KeepLimit);
}

std::string ExpressionEdit::ExpressionText() const {
    return ToCp949(toPlainText().toStdString());
}

void ExpressionEdit::SetExpressionText(const std::string& text) {
    setPlainText(QString::fromStdString(ToUtf8(text)));
}

void ExpressionEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return;
    QPlainTextEdit::keyPressEvent(event);
}

void ExpressionEdit::KeepLimit() {
    if (toPlainText().size() > kTextLimit) setPlainText(toPlainText().left(kTextLimit));
}

}  // namespace jogeon
