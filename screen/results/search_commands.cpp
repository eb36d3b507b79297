#include "screen/results/search_commands.h"

#include <utility>

#include "screen/target/search_target.h"
#include "screen/text/cp949.h"
#include "screen/transactions/sequential_request.h"

namespace jogeon {
namespace {

constexpr std::uint8_t kSearchKey = 1;
constexpr std::uint8_t kReleaseKey = 0x11;

}  // namespace

SearchCommands::SearchCommands(RequestChannel& channel, ResultFlow& results, ColumnTables& columns,
                               host::Questions& questions, host::Questions& expressionQuestions,
                               Gather gather)
    : channel_(channel),
      results_(results),
      columns_(columns),
      questions_(questions),
      expressionQuestions_(expressionQuestions),
      gather_(std::move(gather)) {}

// The old result is released even if composing then fails.
void SearchCommands::Start() {
    if (channel_.Busy()) return;
    SearchInputs inputs = gather_();
    if (!HasUniverse(inputs.header.target)) {
        questions_.Ask({"검색 대상을 먼저 지정해야 합니다."_cp949, "조건 검색"_cp949});
        return;
    }
    Release();
    inputs.prior = results_.Prior();
    const auto payload = inputs.scope == SearchScope::Sequential
                             ? BuildSequentialRequest(inputs, columns_, expressionQuestions_)
                             : ComposeSearch(inputs, columns_, expressionQuestions_);
    if (!payload) return;
    searchHandle_ = SearchHandleOf(inputs.header.currentSaved);
    results_.OnSearchSent(SearchedSetOf(inputs, *payload));
    channel_.Send(*payload, kSearchKey);
}

void SearchCommands::NextPage() {
    if (channel_.Busy()) return;
    const ResultSet* result = results_.Pageable();
    if (!result) return;
    channel_.Send(
        ComposeNextPage(channel_.Window(), gather_().header.userId, result->resultHandle, result->received),
        kSearchKey);
}

void SearchCommands::Release() {
    channel_.Send(ComposeRelease(channel_.Window(), gather_().header.userId, searchHandle_), kReleaseKey);
}

}  // namespace jogeon
