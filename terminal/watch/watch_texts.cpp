#include "terminal/watch/watch_texts.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTime>

#include "terminal/texts/value_texts.h"

namespace jogeon::terminal::watch_texts {
namespace {

QString Translated(const char* text) {
    return QCoreApplication::translate("jogeon::terminal::WatchScreen", text);
}

}  // namespace

QString Day(const service::WatchStart& start) {
    const QString date = DateText(start.date);
    if (!start.replay) return date;
    return Translated(QT_TRANSLATE_NOOP("jogeon::terminal::WatchScreen", "재생: %1")).arg(date);
}

QString Time(int milliseconds) {
    return QTime::fromMSecsSinceStartOfDay(milliseconds).toString(QStringLiteral("HH:mm:ss"));
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
