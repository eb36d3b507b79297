// How the watch writes days, times and conditions.
#pragma once

#include <QString>
#include <string>

#include "server/service/watches.h"

namespace jogeon::terminal::watch_texts {

// The day that is watched: "2025-04-30", or "재생: 2025-04-30".
QString Day(const service::WatchStart& start);

QString Time(int milliseconds);  // since midnight: "09:31:25"

// Letters with points between them: "A·C".
QString Letters(const std::string& letters);

// What has become of the conditions: "A·C 충족, B 해제".
QString Flips(const service::WatchEvent& event);

}  // namespace jogeon::terminal::watch_texts
