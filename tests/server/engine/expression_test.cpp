#include "server/engine/expression.h"

#include <gtest/gtest.h>

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using indicators::Verdict;

// One stock for each character: T true, F false, U unknown.
Verdict VerdictOf(std::string_view values) {
    Verdict verdict{BitSet(values.size()), BitSet(values.size()), {}};
    for (std::size_t i = 0; i < values.size(); ++i) {
        verdict.truth.Set(i, values[i] == 'T');
        verdict.known.Set(i, values[i] != 'U');
    }
    return verdict;
}

std::string TextOf(const Truth& truth) {
    std::string text;
    for (std::size_t i = 0; i < truth.truth.Size(); ++i)
        text += truth.truth.Get(i) ? 'T' : truth.known.Get(i) ? 'F' : 'U';
    return text;
}

TEST(ExpressionTest, EvaluatesWithThreeValues) {
    const std::map<char, Verdict> verdicts = {
        {'A', VerdictOf("TTTFFFUUU")},
        {'B', VerdictOf("TFUTFUTFU")},
        {'C', VerdictOf("FFFFTTTTU")},
    };
    const std::pair<const char*, const char*> cases[] = {
        {"A", "TTTFFFUUU"},
        {"!A", "FFFTTTUUU"},
        {"!!A", "TTTFFFUUU"},
        {"A&B", "TFUFFFUFU"},
        {"A|B", "TTTTFUTUU"},
        {"A|!A", "TTTTTTUUU"},  // not everything: unknown stays unknown
        {"A&!A", "FFFFFFUUU"},
        {"!(A&B)", "FTUTTTUTU"},
        {"!A&B", "FFFTFUUFU"},   // not binds before and
        {"A|B&C", "TTTFFUTUU"},  // and before or
        {"B&C|A", "TTTFFUTUU"},
        {"(A|B)&C", "FFFFFUTUU"},
        {"!(A|B)&!(C)", "FFFFFFFFU"},
        {"((A))", "TTTFFFUUU"},
        {"A\n&\xb0\xa1 B\t", "TFUFFFUFU"},  // a line end, a Korean letter, a blank
    };
    for (const auto& [expression, expected] : cases) {
        const std::optional<Expression> parsed = Expression::Parse(expression);
        ASSERT_TRUE(parsed) << expression;
        const Truth result = parsed->Evaluate(verdicts);
        EXPECT_EQ(TextOf(result), expected) << expression;
        EXPECT_EQ(result.truth & result.known, result.truth) << expression;
    }
}

TEST(ExpressionTest, RefusesWhatIsNoExpression) {
    for (const char* text : {"",   "a",  " ",   "A B",  "AB",   "A&",  "&A", "A&&B", "A!",     "!",  "()",
                             "(A", "A)", ")A(", "(A)B", "A(B)", "A!B", "A|", "1",    "A&(B|)", "A&!"})
        EXPECT_FALSE(Expression::Parse(text)) << text;
}

TEST(ExpressionTest, LettersComeOnceAndInOrder) {
    EXPECT_EQ(Expression::Parse("Z&(A|Z)|!M")->Letters(), "AMZ");
}

TEST(ExpressionTest, DepthAndLengthCantHurt) {
    constexpr std::size_t kDeep = 50'000;
    const std::map<char, Verdict> verdicts = {{'A', VerdictOf("TFU")}};
    const std::string open(kDeep, '('), close(kDeep, ')'), bangs(kDeep, '!');
    EXPECT_EQ(TextOf(Expression::Parse(open + "A" + close)->Evaluate(verdicts)), "TFU");
    EXPECT_EQ(TextOf(Expression::Parse(bangs + "A")->Evaluate(verdicts)), "TFU");
    EXPECT_FALSE(Expression::Parse(open));
    std::string chain = "A";
    for (std::size_t i = 0; i < kDeep; ++i) chain += "&A";
    EXPECT_EQ(TextOf(Expression::Parse(chain)->Evaluate(verdicts)), "TFU");
}

}  // namespace
}  // namespace jogeon::engine
