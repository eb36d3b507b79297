// The command that puts the user's sets in a new order, and the reply to it.
#include <algorithm>

#include "screen/saved/saved_conditions.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "screen/transactions/store_request.h"

namespace jogeon {
namespace {

const std::string& Caption() {
    static const std::string caption = "조건 순서 변경"_cp949;
    return caption;
}

// Whether `order` names each of the sets once.
bool NamesAll(std::vector<std::string> order, const std::vector<SavedSetName>& sets) {
    std::vector<std::string> numbers;
    for (const SavedSetName& set : sets) numbers.push_back(set.number);
    std::sort(order.begin(), order.end());
    std::sort(numbers.begin(), numbers.end());
    return order == numbers;
}

}  // namespace

// Answers may come while the dialog stands; an order of sets that are no longer the user's isn't sent.
void SavedConditions::ReorderCommand() {
    const std::string version = mirror_.Version();
    const SavedSets sets = tree_->UserSets();  // the work list, `reorderList`
    std::vector<SavedSetName> rows;
    for (const auto& set : sets) rows.push_back({set->m_strKey, set->Name});
    const auto places = dialogs_.AskOrder(rows);
    if (!places) return;
    std::vector<std::string> order;
    for (const std::size_t place : *places) order.push_back(rows.at(place).number);
    if (mirror_.Version() != version || !NamesAll(order, mirror_.Sets())) {
        questions_.Ask(
            {"저장조건이 그 사이에 바뀌어 순서를 변경할 수 없습니다.\n\n다시 시도해 주시기 바랍니다."_cp949,
             Caption()});
        return;
    }
    requests_.Add({'C', version, nullptr, nullptr, order});
    channel_.Send(BuildReorderRequest(mirror_.UserId(), version, order), kReorderKey);
}

// The file is renumbered as it stands, so it must be the one that the server has put in order.
void SavedConditions::OnReorderReply(std::string_view data) {
    const StoreReply reply = ReadReorderReply(data);
    const StoreRequests::List answered = requests_.Take('C');
    if (answered.empty()) return;
    if (!reply.success) {
        TellFailure(Caption(), reply);
    } else if (!IsCertain(answered) || !mirror_.InStep() ||
               !NamesAll(answered.front().order, mirror_.Sets())) {
        DownloadInstead(answered);
    } else {
        OnReordered(answered.front(), reply);
    }
}

// The sets have the numbers of their places now, and so has the one on the screen.
void SavedConditions::OnReordered(const StoreRequest& request, const StoreReply& reply) {
    if (!mirror_.Renumber(request.order, *reply.version)) {
        TellUnwritten();
        return;
    }
    const std::string number = currentSaved_ ? currentSaved_->m_strKey : std::string();
    const auto place = std::find(request.order.begin(), request.order.end(), number);
    ShowRebuiltSets(place == request.order.end()
                        ? std::string()
                        : ZeroPadded(static_cast<int>(place - request.order.begin()), 2));
}

}  // namespace jogeon
