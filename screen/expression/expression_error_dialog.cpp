#include "screen/expression/expression_error_dialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr int kRuleLength = 51;
constexpr QSize kSize(460, 190);

QString TextWith(const std::string& marked) {
    return QStringLiteral(" 선택영역을 확인하십시요. \r\n") + QString(kRuleLength, '=') + "\r\n\r\n" +
           QString::fromStdString(ToUtf8(marked));
}

}  // namespace

ExpressionErrorDialog::ExpressionErrorDialog(const std::string& marked) {
    setWindowTitle("수식 오류");
    auto* title = new QLabel("수식 오류", this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* what = new QLabel(" 수식이 잘못되었습니다.", this);
    auto* text = new QPlainTextEdit(TextWith(marked), this);
    text->setObjectName("21095");
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* ok = new QPushButton("확인", this);
    ok->setObjectName("1");
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->addWidget(title, 0, 0);
    layout->addWidget(what, 0, 1, 1, 2);
    layout->addWidget(text, 1, 0, 1, 3);
    layout->addWidget(ok, 2, 0, 1, 3, Qt::AlignHCenter);
    layout->setColumnStretch(1, 1);
    resize(kSize);
}

}  // namespace jogeon
