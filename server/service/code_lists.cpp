#include "server/service/code_lists.h"

#include "screen/text/cp949.h"

namespace jogeon::service {
namespace {

using engine::GroupList;
using engine::MarketGroups;
using engine::StockGroup;
using engine::UserGroups;

using Lines = std::vector<std::string>;

void Append(Lines& lines, const GroupList& groups, const std::string& prefix = {}) {
    for (const StockGroup& group : groups) lines.push_back(group.code + " " + ToCp949(prefix + group.name));
}

Lines LinesOf(const GroupList& groups) {
    Lines lines;
    Append(lines, groups);
    return lines;
}

// Both exchanges have sectors of the same names, which one list must tell apart.
Lines AllSectors(const MarketGroups& groups) {
    Lines lines;
    Append(lines, groups.kospi, "거래소 ");
    Append(lines, groups.kosdaq, "코스닥 ");
    for (const GroupList* list : {&groups.kospi200, &groups.kostar, &groups.krx100}) Append(lines, *list);
    return lines;
}

}  // namespace

Lines CodeList(std::string_view codeClass, const MarketGroups& groups, const UserGroups& user) {
    if (codeClass == "0202") return LinesOf(groups.kospi);
    if (codeClass == "0203") return LinesOf(groups.kosdaq);
    if (codeClass == "0204") return LinesOf(groups.kospi200);
    if (codeClass == "0205") return LinesOf(groups.kostar);
    if (codeClass == "0209") return LinesOf(groups.krx100);
    if (codeClass == "0502") return LinesOf(user.interests);
    if (codeClass == "0504") return AllSectors(groups);
    if (codeClass == "0505") return LinesOf(user.themes);
    return {};
}

}  // namespace jogeon::service
