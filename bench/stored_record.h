// What the benchmarks of the store save.
#pragma once

#include <string>

#include "screen/text/bytes.h"
#include "server/service/condition_set.h"

namespace jogeon {

inline constexpr int kRecordConditions = 20;

// A set of twenty conditions as it stands in a save.
inline std::string Record(const std::string& user, const std::string& number) {
    service::ConditionSet set;
    set.header.userId = user;
    set.header.number = number;
    set.header.name = "bench";
    set.header.target.Upjong = 1;
    set.header.target.Group = {"ALL"};
    for (int i = 0; i < kRecordConditions; ++i) {
        DecodedBlock block;
        block.family = 'T';
        block.inUse = true;
        block.letter = static_cast<char>('A' + i);
        block.key = "010101";
        block.number = 12;
        block.roles = {{20, "D"}, {30, "0"}, {40, Decimal(5 + i)}, {50, "0"}};
        set.header.exp += (i ? "&" : "") + std::string(1, block.letter);
        set.blocks.push_back(block);
    }
    return service::WriteConditionSet(set);
}

}  // namespace jogeon
