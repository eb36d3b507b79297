// The linked stock, as own screens share it with all others.
#pragma once

#include <string>

#include "screen/host/shared_tags.h"
#include "terminal/host/links.h"

namespace jogeon::terminal {

using host::tags::kStockKey;
using host::tags::kStockTag;

inline constexpr char kChartScreen[] = "0615";  // which shows it

// Sets both tags of the stock with this six-byte code; telling the others is the screen's.
inline void ShareStockCode(Links& links, const std::string& code) {
    for (const char* tag : {kStockTag, host::tags::kSecondStockTag})
        links.NVLink_SetLinkTagData({kStockKey, tag, code});
}

}  // namespace jogeon::terminal
