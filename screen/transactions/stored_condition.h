// A saved set as the server stores and sends it: one condition header, then its condition blocks.
//
// Relies on the layouts of header and block, and on the catalogue for what a block's values mean. Decoding
// undoes what a save request encodes. Records lie one behind the other without a separator.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "screen/condition/catalogue.h"
#include "screen/condition/saved_index_info.h"

namespace jogeon {

// Whether `text` is the number of a stored set: two digits.
bool IsSetNumber(std::string_view text);

// Bytes of the record that `data` begins with. None when it is cut short, or when its number or its count are
// no numbers: then nobody can say where the next record begins.
std::optional<std::size_t> StoredConditionLength(std::string_view data);

// The set of the record that `data` begins with; null for a record that is damaged or that has an indicator
// which the catalogue doesn't. `outLength` becomes the bytes that lie before the next record, the whole of
// `data` where that can't be told.
std::shared_ptr<CSavedIndexInfo> DecodeStoredCondition(std::string_view data, const Catalogue& catalogue,
                                                       std::size_t& outLength);

}  // namespace jogeon
