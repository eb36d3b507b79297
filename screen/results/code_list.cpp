#include "screen/results/code_list.h"

#include "screen/text/cp949.h"

namespace jogeon {

void PublishCodeList(host::LinkStore& links, ResultView& view, const std::vector<std::string>& codes,
                     const std::string& conditionSet) {
    const std::string title = "조건검색"_cp949;
    links.NVLink_SetLinkTagData({"CS_RESULT", "CONDSET", conditionSet});
    links.NVLink_SetMultiCodeLinkTagData(title, codes);
    view.SetCodeList(title, codes);
}

}  // namespace jogeon
