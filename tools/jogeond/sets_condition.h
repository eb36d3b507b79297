// One condition as a line of text in the catalogue's names:
//   RSI [기준값 이상]: 주기=일, 봉전=0, 기간=14, 기준값=70
//
// Relies on the catalogue for names, and keeps every byte of a condition's values: a value that the catalogue
// has no name for stands in quotation marks, a role that it has none for as #41. Texts are UTF-8.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "screen/condition/catalogue.h"
#include "screen/transactions/condition_block.h"
#include "tools/jogeond/sets_words.h"

namespace jogeon::sets_text {

class ConditionLines {
public:
    // The catalogue outlives this object.
    explicit ConditionLines(const Catalogue& catalogue);

    // The line of a condition, all but its letter and flags. Throws BadText for an indicator that the
    // catalogue doesn't have.
    std::string Write(const DecodedBlock& block) const;

    // The condition of such a line. Throws BadText where the line isn't what the catalogue allows, or a
    // value finds no room in its slot. What is allowed but outside the catalogue's bounds is told in
    // `warnings`.
    DecodedBlock Read(std::string_view line, std::vector<std::string>& warnings) const;

private:
    std::string NameOf(const CIndexInfo& index) const;
    const CIndexInfo& Named(std::string_view name) const;

    const Catalogue& catalogue_;
    std::map<std::string, const CIndexInfo*, std::less<>> byName_;     // null: a name of several
    std::map<std::string, const CIndexInfo*, std::less<>> byWireKey_;  // the first six characters
};

}  // namespace jogeon::sets_text
