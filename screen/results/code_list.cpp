#include "screen/results/code_list.h"

#include "screen/host/shared_tags.h"
#include "screen/text/cp949.h"

namespace jogeon {

void PublishCodeList(host::LinkStore& links, ResultView& view, const std::vector<std::string>& codes,
                     const std::string& conditionSet) {
    const std::string title = "조건검색"_cp949;
    links.NVLink_SetLinkTagData({host::tags::kResultKey, host::tags::kResultSetTag, conditionSet});
    links.NVLink_SetMultiCodeLinkTagData(title, codes);
    view.SetCodeList(title, codes);
}

}  // namespace jogeon
