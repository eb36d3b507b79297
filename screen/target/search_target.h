// The search target of the screen and the label that tells it.
//
// The label is three parts in angle brackets: universe, exclusions, settlement month. The target dialog
// builds its label of the same parts.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "screen/condition/saved_index_info.h"
#include "screen/condition/target_fields.h"

namespace jogeon {

// Codes that stand for a whole list: all sectors; all interest groups or all themes.
inline constexpr std::string_view kAllSectors = "ALL";
inline constexpr std::string_view kAllOfList = "0AL";

struct SearchTarget : TargetFields {
    SearchTarget();

    std::string m_strTargetLabel;

    // What a new screen starts with: all sectors.
    static SearchTarget ForNewScreen();
};

enum class TargetTab { Sector = 0, Portfolio = 1, Recommend = 2 };

// The kind of universe that is chosen; Sector if none is.
TargetTab ActiveTab(const TargetFields& target);

// Whether any universe is chosen at all.
bool HasUniverse(const TargetFields& target);

// An account number as the host shows it: NVLink_GetAccountFmt(account, 1).
using FormatAccount = std::function<std::string(const std::string& account)>;

// The label of a stored target; without a universe only its exclusion and month parts.
std::string BuildTargetLabel(const TargetFields& target, const FormatAccount& formatAccount);

// The parts. `words` is a list with a comma behind each word, the last of which is cut.
std::string SectorPart(std::string_view words);
std::string WholeSectorPart();
std::string PortfolioPart(std::string_view words, bool excluded);
std::string RecommendPart(std::string_view words);
std::string WholeRecommendPart();
std::string ExclusionPart(const TargetFields& target);
std::string MonthPart(int month);

// The word of an account in the portfolio part: "보유:1234-5678,". `shown` is the account as the host shows
// it.
std::string HoldingsWord(std::string_view shown);

// The target of a saved set, labelled; and the other way, into the set's own fields.
SearchTarget TargetOfSaved(const CSavedIndexInfo& saved, const FormatAccount& formatAccount);
void StoreTarget(const TargetFields& target, CSavedIndexInfo& saved);

}  // namespace jogeon
