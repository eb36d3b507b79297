#include "screen/results/result_notice_dialog.h"

#include <QLabel>
#include <QPainter>

#include "screen/palette/colors_qt.h"
#include "screen/results/result_notice_places.h"
#include "screen/text/cp949_qt.h"

namespace jogeon {

ResultNoticePopup::ResultNoticePopup(QWidget& screen, host::Clock& clock, const std::string& text)
    : QDialog(&screen, Qt::Dialog | Qt::FramelessWindowHint), screen_(screen), clock_(clock) {
    setObjectName(QString::number(kResultNoticeId));
    setModal(true);
    setFixedSize(kResultNoticeWidth, kResultNoticeHeight);
    auto* label = new QLabel(this);
    label->setObjectName(QString::number(kResultNoticeTextId));
    label->setGeometry(kResultNoticeTextLeft, kResultNoticeTextTop, kResultNoticeTextWidth,
                       kResultNoticeTextHeight);
    label->setAlignment(Qt::AlignCenter);
    label->setText(text.empty() ? QStringLiteral("검색된 종목이 없습니다.") : ToQString(text));
    QPalette colors;
    colors.setColor(QPalette::WindowText, ToQColor(Color::NoticeText));
    label->setPalette(colors);
}

ResultNoticePopup::~ResultNoticePopup() {
    clock_.Forget(*this);
}

void ResultNoticePopup::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    PlaceOverScreen();
    clock_.SetTimer(*this, kResultNoticeTimer, kResultNoticeTime);
}

void ResultNoticePopup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(Color::NoticeBack));
    painter.setPen(ToQColor(Color::NoticeEdge));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ResultNoticePopup::OnTimer(int id) {
    if (id != kResultNoticeTimer) return;
    clock_.KillTimer(*this, kResultNoticeTimer);
    accept();
}

// Centred across the screen, with the lower edge at half its height.
void ResultNoticePopup::PlaceOverScreen() {
    const QPoint corner = screen_.mapToGlobal(QPoint(0, 0));
    move(corner.x() + (screen_.width() - width()) / 2, corner.y() + screen_.height() / 2 - height());
}

void ShowResultNotice(QWidget& screen, host::Questions& questions, host::Clock& clock) {
    ResultNoticePopup popup(screen, clock);
    QWidget* widget = &popup;
    questions.Run("ResultNoticePopup", widget);
}

}  // namespace jogeon
