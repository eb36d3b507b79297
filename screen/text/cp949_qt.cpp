#include "screen/text/cp949_qt.h"

#include <algorithm>

#include "screen/text/cp949.h"

namespace jogeon {

QString ToQString(std::string_view cp949) {
    const bool ascii = std::all_of(cp949.begin(), cp949.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii) return QString::fromLatin1(cp949.data(), static_cast<qsizetype>(cp949.size()));
    return QString::fromStdString(ToUtf8(cp949));
}

}  // namespace jogeon
