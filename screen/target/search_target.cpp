#include "screen/target/search_target.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

constexpr char kNewsGroup = '9';  // the first character of news sources' codes, and of no other's

// What the part says for all stocks of a universe; it has no comma to cut.
const std::string& WholeUniverse() {
    static const std::string kText = "전체"_cp949;
    return kText;
}

// A list's last separator goes; an empty list stays empty.
std::string WithoutLast(std::string_view words) {
    return std::string(words.substr(0, words.empty() ? 0 : words.size() - 1));
}

std::string InBrackets(const std::string& name, const std::string& words) {
    return "<" + name + "(" + words + ")>";
}

bool BeginsWith(const std::string& code, char c) {
    return !code.empty() && code.front() == c;
}

bool AnyBeginsWith(const std::vector<std::string>& codes, char c) {
    return std::any_of(codes.begin(), codes.end(),
                       [c](const std::string& code) { return BeginsWith(code, c); });
}

std::string SectorWords(const TargetFields& target) {
    struct Market {
        char code;
        std::string word;
    };
    static const Market kMarkets[] = {
        {'0', "거래소,"_cp949}, {'1', "코스닥,"_cp949}, {'2', "KOSPI200,"}, {'3', "KOSTAR,"}};
    std::string words;
    for (const Market& market : kMarkets) {
        if (AnyBeginsWith(target.Group, market.code)) words += market.word;
    }
    return words;
}

std::string RecommendWords(const TargetFields& target) {
    const bool themes = std::any_of(target.Group.begin(), target.Group.end(),
                                    [](const std::string& code) { return !BeginsWith(code, kNewsGroup); });
    std::string words;
    if (themes) words += "테마,"_cp949;
    if (AnyBeginsWith(target.Group, kNewsGroup)) words += "뉴스,"_cp949;
    return words;
}

std::string PortfolioWords(const TargetFields& target, const FormatAccount& formatAccount) {
    std::string words;
    if (!target.Group.empty()) words += "관심,"_cp949;
    if (!target.Acc.empty()) words += HoldingsWord(formatAccount(target.Acc));
    return words;
}

std::string UniversePart(const TargetFields& target, const FormatAccount& formatAccount) {
    if (!HasUniverse(target)) return {};
    switch (ActiveTab(target)) {
        case TargetTab::Recommend:
            return RecommendPart(RecommendWords(target));
        case TargetTab::Portfolio:
            return PortfolioPart(PortfolioWords(target, formatAccount), target.Except10 == 1);
        case TargetTab::Sector:
            break;
    }
    const bool all = !target.Group.empty() && target.Group.front() == kAllSectors;
    return all ? WholeSectorPart() : SectorPart(SectorWords(target));
}

}  // namespace

SearchTarget::SearchTarget()
    : m_strTargetLabel(WholeSectorPart() + ExclusionPart(*this) + MonthPart(Month)) {}

SearchTarget SearchTarget::ForNewScreen() {
    SearchTarget target;
    target.Upjong = 1;
    target.Group = {std::string(kAllSectors)};
    return target;
}

bool HasUniverse(const TargetFields& target) {
    return target.Upjong != 0 || target.Portfolio != 0 || target.Recommend != 0;
}

TargetTab ActiveTab(const TargetFields& target) {
    if (target.Upjong == 1) return TargetTab::Sector;
    if (target.Recommend > 0) return TargetTab::Recommend;
    return target.Portfolio > 0 ? TargetTab::Portfolio : TargetTab::Sector;
}

std::string BuildTargetLabel(const TargetFields& target, const FormatAccount& formatAccount) {
    return UniversePart(target, formatAccount) + ExclusionPart(target) + MonthPart(target.Month);
}

std::string SectorPart(std::string_view words) {
    return InBrackets("업종대상"_cp949, WithoutLast(words));
}

std::string WholeSectorPart() {
    return InBrackets("업종대상"_cp949, WholeUniverse());
}

std::string RecommendPart(std::string_view words) {
    return InBrackets("추천대상"_cp949, WithoutLast(words));
}

std::string WholeRecommendPart() {
    return InBrackets("추천대상"_cp949, WholeUniverse());
}

std::string PortfolioPart(std::string_view words, bool excluded) {
    const std::string suffix = excluded ? "제외"_cp949 : std::string();
    return "<" + "포트폴리오"_cp949 + "(" + WithoutLast(words) + ")" + suffix + ">";
}

std::string HoldingsWord(std::string_view shown) {
    return "보유:"_cp949.append(Field(shown, 0, 4)).append("-").append(Field(shown, 4, 4)).append(",");
}

std::string ExclusionPart(const TargetFields& target) {
    struct Exclusion {
        int TargetFields::*flag;
        std::string word;
    };
    static const Exclusion kExclusions[] = {
        {&TargetFields::Except1, "관리+"_cp949},       {&TargetFields::Except2, "투자경고/위험+"_cp949},
        {&TargetFields::Except4, "우선주+"_cp949},     {&TargetFields::Except5, "담보대출불가능+"_cp949},
        {&TargetFields::Except6, "증거금100%+"_cp949}, {&TargetFields::Except7, "거래정지+"_cp949}};
    std::string words;
    for (const Exclusion& exclusion : kExclusions) {
        if (target.*exclusion.flag == 1) words += exclusion.word;
    }
    return words.empty() ? "<제외없음>"_cp949 : "<" + WithoutLast(words) + "제외>"_cp949;
}

std::string MonthPart(int month) {
    return "<" + (month == 0 ? WholeUniverse() : Decimal(month)) + "월결산>"_cp949;
}

SearchTarget TargetOfSaved(const CSavedIndexInfo& saved, const FormatAccount& formatAccount) {
    SearchTarget target;
    static_cast<TargetFields&>(target) = saved;
    target.m_strTargetLabel = BuildTargetLabel(target, formatAccount);
    return target;
}

void StoreTarget(const TargetFields& target, CSavedIndexInfo& saved) {
    static_cast<TargetFields&>(saved) = target;
}

}  // namespace jogeon
