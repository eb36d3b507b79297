#include "screen/target/target_choice.h"

#include <algorithm>
#include <map>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

using Branch = TargetTree::Branch;
using Kind = TargetTree::Kind;
using Leaf = TargetTree::Leaf;
using Lines = std::vector<std::string>;

constexpr char kInterestClass[] = "0502";
constexpr char kThemeClass[] = "0505";
constexpr std::size_t kTextAt = 4;  // in a line of a code list
constexpr std::size_t kCodeWidth = 3;

// Places of the branches. The wildcard of the portfolio and of the recommendation stands for their first.
constexpr std::size_t kWhole = 0;
constexpr std::size_t kInterests = 0, kHoldings = 1;
constexpr std::size_t kThemes = 0, kNews = 1;

struct SectorList {
    const char* codeClass;
    std::string text;
};

const std::array<SectorList, 5>& SectorLists() {
    static const std::array<SectorList, 5> kLists = {{{"0202", "거래소"_cp949},
                                                      {"0203", "코스닥"_cp949},
                                                      {"0204", "KOSPI200"},
                                                      {"0205", "KOSTAR"},
                                                      {"0209", "KRX100"}}};
    return kLists;
}

std::vector<Leaf> LeavesOf(const Lines& lines) {
    std::vector<Leaf> leaves;
    for (const std::string& line : lines) {
        if (line.size() < kCodeWidth) continue;
        leaves.push_back({line.substr(0, kCodeWidth), std::string(Field(line, kTextAt, line.size()))});
    }
    return leaves;
}

void SortByText(Lines& lines) {
    std::stable_sort(lines.begin(), lines.end(), [](const std::string& a, const std::string& b) {
        return Field(a, kTextAt, a.size()) < Field(b, kTextAt, b.size());
    });
}

std::vector<Leaf> Accounts(host::LinkStore& links) {
    std::vector<Leaf> leaves;
    for (int i = 0; i < links.NVLink_GetAccountCount(); ++i) {
        const std::string account = links.NVLink_GetAccount(i);
        leaves.push_back({account, links.NVLink_GetAccountFmt(account, 1)});
    }
    return leaves;
}

std::vector<Leaf> NewsSources() {
    return {{"902", "장중시황"_cp949}, {"903", "인포스탁"_cp949},   {"904", "연합뉴스"_cp949},
            {"905", "이데일리"_cp949}, {"906", "머니투데이"_cp949}, {"907", "한경뉴스"_cp949},
            {"908", "공시"_cp949}};
}

TargetTree SectorTree(const std::map<std::string, Lines>& lists) {
    std::vector<Branch> branches = {{"전체"_cp949, Kind::Whole}};
    for (const SectorList& list : SectorLists()) {
        branches.push_back({list.text, Kind::List, LeavesOf(lists.at(list.codeClass))});
    }
    return TargetTree(std::move(branches));
}

// The codes of a list's checked leaves, or the wildcard for all of them. Whether any is checked.
bool TakeList(const Branch& list, std::vector<std::string>& group) {
    const std::vector<std::string> codes =
        list.checked ? std::vector<std::string>{std::string(kAllOfList)} : list.CheckedCodes();
    group.insert(group.end(), codes.begin(), codes.end());
    return !codes.empty();
}

// These fill a target from the tree of its tab and return its part of the label; none where nothing is
// checked.

std::optional<std::string> TakeSectors(const TargetTree& tree, TargetFields& target) {
    target.Upjong = 1;
    if (tree.Branches()[kWhole].checked) {
        target.Group = {std::string(kAllSectors)};
        return WholeSectorPart();
    }
    std::string words;
    std::size_t total = 0;
    for (const Branch& branch : tree.Branches()) {
        const std::vector<std::string> codes = branch.CheckedCodes();
        if (!codes.empty()) words += branch.text + ",";
        target.Group.insert(target.Group.end(), codes.begin(), codes.end());
        total += branch.leaves.size();
    }
    if (target.Group.empty()) return std::nullopt;
    return target.Group.size() == total ? WholeSectorPart() : SectorPart(words);
}

std::optional<std::string> TakePortfolio(const TargetTree& tree, TargetFields& target) {
    std::string words;
    if (TakeList(tree.Branches()[kInterests], target.Group)) {
        target.Portfolio += 1;
        words += "관심,"_cp949;
    }
    if (const Leaf* account = tree.Branches()[kHoldings].FirstChecked()) {
        target.Portfolio += 2;
        target.Acc = account->code;
        words += HoldingsWord(account->text);
    }
    if (target.Portfolio == 0) return std::nullopt;
    return PortfolioPart(words, target.Except10 == 1);
}

std::optional<std::string> TakeRecommend(const TargetTree& tree, TargetFields& target) {
    const Branch& themes = tree.Branches()[kThemes];
    const Branch& news = tree.Branches()[kNews];
    std::string words;
    if (TakeList(themes, target.Group)) {
        target.Recommend += 1;
        words += "테마,"_cp949;
    }
    const std::vector<std::string> sources = news.CheckedCodes();  // they have no wildcard
    if (!sources.empty()) {
        target.Recommend += 2;
        words += "뉴스,"_cp949;
        target.Group.insert(target.Group.end(), sources.begin(), sources.end());
    }
    if (target.Recommend == 0) return std::nullopt;
    return themes.checked && news.checked ? WholeRecommendPart() : RecommendPart(words);
}

}  // namespace

TargetChoice::TargetChoice(host::CodeLists& codeLists, host::LinkStore& links, const TargetFields& target) {
    std::map<std::string, Lines> lists = {{kInterestClass, {}}, {kThemeClass, {}}};
    for (const SectorList& list : SectorLists()) lists[list.codeClass] = {};
    codeLists.Fill(lists);
    SortByText(lists.at(kThemeClass));
    Tree(TargetTab::Sector) = SectorTree(lists);
    Tree(TargetTab::Portfolio) =
        TargetTree({{"관심종목"_cp949, Kind::List, LeavesOf(lists.at(kInterestClass))},
                    {"보유종목"_cp949, Kind::OneOnly, Accounts(links)}});
    Tree(TargetTab::Recommend) = TargetTree({{"테마"_cp949, Kind::List, LeavesOf(lists.at(kThemeClass))},
                                             {"뉴스"_cp949, Kind::List, NewsSources()}});
    Restore(target);
}

// A wildcard counts as the first code only. Where "ALL" stands no other code does.
void TargetChoice::Restore(const TargetFields& target) {
    const TargetTab tab = ActiveTab(target);
    TargetTree& tree = Tree(tab);
    const bool sectors = tab == TargetTab::Sector;
    const std::string_view wildcard = sectors ? kAllSectors : kAllOfList;
    if (!target.Group.empty() && target.Group.front() == wildcard) tree.Check(0);
    tree.CheckCodes(target.Group);
    if (tab == TargetTab::Portfolio && !target.Acc.empty()) tree.CheckOne(target.Acc);
}

std::optional<SearchTarget> TargetChoice::TargetOf(TargetTab tab, const TargetFields& options) const {
    SearchTarget target;
    static_cast<TargetFields&>(target) = options;
    target.Upjong = target.Portfolio = target.Recommend = 0;
    target.Group.clear();
    target.Acc.clear();
    std::optional<std::string> universe;
    switch (tab) {
        case TargetTab::Sector:
            universe = TakeSectors(Tree(tab), target);
            break;
        case TargetTab::Portfolio:
            universe = TakePortfolio(Tree(tab), target);
            break;
        case TargetTab::Recommend:
            universe = TakeRecommend(Tree(tab), target);
            break;
    }
    if (!universe) return std::nullopt;
    target.m_strTargetLabel = *universe + ExclusionPart(target) + MonthPart(target.Month);
    return target;
}

}  // namespace jogeon
