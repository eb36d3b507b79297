// Names of stocks by their code, asked of the host once each.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <unordered_map>

#include "screen/host/services.h"

namespace jogeon {

class StockNames {
public:
    // `lists` outlives this.
    explicit StockNames(host::CodeLists& lists) : lists_(lists) {}

    // The name of the stock with this code, the code itself if the host doesn't know it.
    const QString& Of(std::string_view code);

    // Asks again for the codes that the host didn't know; its lists may have come in the meantime.
    void ForgetUnknown();

private:
    struct Entry {
        QString shown;
        bool known;
    };

    host::CodeLists& lists_;
    std::unordered_map<std::string, Entry> entries_;
};

}  // namespace jogeon
