#include "screen/results/stock_names_qt.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {

std::string_view CodeInNameCell(std::string_view cell) {
    return TrimRight(Field(cell, 1, 6));
}

QString ToQString(std::string_view cp949) {
    const bool ascii = std::all_of(cp949.begin(), cp949.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii) return QString::fromLatin1(cp949.data(), static_cast<qsizetype>(cp949.size()));
    return QString::fromStdString(ToUtf8(cp949));
}

const QString& StockNames::Of(std::string_view code) {
    std::string key(code);
    const auto found = entries_.find(key);
    if (found != entries_.end()) return found->second.shown;
    const std::string name = lists_.StockName(key);
    Entry entry{ToQString(name.empty() ? key : name), !name.empty()};
    return entries_.emplace(std::move(key), std::move(entry)).first->second.shown;
}

void StockNames::ForgetUnknown() {
    std::erase_if(entries_, [](const auto& entry) { return !entry.second.known; });
}

}  // namespace jogeon
