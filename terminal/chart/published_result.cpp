#include "terminal/chart/published_result.h"

#include <algorithm>

#include "screen/host/shared_tags.h"
#include "screen/text/cp949.h"

namespace jogeon::terminal::chart {

int PublishedResult::PlaceOf(const std::string& code) const {
    const auto found = std::find(codes.begin(), codes.end(), code);
    return found == codes.end() ? -1 : static_cast<int>(found - codes.begin());
}

const std::string& PublishedResult::Step(const std::string& code, int by) const {
    const int count = static_cast<int>(codes.size());
    const int place = PlaceOf(code);
    const int from = place < 0 && by < 0 ? 0 : place;
    return codes[static_cast<std::size_t>((from + by + count) % count)];
}

PublishedResult ReadPublished(Links& links) {
    return {links.CodesOf("조건검색"_cp949),
            links.NVLink_GetLinkTagData(host::tags::kResultKey, host::tags::kResultSetTag, nullptr)};
}

}  // namespace jogeon::terminal::chart
