#include "terminal/chart/kept_choice.h"

#include <QStringList>

namespace jogeon::terminal::chart {
namespace {

constexpr char kPeriods[] = "averages";  // "5,20,60,120,0"
constexpr char kKind[] = "averageKind";
constexpr char kBands[] = "bands";
constexpr char kLower[] = "lower";
constexpr char kTimeframe[] = "timeframe";

// The number under a key, if it is one from 0 to `most`.
int NumberOf(const QSettings& settings, const char* key, int most, int otherwise) {
    bool number = false;
    const int value = settings.value(key).toString().toInt(&number);
    return number && value >= 0 && value <= most ? value : otherwise;
}

}  // namespace

void Keep(QSettings& settings, const Choice& choice) {
    QStringList periods;
    for (int period : choice.periods) periods.append(QString::number(period));
    settings.setValue(kPeriods, periods);
    settings.setValue(kKind, static_cast<int>(choice.averageKind));
    settings.setValue(kBands, choice.bands ? 1 : 0);
    settings.setValue(kLower, static_cast<int>(choice.lower));
    settings.setValue(kTimeframe, static_cast<int>(choice.timeframe));
}

Choice ReadKept(const QSettings& settings) {
    Choice choice;
    const QStringList periods = settings.value(kPeriods).toStringList();
    for (int i = 0; i < std::min<int>(kAverages, static_cast<int>(periods.size())); ++i) {
        bool number = false;
        const int period = periods[i].toInt(&number);
        if (number && period >= 0 && period <= kMostPeriod)
            choice.periods[static_cast<std::size_t>(i)] = period;
    }
    choice.averageKind =
        static_cast<AverageKind>(NumberOf(settings, kKind, 1, static_cast<int>(choice.averageKind)));
    choice.bands = NumberOf(settings, kBands, 1, choice.bands) == 1;
    choice.lower =
        static_cast<Lower>(NumberOf(settings, kLower, kLowers - 1, static_cast<int>(choice.lower)));
    choice.timeframe = static_cast<market::Timeframe>(
        NumberOf(settings, kTimeframe, market::kTimeframes - 1, static_cast<int>(choice.timeframe)));
    return choice;
}

}  // namespace jogeon::terminal::chart
