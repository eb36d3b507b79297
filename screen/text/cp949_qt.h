// CP949 bytes as Qt's text, and back.
#pragma once

#include <QString>
#include <algorithm>
#include <string>
#include <string_view>

#include "screen/text/cp949.h"

namespace jogeon {

// Each byte that begins no character becomes U+FFFD. No table is asked for plain ASCII.
inline QString ToQString(std::string_view cp949) {
    const bool ascii = std::all_of(cp949.begin(), cp949.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii) return QString::fromLatin1(cp949.data(), static_cast<qsizetype>(cp949.size()));
    return QString::fromStdString(ToUtf8(cp949));
}

// '?' in the place of each character that has no CP949 form.
inline std::string FromQString(const QString& text) {
    return ToCp949(text.toStdString());
}

}  // namespace jogeon
