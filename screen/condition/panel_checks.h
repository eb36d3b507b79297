// Which values the parameter panel refuses, and what it tells the user then. Texts are CP949.
#pragma once

#include <optional>
#include <string_view>

#include "screen/condition/index_field.h"
#include "screen/host/services.h"

namespace jogeon {

// What to tell the user if the value is outside the field's bounds.
std::optional<host::Box> CheckRange(const CIndexField& field);

// What to tell the user if the value that he typed can't be stored or sent as it stands: it has a separator,
// isn't the number that it should be, or is longer than its slot in the packet of an indicator with this key.
std::optional<host::Box> CheckEntry(const CIndexField& field, std::string_view key);

// Bytes that a role has in the packet; 0 for a role that isn't sent.
std::size_t SlotWidth(std::string_view key, int role);

}  // namespace jogeon
