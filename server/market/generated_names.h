// Names of companies that don't exist: two syllables that mean nothing and what the company does.
#pragma once

#include <set>
#include <string>

#include "server/market/generated_sectors.h"
#include "server/market/random_numbers.h"

namespace jogeon::market {

class CompanyNames {
public:
    // A name, in UTF-8, that this hasn't given before.
    std::string Next(const Sector& sector, RandomNumbers& random);
    std::string NextSpac(RandomNumbers& random);

private:
    std::set<std::string> given_;
};

}  // namespace jogeon::market
