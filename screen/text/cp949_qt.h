// CP949 bytes as Qt's text.
#pragma once

#include <QString>
#include <string_view>

namespace jogeon {

// Each byte that begins no character becomes U+FFFD. No table is asked for plain ASCII.
QString ToQString(std::string_view cp949);

}  // namespace jogeon
