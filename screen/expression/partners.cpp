#include "screen/expression/partners.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace jogeon {
namespace {

using Tokens = std::vector<std::unique_ptr<S4PTKN>>;
using Partners = std::vector<S4PTPARTNER>;

// 0 to 2 for the three kinds of brackets.
std::size_t OpenKind(std::int16_t open) {
    return static_cast<std::size_t>(open - token_class::kOpen) / 20;
}
std::size_t CloseKind(std::int16_t close) {
    return static_cast<std::size_t>(close - token_class::kClose) / 20;
}

void PairBrackets(const Tokens& tokens, Partners& partners) {
    std::array<std::vector<std::size_t>, 3> open;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const std::int16_t tokenClass = tokens[i]->m_nClass;
        if (IsContainerOpen(tokenClass)) {
            open[OpenKind(tokenClass)].push_back(i);
        } else if (IsContainerClose(tokenClass)) {
            std::vector<std::size_t>& waiting = open[CloseKind(tokenClass)];
            if (waiting.empty()) continue;
            partners[waiting.back()].index = i;
            waiting.pop_back();
        } else {
            for (const std::vector<std::size_t>& waiting : open) {
                if (waiting.empty()) continue;
                int& arity = partners[waiting.back()].arity;
                arity = std::max(arity, Arity(tokenClass));
            }
        }
    }
}

// Bracket depth of any kind and question depth in front of a token.
using Depths = std::pair<long, long>;

std::vector<Depths> DepthsBefore(const Tokens& tokens) {
    std::vector<Depths> before;
    before.reserve(tokens.size());
    Depths depths;
    for (const std::unique_ptr<S4PTKN>& token : tokens) {
        before.push_back(depths);
        depths.first += IsContainerOpen(token->m_nClass) - IsContainerClose(token->m_nClass);
        depths.second +=
            (token->m_nClass == token_class::kQuestion) - (token->m_nClass == token_class::kColon);
    }
    return before;
}

// A question's colon is the next one at the depths right behind the question. Every colon lowers the question
// depth, also one inside brackets that belongs to no question.
void PairColons(const Tokens& tokens, Partners& partners) {
    const std::vector<Depths> before = DepthsBefore(tokens);
    std::map<Depths, std::size_t> nearestColon;
    for (std::size_t i = tokens.size(); i-- > 0;) {
        if (tokens[i]->m_nClass == token_class::kColon) nearestColon[before[i]] = i;
        if (tokens[i]->m_nClass != token_class::kQuestion) continue;
        const auto colon = nearestColon.find({before[i].first, before[i].second + 1});
        if (colon != nearestColon.end()) partners[i].index = colon->second;
    }
}

}  // namespace

std::vector<S4PTPARTNER> FindPartners(const Tokens& tokens) {
    Partners partners(tokens.size());
    PairBrackets(tokens, partners);
    PairColons(tokens, partners);
    return partners;
}

}  // namespace jogeon
