// The payloads of a search: "T" starts one, "N" asks for its next page, "Z" releases it on the server.
//
// "T" is composed from plain inputs, so that the screen and a command line compose the same bytes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/host/services.h"
#include "screen/transactions/condition_header.h"
#include "screen/transactions/result_columns.h"

namespace jogeon {

class CIndexInfo;

enum class SearchScope { Whole, Within, Outside, Sequential };  // in the order of the scope list

inline constexpr std::size_t kMaxExpressionBytes = condition_header::kExp.width;

// The result that a search within or outside it starts from.
struct PriorResult {
    int received = 0;
    std::vector<std::string> codes;  // the first field of each row
};

struct SearchInputs {
    host::WindowHandle window = 0;
    SearchScope scope = SearchScope::Whole;
    HeaderSource header;
    std::string targetLabel;                    // what the screen calls the target; not sent
    std::vector<const CIndexInfo*> conditions;  // in list order, checked or not
    std::string expressionText;                 // as the box shows it
    std::optional<PriorResult> prior;           // none without a result tab
    // Checks the trimmed expression and tells the user what is wrong with it.
    std::function<bool(const std::string&)> checkExpression;
    // Takes the next step of a sequential search, of which it gives the number, from 1.
    std::function<int()> nextSequenceStep;
};

// The "T" payload, and `columns.sequenceStart` set by what it asks for. None, where possible in silence, when
// there is no condition, no checked one, no result to search in, or when the expression is refused.
std::optional<std::string> ComposeSearch(const SearchInputs& inputs, ColumnTables& columns,
                                         host::Questions& questions);

// Checks the text and brings it to its compact form. None after the user has been told why: it fails the
// check, or its compact form doesn't fit its field.
std::optional<std::string> CompactExpression(std::string_view text,
                                             const std::function<bool(const std::string&)>& check,
                                             host::Questions& questions);

// The conditions of the list with their check set.
std::vector<const CIndexInfo*> CheckedConditions(const std::vector<const CIndexInfo*>& conditions);

// The header and block section that a search, a sequential step and a real-time hand-over share: 828 bytes
// with `count`, then one block for each of `blocks`.
std::string ComposeConditionSet(const HeaderSource& header, std::string_view expression, int count,
                                const std::vector<const CIndexInfo*>& blocks);

// A "T" payload without a prior result.
std::string ComposeStart(host::WindowHandle window, char scope, const std::string& conditionSet,
                         const std::vector<std::string>& fids);

// The header of a "T" payload with as many blocks as it tells; what is missing of them is left out.
std::string_view ConditionSetIn(std::string_view payload);

// The count and the FIDs as a request lists them.
std::string ComposeFidList(const std::vector<std::string>& fids);

// The 23 bytes of "N".
std::string ComposeNextPage(host::WindowHandle window, std::string_view userId, int resultHandle,
                            int received);

// The 19 bytes of "Z". `searchHandle` has two characters.
std::string ComposeRelease(host::WindowHandle window, std::string_view userId, std::string_view searchHandle);

}  // namespace jogeon
