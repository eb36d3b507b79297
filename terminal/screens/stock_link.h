// The linked stock, as own screens share it with all others.
#pragma once

#include <string>

#include "terminal/host/links.h"

namespace jogeon::terminal {

inline constexpr char kStockKey[] = "ReturnMainKey";
inline constexpr char kStockTag[] = "JCODE";  // the one that changes are told of

// Sets both tags of the stock with this six-byte code; telling the others is the screen's.
inline void ShareStockCode(Links& links, const std::string& code) {
    for (const char* tag : {kStockTag, "J_ECODE"}) links.NVLink_SetLinkTagData({kStockKey, tag, code});
}

}  // namespace jogeon::terminal
