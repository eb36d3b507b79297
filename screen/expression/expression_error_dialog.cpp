#include "screen/expression/expression_error_dialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>

#include "screen/palette/colors_qt.h"
#include "screen/palette/dialog_style_qt.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {
namespace {

constexpr int kRuleLength = 51;
constexpr int kTextMargin = 8;
constexpr int kTextLines = 7;
constexpr QSize kIconSize(32, 32);
constexpr char kHand[] = "☞";
constexpr int kHandSize = 2;  // steps larger than the text

}  // namespace

ExpressionErrorDialog::ExpressionErrorDialog(const std::string& marked) : text_(new QPlainTextEdit(this)) {
    setObjectName("21020");
    setWindowTitle("수식 오류");
    StyleDialog(*this);
    FillText(marked);
    auto* ok = new QPushButton("확인", this);
    ok->setObjectName("1");
    ok->setDefault(true);
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->addWidget(MakeHeading(), 0, 0);
    layout->addWidget(text_, 1, 0);
    layout->addWidget(ok, 2, 0, Qt::AlignHCenter);
    layout->setRowStretch(1, 1);
}

QWidget* ExpressionErrorDialog::MakeHeading() {
    auto* heading = new QWidget(this);
    auto* icon = new QLabel(heading);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(kIconSize, devicePixelRatioF()));
    auto* title = new QLabel("수식 오류", heading);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* what = new QLabel(" 수식이 잘못되었습니다.", heading);

    auto* layout = new QGridLayout(heading);
    layout->setContentsMargins({});
    layout->addWidget(icon, 0, 0, 2, 1);
    layout->addWidget(title, 0, 1);
    layout->addWidget(what, 1, 1);
    layout->setColumnStretch(1, 1);
    return heading;
}

// The expression may need more than a line, the rule never does.
void ExpressionErrorDialog::FillText(const std::string& marked) {
    const QString rule(kRuleLength, '=');
    text_->setObjectName("21095");
    text_->setReadOnly(true);
    text_->document()->setDocumentMargin(kTextMargin);
    text_->setPlainText(QStringLiteral(" 선택영역을 확인하십시요. \r\n") + rule + "\r\n\r\n" +
                        ToQString(marked));
    const int frames = 2 * (kTextMargin + text_->frameWidth());
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QFontMetrics metrics = text_->fontMetrics();
    text_->setMinimumSize(metrics.horizontalAdvance(rule + '=') + frames + scrollBar,
                          kTextLines * metrics.lineSpacing() + frames);

    QTextCursor hand = text_->document()->find(kHand);
    QTextCharFormat large;
    large.setProperty(QTextFormat::FontSizeAdjustment, kHandSize);
    large.setForeground(ToQColor(Color::ExpressionOperator));
    hand.mergeCharFormat(large);
    hand.clearSelection();
    text_->setTextCursor(hand);
}

void ExpressionErrorDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    text_->ensureCursorVisible();
}

}  // namespace jogeon
