#include "screen/results/result_notes.h"

#include "screen/expression/expression_text.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {

std::vector<host::SheetNote> MakeResultNotes(const ResultSet& result, const std::string& tabLabel) {
    std::vector<host::SheetNote> notes;
    if (const auto header = DecodeConditionHeader(result.searched.conditionSet)) {
        notes.push_back({"조건명"_cp949, header->name});
        notes.push_back({"조건식"_cp949, ToDisplayForm(header->exp)});
        for (const std::string& text : result.searched.conditionTexts) notes.push_back({"조건"_cp949, text});
        notes.push_back({"검색대상"_cp949, result.searched.targetLabel});
    }
    notes.push_back({"검색방법"_cp949, tabLabel});
    notes.push_back({"조건만족 종목"_cp949, Decimal(result.total)});
    notes.push_back({"검색결과"_cp949, Decimal(result.received)});
    return notes;
}

}  // namespace jogeon
