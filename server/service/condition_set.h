// A condition set of a user's: what its header and blocks say, read with every check and written back.
//
// The bytes are those of the wire, 828 and 71 for each condition. A set that was read and is written again
// gives the same bytes, but that values stand at the right of their slots.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/transactions/condition_block.h"
#include "screen/transactions/condition_header.h"
#include "server/service/payload_reader.h"

namespace jogeon::service {

struct ConditionSet {
    ConditionHeader header;
    std::vector<DecodedBlock> blocks;  // 1 to 20
};

// Throws BadRequest unless `record` is one header and the blocks that it counts, every field of it is what
// its layout allows, its texts are CP949 without control characters, its expression is one, and each
// condition has a letter of its own and an indicator of the catalogue. Whether the values make sense is left
// to a search.
ConditionSet ReadConditionSet(std::string_view record);

// The record; the header's count is that of the blocks. Texts and values that are too long are cut.
std::string WriteConditionSet(const ConditionSet& set);

// The 71 bytes of one condition.
std::string WriteBlock(const DecodedBlock& block);

}  // namespace jogeon::service
