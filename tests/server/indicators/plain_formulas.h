// The indicators once more, one stock at a time, by the plain formulas of docs/catalogue.md.
//
// Shares nothing with the code under test. A run is a stock's unbroken bars, the oldest first, the evaluated
// one last; NaN is a value that can't be known.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jogeon::indicators::plain {

struct Bar {
    double open, high, low, close, volume;
};
using Run = std::span<const Bar>;
using Roles = std::map<int, std::string>;
using Line = std::function<double(Run)>;

// One variant of an indicator: a line against others, which are constants for the two kinds of range.
struct Rule {
    // Says: the other line is 1 where the rule holds, 0 where it doesn't.
    enum Kind { AtLeast, AtMost, Within, Above, Below, Up, Down, Says } kind;
    Line line;                 // the value that is shown
    std::vector<Line> others;  // each must hold; of Within the two ends
};

enum class Answer { Unknown, False, True };
Answer Judge(const Rule& rule, Run run);

// The variants, by the first six characters of the key: all of families T and B that look at bars.
using Rules = std::vector<Rule> (*)(const Roles& roles);
const std::map<std::string_view, Rules>& Formulas();

}  // namespace jogeon::indicators::plain
