#include "server/engine/expression.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace jogeon::engine {
namespace {

// Control characters, blanks and the bytes of Korean text: what the check of the expression box passes over.
bool IsPassedOver(char c) {
    return static_cast<signed char>(c) <= ' ';
}

bool IsLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

int Strength(char op) {
    switch (op) {
        case '!':
            return 3;
        case '&':
            return 2;
        case '|':
            return 1;
        default:
            return 0;  // an open bracket holds everything below it back
    }
}

// Turns the text into postfix, with waiting operators and brackets on a stack of its own.
class PostfixBuilder {
public:
    // False when `c` can't stand where it stands.
    bool Take(char c) { return wantsOperand_ ? TakeOperand(c) : TakeOperator(c); }

    // The postfix form; empty when the text stopped short.
    std::string Finish() {
        if (wantsOperand_) return {};
        Release(1);
        return waiting_.empty() ? postfix_ : std::string();
    }

private:
    bool TakeOperand(char c) {
        if (c == '!' || c == '(') {
            waiting_.push_back(c);
            return true;
        }
        if (!IsLetter(c)) return false;
        postfix_.push_back(c);
        wantsOperand_ = false;
        return true;
    }

    bool TakeOperator(char c) {
        if (c == ')') return CloseBracket();
        if (c != '&' && c != '|') return false;
        Release(Strength(c));
        waiting_.push_back(c);
        wantsOperand_ = true;
        return true;
    }

    bool CloseBracket() {
        Release(1);
        if (waiting_.empty()) return false;
        waiting_.pop_back();
        return true;
    }

    // Moves the operators that bind at least as strongly as `strength`, up to the last open bracket.
    void Release(int strength) {
        while (!waiting_.empty() && Strength(waiting_.back()) >= strength) {
            postfix_.push_back(waiting_.back());
            waiting_.pop_back();
        }
    }

    std::string postfix_;
    std::string waiting_;
    bool wantsOperand_ = true;
};

std::string LettersOf(std::string_view text) {
    std::string letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters), IsLetter);
    std::sort(letters.begin(), letters.end());
    letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
    return letters;
}

Truth Not(const Truth& a) {
    return {a.known & ~a.truth, a.known};
}

Truth And(const Truth& a, const Truth& b) {
    const indicators::BitSet knownFalse = (a.known & ~a.truth) | (b.known & ~b.truth);
    return {a.truth & b.truth, (a.known & b.known) | knownFalse};
}

Truth Or(const Truth& a, const Truth& b) {
    indicators::BitSet truth = a.truth | b.truth;
    indicators::BitSet known = (a.known & b.known) | truth;
    return {std::move(truth), std::move(known)};
}

}  // namespace

std::optional<Expression> Expression::Parse(std::string_view compact) {
    PostfixBuilder builder;
    for (char c : compact)
        if (!IsPassedOver(c) && !builder.Take(c)) return std::nullopt;
    Expression parsed;
    parsed.postfix_ = builder.Finish();
    if (parsed.postfix_.empty()) return std::nullopt;
    parsed.letters_ = LettersOf(compact);
    return parsed;
}

Truth Expression::Evaluate(const std::map<char, indicators::Verdict>& verdicts) const {
    std::vector<Truth> stack;
    for (char step : postfix_) {
        if (IsLetter(step)) {
            const indicators::Verdict& verdict = verdicts.at(step);
            stack.push_back({verdict.truth, verdict.known});
        } else if (step == '!') {
            stack.back() = Not(stack.back());
        } else {
            const Truth right = std::move(stack.back());
            stack.pop_back();
            stack.back() = step == '&' ? And(stack.back(), right) : Or(stack.back(), right);
        }
    }
    return std::move(stack.back());
}

}  // namespace jogeon::engine
