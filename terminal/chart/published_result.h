// The stocks that the shown result has published for other screens, and the conditions that found them.
#pragma once

#include <string>
#include <vector>

#include "terminal/host/links.h"

namespace jogeon::terminal::chart {

struct PublishedResult {
    std::vector<std::string> codes;
    std::string conditionSet;  // header and blocks; empty if no conditions found the stocks

    // From 0; -1 for a stock that isn't among them.
    int PlaceOf(const std::string& code) const;

    // The code so many places on, round at the ends: the first or last from a stock that isn't among them.
    // There are codes.
    const std::string& Step(const std::string& code, int by) const;
};

// As it is published now.
PublishedResult ReadPublished(Links& links);

}  // namespace jogeon::terminal::chart
