// The expression over condition letters in its compact form, evaluated with three values.
//
// or <- and ('|' and)*, and <- not ('&' not)*, not <- '!' not | letter | '(' or ')'. Neither the length nor
// the depth of a text can hurt: parser and evaluation keep their own stack. It knows nothing of indicators
// but their verdicts.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "server/indicators/indicator.h"

namespace jogeon::engine {

// Stocks for which something is true, and those for which it is known whether it is.
struct Truth {
    indicators::BitSet truth;
    indicators::BitSet known;
};

class Expression {
public:
    // None unless the whole of `compact` is one expression. Bytes that the expression box lets pass unseen
    // are passed over here as well; small letters are no part of the form.
    static std::optional<Expression> Parse(std::string_view compact);

    // The letters that occur, each once, in alphabetical order.
    const std::string& Letters() const { return letters_; }

    // `!unknown` is unknown, `false & unknown` is false, `true | unknown` is true. Every letter of the
    // expression is a key of `verdicts`, whose sets are all of one size.
    Truth Evaluate(const std::map<char, indicators::Verdict>& verdicts) const;

private:
    std::string postfix_;  // operands before their operator
    std::string letters_;
};

}  // namespace jogeon::engine
