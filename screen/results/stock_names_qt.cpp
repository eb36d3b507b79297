#include "screen/results/stock_names_qt.h"

#include "screen/text/cp949_qt.h"

namespace jogeon {

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
