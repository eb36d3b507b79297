#include "screen/expression/parser.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "screen/expression/expression_check.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr char kUnknown[] = "S4PTKNLIST.TOKENIZE():UNKNOWN TOKEN STRING";
constexpr char kTerminal[] = "S4PTNODE.APPENDCHILD():TERMINAL NODE REACHED:MISSING OPERAND";
constexpr char kOccupied[] = "S4PTNBINLR.APPENDCHILD():ALL CHILD NODES OCCUPIED:MISSING OPERATOR";
constexpr char kNoRight[] = "S4PTNBINARY.VERIFY():RIGHT CHILD NODE NULL:MISSING OPERAND";
constexpr char kNoChild[] = "S4PTNUNARY.VERIFY():CHILD NODE NULL:MISSING OPERAND";
constexpr char kNoPreceding[] = "PTNODER_BINARY():NO PRECEDING OPERAND";
constexpr char kNoClose[] = "PTNODER_COPEN():NO MATCHING CONTAINER CLOSE";
constexpr char kNoOpen[] = "PTNODER_CCLOSE():NO MATCHING CONTAINER OPEN";

// Spellings for everything the engine knows. '%' is a class that it doesn't.
constexpr S4PTSPELLING kAllSpellings[] = {{"//", false, token_class::kLineComment},
                                          {"/*", false, token_class::kBlockComment},
                                          {"(", false, token_class::kOpen},
                                          {")", false, token_class::kClose},
                                          {"[", false, token_class::kOpenSecond},
                                          {"]", false, token_class::kCloseSecond},
                                          {"{", false, token_class::kOpenThird},
                                          {"}", false, token_class::kCloseThird},
                                          {"!", false, token_class::kNot},
                                          {"&", false, token_class::kAnd},
                                          {"|", false, token_class::kOr},
                                          {"?", false, token_class::kQuestion},
                                          {":", false, token_class::kColon},
                                          {"%", false, 35},
                                          {"#", false, 9},
                                          {"$", false, 120}};

// A node as its character and its children in brackets: "|(A &(B C))".
std::string Shape(const S4PTNODE& node) {
    std::string shape(1, *node.m_Token.m_pPosition);
    const S4PTNODE* child = node.NextInWalk(node.m_pParent);
    if (child == node.m_pParent) return shape;
    shape += "(";
    for (const S4PTNODE* next = child; next != node.m_pParent; next = node.NextInWalk(next)) {
        shape += (next == child ? "" : " ") + Shape(*next);
    }
    return shape + ")";
}

std::string ShapeOf(std::string_view text, std::span<const S4PTSPELLING> spellings = Spellings()) {
    S4PTREE tree;
    return tree.Parse(text, spellings) == 0 ? Shape(*tree.Root()) : "refused: " + tree.Error().m_strMessage;
}

// Texts that are refused alike, with a '^' before the token at fault; without one, none is named.
struct Refusal {
    const char* message;
    std::vector<std::string> texts;
};

void ExpectRefused(std::span<const Refusal> refusals, std::span<const S4PTSPELLING> spellings) {
    for (const Refusal& each : refusals) {
        for (std::string text : each.texts) {
            SCOPED_TRACE(text);
            const std::size_t mark = text.find('^');
            if (mark != text.npos) text.erase(mark, 1);
            S4PTREE tree;
            EXPECT_EQ(-1, tree.Parse(text, spellings));
            EXPECT_EQ(mark == text.npos ? -1 : static_cast<int>(mark), tree.Error().Index());
            EXPECT_EQ(each.message, tree.Error().m_strMessage);
            EXPECT_EQ(nullptr, tree.Root());
        }
    }
}

TEST(ParserTest, AcceptsEverySpelling) {
    const char* const texts[] = {
        "a AND b", "A and B",    "A&B",   "a&b",       "NOT a",     "nOt!a", "not(a)", "A And(B oR C)",
        "!!A",     "(A)",        "((A))", "(!A)",      "!(A)",      "()A",   "A()",    "A and (B)()",
        "(())!A",  "A\tor\r\nB", "(!)A",  "A and(!)B", "(not A)&b", "Z|z"};
    for (const char* text : texts) {
        const ExpressionCheck check = CheckExpressionText(text);
        EXPECT_TRUE(check.valid) << text << ": " << check.message;
        EXPECT_EQ(-1, check.errorPosition) << text;
    }
}

TEST(ParserTest, RefusesAtTheTokenAtFault) {
    const Refusal refusals[] = {
        {"", {"", " \t", "()", "((()) ())"}},
        {kUnknown,
         {"^AB", "^A1", "^A_", "A and ^1", "A ^? B : C", "A^:B", "^[A]", "^{A}", "A ^/* */", "^ANDY",
          "A ^ORDER", "A ^AND_B", "^NOT1", "^Aand B", "A ^andB"}},
        // The last one goes on from the first leaf inside.
        {kTerminal, {"^A B", " ^A !B", "(^A)(B)", "!^A !B", "A and ^B C", "(!^A)B", "(!(^A and B))C"}},
        {kOccupied, {"!^(A and B)C", "^(A and B)(C)", "(^(A and B))!C"}},
        {kNoRight,
         {"A ^and", "A ^and and B", "A ^or and B", "A ^and or B", "A ^and ()", "(A ^and) or B",
          "B or (A ^and)"}},
        {kNoChild, {"^!", "A and (^!)", "^! and A"}},
        {kNoPreceding, {"^and A", "A and (^or B)", "()^and A"}},
        {kNoClose, {"^(A", "^(A and ((B)", "A and ^(B"}},
        {kNoOpen, {"A^)", "(A)^)and(B"}},
    };
    ExpectRefused(refusals, Spellings());
}

TEST(ParserTest, BuildsTheTreeOfThePrecedences) {
    const std::pair<const char*, const char*> cases[] = {
        {"A & B | C", "|(&(A B) C)"},
        {"A | B & C", "|(A &(B C))"},
        {"A & B & C & D", "&(A &(B &(C D)))"},
        {"A | B & C | D", "|(A |(&(B C) D))"},
        {"!A & B", "&(!(A) B)"},
        {"!!A", "!(!(A))"},
        {"(A)", "A"},
        {"((!(A)))", "!(A)"},
        {"(A & B)", "((&(A B))"},
        {"((A & B))", "((&(A B))"},
        {"(A | B) & C", "&(((|(A B)) C)"},
        {"A & (B | C) & D", "&(A &(((|(B C)) D))"},
        {"!(A | B) & C", "&(!(((|(A B))) C)"},
        // Brackets around one operand are as good as none, so the operator goes on inside it.
        {"(!(A & B)) & C", "!(((&(A &(B C))))"},
        {"(!(A & B)) | C", "|(!(((&(A B))) C)"},
        {"(!(A & B | C)) & D", "!(((|(&(A &(B D)) C)))"},
        {"(!((!(A & B)) | C)) & D", "!(((|(!(((&(A &(B D)))) C)))"},
        {"(!(A & (!(B | C)) | D)) | E", "|(!(((&(A !(((|(B |(C D))))))) E)"},
        // The same for a `!` that still waits for its operand.
        {"(!)A", "!(A)"},
        {"A & !(!((!(! & B))) C) & D", "&(A !(!(!(((&(!(C) &(B D)))))))"},
    };
    for (const auto& [text, shape] : cases) EXPECT_EQ(shape, ShapeOf(text)) << text;
}

TEST(ParserTest, GivesLettersTheirIndexAndFindsTheFirstLeaf) {
    S4PTREE tree;
    ASSERT_EQ(0, tree.Parse("!(z | A) & C"));
    EXPECT_EQ(25, tree.FirstLeaf()->GetIndex());
    EXPECT_EQ(kNoIndex, tree.Root()->GetIndex());
    EXPECT_EQ(110, tree.Root()->m_nPrecedence);
}

TEST(ParserTest, PassesOverKoreanText) {
    EXPECT_TRUE(CheckExpressionText("A 가 and나 B"_cp949).valid);
    EXPECT_EQ(-1, CheckExpressionText("가"_cp949).errorPosition);
    EXPECT_FALSE(CheckExpressionText("가"_cp949).valid);
    EXPECT_TRUE(CheckExpressionText(std::string_view("A\0&&", 4)).valid);  // a text ends at its NUL
}

TEST(ParserTest, ShowsTheFaultByAHand) {
    EXPECT_EQ("A and  \xA2\xD1 1",
              ExpressionErrorText("A and 1", CheckExpressionText("A and 1").errorPosition));
    EXPECT_EQ(" \xA2\xD1 ()", ExpressionErrorText("()", -1));
    EXPECT_EQ(" \xA2\xD1 A B", ExpressionErrorText("A B", 0));
    EXPECT_EQ("A \xA2\xD1 ", ExpressionErrorText("A", 5));
}

TEST(ParserTest, KeepsThreeKindsOfBracketsApart) {
    const std::pair<const char*, const char*> cases[] = {
        {"[{(A)}]", "A"},
        {"[(A&B)]", "((&(A B))"},
        {"{[A|B]&C}", "{(&([(|(A B)) C))"},
        {"[]A{}", "A"},
    };
    for (const auto& [text, shape] : cases) EXPECT_EQ(shape, ShapeOf(text, kAllSpellings)) << text;
    // In the first the partner lies outside the round pair.
    const Refusal refusals[] = {{kNoClose, {"(^[A)]", "^(A]"}}, {kNoOpen, {"A^}"}}};
    ExpectRefused(refusals, kAllSpellings);
}

TEST(ParserTest, ReadsConditionals) {
    const std::pair<const char*, const char*> cases[] = {
        {"A?B:C", "?(A B C)"},
        {"A|B?C&D:!E", "?(|(A B) &(C D) !(E))"},
        {"A?B:C?D:E", "?(A B ?(C D E))"},
        {"A?B?C:D:E", "?(A ?(B C D) E)"},
        {"(A?B:C)&D", "&(((?(A B C)) D)"},
        {"A&(B?C:D)|E", "|(&(A ((?(B C D))) E)"},
        {"A?(B?C:D):E", "?(A ((?(B C D)) E)"},
    };
    for (const auto& [text, shape] : cases) EXPECT_EQ(shape, ShapeOf(text, kAllSpellings)) << text;
    const Refusal refusals[] = {
        {"PTNODER_QUESTION():NO PRECEDING OPERAND", {"^?B:C"}},
        // In the last the colon inside has spoilt the count.
        {"PTNODER_QUESTION():NO MATCHING COLON", {"A^?B", "A^?(B:C)", "A^?(:):B"}},
        {"PTNODER_QUESTION():NO FOLLOWING OPERAND",
         {"A^?:B", "A^?:", "A?B^:", "A^?():B", "A?()^:", "A?B^:()"}},
        {"PTNODER_COLON():NO MATCHING QUESTION", {"A^:B"}},
        {kOccupied, {"^(A?B:C)D"}},
        {kNoRight, {"(!(A?B:C))^|"}},  // went on from the first leaf
    };
    ExpectRefused(refusals, kAllSpellings);
}

TEST(ParserTest, SkipsComments) {
    const std::pair<const char*, const char*> cases[] = {
        {"A//&B", "A"},          {"A//x\r&B", "&(A B)"}, {"A//x\f&B", "&(A B)"}, {"A//\r\f&B", "&(A B)"},
        {"A//\f\r&B", "&(A B)"}, {"A//\n&B", "A"},       {"A/*&*/", "A"},        {"A/**/&/*/*/B", "&(A B)"},
        {"A&B/*", "&(A B)"},     {"/*/A*/B", "B"},
    };
    for (const auto& [text, shape] : cases) EXPECT_EQ(shape, ShapeOf(text, kAllSpellings)) << text;
}

TEST(ParserTest, RefusesTokensOfNoKnownClass) {
    const Refusal refusals[] = {{"S4PTKNLIST.MAKETREE():UNKNOW TOKEN", {"A^%", "(^#)", "A&^$"}}};
    ExpectRefused(refusals, kAllSpellings);
}

// --- Against a grammar written for the test

// or <- and <- not <- letter or brackets, over single characters.
class Grammar {
public:
    explicit Grammar(std::string_view text) : rest_(text) {}
    bool Accepts() { return Expression() && rest_.empty(); }

private:
    bool Expression() { return Term() && (!Take('|') || Expression()); }
    bool Term() { return Factor() && (!Take('&') || Term()); }
    bool Factor() {
        if (Take('!')) return Factor();
        if (Take('(')) return Expression() && Take(')');
        return Take('A');
    }
    bool Take(char c) {
        if (!rest_.starts_with(c)) return false;
        rest_.remove_prefix(1);
        return true;
    }
    std::string_view rest_;
};

// Whether a `!` has no operand behind it. The grammar refuses that; the parser may still give it one that
// stands behind the brackets.
bool HasBareNot(const std::string& text) {
    for (const char* bare : {"!)", "!&", "!|"}) {
        if (text.find(bare) != std::string::npos) return true;
    }
    return text.ends_with('!');
}

// The text without its empty pairs of brackets, which the parser doesn't see.
std::string WithoutEmptyPairs(std::string text) {
    for (std::size_t pair; (pair = text.find("()")) != std::string::npos;) text.erase(pair, 2);
    return text;
}

// Mostly balanced, so that a good share is well formed.
std::string RandomText(std::mt19937& random) {
    std::string text = "A";
    for (auto steps = random() % 12; steps > 0; --steps) {
        const std::string forms[] = {"(" + text + ")", "!" + text, text + "&A", "A|" + text, "()" + text};
        text = forms[random() % std::size(forms)];
    }
    constexpr std::string_view kCharacters = "()!&|A";
    for (auto changes = random() % 3; changes > 0; --changes) {
        const std::size_t at = random() % text.size();
        if (random() % 2 == 0)
            text.insert(at, 1, kCharacters[random() % kCharacters.size()]);
        else
            text[at] = kCharacters[random() % kCharacters.size()];
    }
    return text;
}

TEST(ParserTest, AgreesWithTheGrammarOnRandomTexts) {
    std::mt19937 random(20240229);
    int valid = 0;
    constexpr int kTexts = 20000;
    for (int i = 0; i < kTexts; ++i) {
        const std::string text = WithoutEmptyPairs(RandomText(random));
        if (HasBareNot(text)) continue;
        std::string spaced;
        for (const char c : text) spaced += {c, ' '};
        const ExpressionCheck check = CheckExpressionText(spaced);
        const bool expected = Grammar(text).Accepts();
        ASSERT_EQ(expected, check.valid) << text << ": " << check.message;
        valid += expected;
    }
    EXPECT_GT(valid, kTexts / 10);
    EXPECT_LT(valid, kTexts * 9 / 10);
}

// --- Sizes that nobody types

std::string Repeat(std::string_view piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

TEST(ParserTest, TakesAnyDepthAndLength) {
    constexpr int kTimes = 100000;
    const std::string open = Repeat("(", kTimes);
    const std::string close = Repeat(")", kTimes);
    const std::string valid[] = {
        "A" + Repeat(" and A", kTimes),
        Repeat("A and A or ", kTimes) + "A",
        open + "A" + close,
        open + "A and B" + close,
        Repeat("!", kTimes) + "A",
        Repeat("!(", kTimes) + "A" + close,
        Repeat("A or (", kTimes) + "A" + close,
        open + "A" + Repeat(" or A)", kTimes),
        Repeat("(!(", kTimes) + Repeat("!", kTimes) + "A" + Repeat(" or B))", kTimes),
        Repeat("()", kTimes) + "A",
    };
    for (const std::string& text : valid) {
        const ExpressionCheck check = CheckExpressionText(text);
        EXPECT_TRUE(check.valid) << text.substr(0, 20) << ": " << check.message;
    }
    EXPECT_EQ(0, CheckExpressionText(open).errorPosition);
    EXPECT_EQ(kTimes + 1, CheckExpressionText(open + "A" + close + ")").errorPosition - kTimes);
    EXPECT_EQ(2, CheckExpressionText("A " + Repeat("and ", kTimes)).errorPosition);
    EXPECT_EQ(0, S4PTREE().Parse(Repeat("A?A:", kTimes) + "A", kAllSpellings));
}

}  // namespace
}  // namespace jogeon
