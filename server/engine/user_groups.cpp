#include "server/engine/user_groups.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <span>

#include "screen/text/bytes.h"

namespace jogeon::engine {
namespace {

using indicators::BitSet;
using market::Instrument;
using market::Market;

struct ThemeRule {
    std::string_view name;
    std::array<std::string_view, 3> industries;  // pieces of the industry text, unused places empty
    std::array<std::string_view, 3> names;       // pieces of the stock's name
};

constexpr ThemeRule kThemes[] = {
    {"반도체", {"반도체"}, {"반도체"}},
    {"이차전지", {"이차전지"}, {"배터리", "에너지솔루션"}},
    {"제약·바이오", {"의약", "제약"}, {"바이오", "제약"}},
    {"자동차·부품", {"자동차", "운송장비"}, {}},
    {"조선·해운", {"선박", "해상 운송", "조선"}, {"조선", "해운"}},
    {"소프트웨어·게임", {"소프트웨어", "게임"}, {"게임", "소프트"}},
    {"방송·콘텐츠", {"영화", "방송업", "오디오물"}, {"엔터", "미디어"}},
    {"건설", {"건설"}, {"건설"}},
    {"금융지주·증권", {"은행", "금융 지원", "증권"}, {"금융지주", "증권"}},
    {"지주회사", {"회사 본부"}, {"홀딩스", "지주"}},
    {"기업인수목적(SPAC)", {}, {"스팩"}},
};

bool HasOneOf(std::string_view text, std::span<const std::string_view> pieces) {
    return std::any_of(pieces.begin(), pieces.end(), [text](std::string_view piece) {
        return !piece.empty() && text.find(piece) != std::string_view::npos;
    });
}

BitSet StocksWhere(const Market& market, const std::function<bool(std::size_t)>& fits) {
    BitSet stocks(market.Instruments().size());
    for (std::size_t i = 0; i < stocks.Size(); ++i)
        if (fits(i)) stocks.Set(i);
    return stocks;
}

// The stocks by the text of their industry, which many of them share.
std::map<std::string_view, BitSet> StocksByIndustry(const Market& market) {
    const std::vector<Instrument>& all = market.Instruments();
    std::map<std::string_view, BitSet> industries;
    for (std::size_t stock = 0; stock < all.size(); ++stock)
        industries.try_emplace(all[stock].industry, all.size()).first->second.Set(stock);
    return industries;
}

}  // namespace

const Account* UserGroups::FindAccount(std::string_view number) const {
    for (const Account& account : accounts)
        if (account.number == number) return &account;
    return nullptr;
}

GroupList ExampleThemes(const Market& market) {
    const std::map<std::string_view, BitSet> industries = StocksByIndustry(market);
    GroupList groups;
    for (std::size_t i = 0; i < std::size(kThemes); ++i) {
        const ThemeRule& rule = kThemes[i];
        BitSet members = StocksWhere(market, [&](std::size_t stock) {
            return HasOneOf(market.Instruments()[stock].name, rule.names);
        });
        for (const auto& [industry, stocks] : industries)
            if (HasOneOf(industry, rule.industries)) members |= stocks;
        // The code is the rule's own place in the table, whichever themes this market has stocks for.
        if (members.Count())
            groups.push_back({"6" + ZeroPadded(static_cast<int>(i) + 1, 2), std::string(rule.name), members});
    }
    return groups;
}

}  // namespace jogeon::engine
