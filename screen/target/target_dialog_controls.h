// The controls of the target dialog: their numbers, captions, and what each of them stands for. UTF-8.
#pragma once

#include "screen/target/search_target.h"

namespace jogeon::target_dialog {

inline constexpr int kDialogId = 21016;
inline constexpr int kOtherMonthId = 21121;
inline constexpr int kOkId = 1;
inline constexpr int kCancelId = 2;

struct Page {
    TargetTab tab;
    int radioId;
    int treeId;
    const char* caption;
    const char* name;  // as a screen reader says it
};

inline constexpr Page kPages[] = {
    {TargetTab::Sector, 21086, 21070, "업 종", "업종"},
    {TargetTab::Portfolio, 21087, 21123, "포트폴리오", "포트폴리오"},
    {TargetTab::Recommend, 21088, 21124, "추 천", "추천"},
};

struct Exclusion {
    int id;
    int TargetFields::*flag;
    const char* caption;
};

inline constexpr int kUnusedId = 21112;      // never shown; it only carries its flag along
inline constexpr int kTurnedOverId = 21126;  // belongs to the portfolio

inline constexpr Exclusion kExclusions[] = {
    {21110, &TargetFields::Except1, "관리종목"},
    {21111, &TargetFields::Except2, "투자경고/위험"},
    {kUnusedId, &TargetFields::Except3, "투자유의종목(사용안함)"},
    {21113, &TargetFields::Except4, "우선주"},
    {21122, &TargetFields::Except5, "담보대출불가능종목"},
    {21165, &TargetFields::Except6, "증거금 100% 종목"},
    {21125, &TargetFields::Except7, "거래정지"},
    {kTurnedOverId, &TargetFields::Except10, "선택 관심종목이나 보유종목만 제외하고 검색"},
};

struct MonthButton {
    int id;
    int month;
    const char* caption;
};

inline constexpr int kOther = 13;  // stands for any month that has no button of its own

inline constexpr MonthButton kMonths[] = {{21115, 0, "전체"}, {21116, 3, "3월"},   {21117, 6, "6월"},
                                          {21118, 9, "9월"},  {21119, 12, "12월"}, {21120, kOther, "기타"}};

}  // namespace jogeon::target_dialog
