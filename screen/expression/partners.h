// Which bracket closes which, and which colon belongs to which question, found in one pass over the tokens.
//
// A reducer asks for the partner of its token instead of searching on, so that deep nesting stays linear.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "screen/expression/token.h"

namespace jogeon {

constexpr std::size_t kNoPartner = static_cast<std::size_t>(-1);

struct S4PTPARTNER {
    std::size_t index = kNoPartner;  // of the closing bracket or the colon
    int arity = 0;                   // largest arity of the tokens that stand directly in these brackets
};

// One entry a token, set for container opens and questions. Brackets pair within their own kind, as if the
// other kinds weren't there.
std::vector<S4PTPARTNER> FindPartners(const std::vector<std::unique_ptr<S4PTKN>>& tokens);

}  // namespace jogeon
