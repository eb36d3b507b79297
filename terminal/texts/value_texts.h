// How the terminal's windows write numbers and dates: the same in all of them, whatever their language.
#pragma once

#include <QString>

namespace jogeon::terminal {

// "1,234,500" and "-12.50", never "-0"; empty for NaN.
QString NumberText(double value, int decimals = 0);

QString CountText(qint64 count);

// Of a price in won: two decimals where it isn't whole; empty for NaN.
QString WonText(double won);

// "+1.25%"; empty for NaN.
QString PercentText(double percent);

// Of a date as yyyymmdd: "2025-04-30".
QString DateText(int date);

// What stands in a cell for a value: "-" where there is none.
QString OrDash(const QString& text);

}  // namespace jogeon::terminal
