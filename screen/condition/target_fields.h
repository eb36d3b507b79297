// The stocks that a search runs over: universe, exclusions and settlement month.
//
// Exactly one kind of universe is chosen: Upjong 1, or Recommend above 0, or Portfolio above 0.
#pragma once

#include <string>
#include <vector>

namespace jogeon {

struct TargetFields {
    int Upjong = 0;                  // 1: sectors
    int Portfolio = 0;               // 1 interest groups, 2 one account's holdings, 3 both
    int Recommend = 0;               // 1 themes, 2 news sources, 3 both
    int Except1 = 0;                 // 관리종목
    int Except2 = 0;                 // 투자경고/위험
    int Except3 = 0;                 // 투자유의종목, only carried along
    int Except4 = 0;                 // 우선주
    int Except5 = 0;                 // 담보대출불가능종목
    int Except6 = 0;                 // 증거금 100% 종목
    int Except7 = 0;                 // 거래정지
    int Except10 = 0;                // search everything but the chosen portfolio
    int Month = 0;                   // settlement month 1 to 12, 0 for any
    std::vector<std::string> Group;  // three-byte codes; "ALL": all sectors, "0AL": all groups or themes
    std::string Acc;                 // account number, when Portfolio is 2 or 3

    bool operator==(const TargetFields&) const = default;
};

}  // namespace jogeon
