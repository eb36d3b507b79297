#include "terminal/watch/watch_texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTime>
#include <cmath>

#include "screen/text/cp949.h"

namespace jogeon::terminal::watch_texts {
namespace {

const QLocale& Korean() {
    static const QLocale korean(QLocale::Korean);
    return korean;
}

QString Translated(const char* text) {
    return QCoreApplication::translate("jogeon::terminal::WatchScreen", text);
}

}  // namespace

QString OfCp949(const std::string& text) {
    return QString::fromStdString(ToUtf8(text));
}

QString Time(int milliseconds) {
    return QTime::fromMSecsSinceStartOfDay(milliseconds).toString(QStringLiteral("HH:mm:ss"));
}

QString Date(int date) {
    const QString digits = QString::number(date);
    return digits.left(4) + '-' + digits.mid(4, 2) + '-' + digits.mid(6);
}

QString Count(qint64 number) {
    return Korean().toString(number);
}

QString Price(double won) {
    return Korean().toString(won, 'f', won == std::floor(won) ? 0 : 2);
}

QString Change(double percent) {
    if (std::isnan(percent)) return {};
    return (percent > 0 ? "+" : "") + Korean().toString(percent, 'f', 2) + '%';
}

QString Letters(const std::string& letters) {
    QStringList pieces;
    for (const char letter : letters) pieces.append(QString(QLatin1Char(letter)));
    return pieces.join(QStringLiteral("·"));
}

QString Flips(const service::WatchEvent& event) {
    QStringList pieces;
    if (!event.rose.empty())
        pieces.append(Translated(QT_TRANSLATE_NOOP("jogeon::terminal::WatchScreen", "%1 충족"))
                          .arg(Letters(event.rose)));
    if (!event.fell.empty())
        pieces.append(Translated(QT_TRANSLATE_NOOP("jogeon::terminal::WatchScreen", "%1 해제"))
                          .arg(Letters(event.fell)));
    return pieces.join(QStringLiteral(", "));
}

}  // namespace jogeon::terminal::watch_texts
