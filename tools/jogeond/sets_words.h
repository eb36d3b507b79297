// The words of the text form of condition sets: one table for writing and for reading.
//
// Texts are UTF-8.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "screen/condition/target_fields.h"

namespace jogeon::sets_text {

inline constexpr int kForm = 1;

inline constexpr std::string_view kFormKey = "form";
inline constexpr std::string_view kName = "name";
inline constexpr std::string_view kPosition = "position";
inline constexpr std::string_view kUniverse = "universe";
inline constexpr std::string_view kAccount = "account";
inline constexpr std::string_view kGroups = "groups";
inline constexpr std::string_view kExclude = "exclude";
inline constexpr std::string_view kMonth = "month";
inline constexpr std::string_view kExpression = "expression";

inline constexpr std::string_view kBuy = "buy";
inline constexpr std::string_view kSell = "sell";
inline constexpr std::string_view kOff = "off";      // behind a letter: not in use
inline constexpr std::string_view kValue = "value";  // behind a letter: its value is shown

// A word that stands for one bit of one of the target's fields.
struct TargetWord {
    std::string_view word;
    int TargetFields::*member;
    int bit;
};

inline constexpr TargetWord kUniverses[] = {
    {"sectors", &TargetFields::Upjong, 1},     {"interest groups", &TargetFields::Portfolio, 1},
    {"holdings", &TargetFields::Portfolio, 2}, {"themes", &TargetFields::Recommend, 1},
    {"news", &TargetFields::Recommend, 2},
};

inline constexpr TargetWord kExclusions[] = {
    {"관리종목", &TargetFields::Except1, 1},       {"투자경고/위험", &TargetFields::Except2, 1},
    {"투자유의종목", &TargetFields::Except3, 1},   {"우선주", &TargetFields::Except4, 1},
    {"담보대출불가능", &TargetFields::Except5, 1}, {"증거금 100%", &TargetFields::Except6, 1},
    {"거래정지", &TargetFields::Except7, 1},       {"선택종목", &TargetFields::Except10, 1},
};

// What is wrong with a text, in one line; whoever knows the place of it tells that.
class BadText : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// `text` in quotation marks, with \" and \\ for what would end it.
std::string Quote(std::string_view text);

// A cursor over one line.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) { SkipBlanks(); }

    bool AtEnd() const { return rest_.empty(); }
    bool AtQuote() const { return rest_.starts_with('"'); }

    // Passes `c` and the blanks behind it, if it comes next.
    bool Take(char c);

    // What comes before any of `ends`, or the rest, without blanks around it.
    std::string_view UpTo(std::string_view ends);

    // A text in quotation marks. Throws BadText where none stands or it doesn't end.
    std::string TakeQuoted();

private:
    void SkipBlanks();

    std::string_view rest_;
};

}  // namespace jogeon::sets_text
