// How the watch writes times, prices and conditions.
#pragma once

#include <QString>
#include <string>

#include "server/service/watches.h"

namespace jogeon::terminal::watch_texts {

QString OfCp949(const std::string& text);

QString Time(int milliseconds);  // since midnight: "09:31:25"
QString Date(int date);          // yyyymmdd: "2025-04-30"
QString Count(qint64 number);    // "1,234,567"
QString Price(double won);
QString Change(double percent);  // "+1.25%"; empty where it is unknown

// Letters with points between them: "A·C".
QString Letters(const std::string& letters);

// What has become of the conditions: "A·C 충족, B 해제".
QString Flips(const service::WatchEvent& event);

}  // namespace jogeon::terminal::watch_texts
