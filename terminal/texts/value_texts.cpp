#include "terminal/texts/value_texts.h"

#include <QLocale>
#include <cmath>

namespace jogeon::terminal {
namespace {

const QLocale& Korean() {
    static const QLocale korean(QLocale::Korean);
    return korean;
}

}  // namespace

QString NumberText(double value, int decimals) {
    if (std::isnan(value)) return {};
    const bool zero = std::abs(value) <= 0.5 * std::pow(10.0, -decimals);
    return Korean().toString(zero ? 0.0 : value, 'f', decimals);
}

QString CountText(qint64 count) {
    return Korean().toString(count);
}

QString WonText(double won) {
    return NumberText(won, won == std::floor(won) ? 0 : 2);
}

QString PercentText(double percent) {
    if (std::isnan(percent)) return {};
    const QString digits = NumberText(percent, 2);
    const bool rises = percent > 0 && digits != NumberText(0, 2);
    return (rises ? "+" : "") + digits + '%';
}

QString DateText(int date) {
    return QStringLiteral("%1-%2-%3")
        .arg(date / 10000)
        .arg(date / 100 % 100, 2, 10, QLatin1Char('0'))
        .arg(date % 100, 2, 10, QLatin1Char('0'));
}

QString OrDash(const QString& text) {
    return text.isEmpty() ? QStringLiteral("-") : text;
}

}  // namespace jogeon::terminal
