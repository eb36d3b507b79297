// The sectors that stocks are sorted into, from the industry text that the market's sources give.
//
// The table is fixed, so that a sector's number means the same whatever market is loaded: saved conditions
// keep it. A text that names no sector falls to the last one, 기타.
#pragma once

#include <span>
#include <string_view>

namespace jogeon::engine {

struct Sector {
    std::string_view name;                       // UTF-8, as the user sees it
    std::span<const std::string_view> keywords;  // pieces of an industry text that tell it; UTF-8
};

std::span<const Sector> AllSectors();

// Index in AllSectors() of an industry text: the sector of that very name, else the first one with a keyword
// in the text, else the last.
int SectorOf(std::string_view industry);

}  // namespace jogeon::engine
