#include "screen/saved/name_check.h"

#include <algorithm>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/store_request.h"

namespace jogeon {

NameVerdict CheckSavedName(std::string_view utf8, const std::vector<std::string>& used) {
    const std::string_view trimmed = Trim(utf8);
    if (trimmed.empty()) return {std::nullopt, "새 조건명을 입력하세요."_cp949};
    const auto name = TryToCp949(trimmed);
    if (!name) {
        return {
            std::nullopt,
            "조건명에 쓸 수 없는 문자가 있습니다.\n\n한글, 한자, 영문, 숫자와 자주 쓰는 기호만 쓸 수 있습니다."_cp949};
    }
    if (name->size() > kMostNameBytes) {
        return {std::nullopt, "조건명이 너무 깁니다.\n\n한글 40자(영문 80자)까지 쓸 수 있습니다."_cp949};
    }
    if (std::find(used.begin(), used.end(), *name) != used.end()) {
        return {std::nullopt, "이미 존재하는 이름입니다. 다른 이름을 지정해 주세요. "_cp949};
    }
    return {name, {}};
}

}  // namespace jogeon
