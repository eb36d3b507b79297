#include "screen/results/realtime_command.h"

#include <vector>

#include "screen/condition/index_info.h"
#include "screen/host/shared_tags.h"
#include "screen/target/search_target.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

using namespace host::tags;

constexpr char kWatchScreen[] = "0156";

std::string DescriptionsOf(const std::vector<const CIndexInfo*>& conditions) {
    std::vector<std::string> texts;
    for (const CIndexInfo* condition : conditions) texts.push_back(condition->GetDescription());
    return Join(texts, " + ");
}

}  // namespace

std::optional<std::string> BuildRealtimeCondition(const SearchInputs& inputs, host::Questions& questions) {
    if (inputs.conditions.empty()) return std::nullopt;
    const auto expression = CompactExpression(inputs.expressionText, inputs.checkExpression, questions);
    if (!expression) return std::nullopt;
    const auto checked = CheckedConditions(inputs.conditions);
    if (checked.empty()) return std::nullopt;
    return ComposeConditionSet(inputs.header, *expression, static_cast<int>(checked.size()), checked);
}

void RealtimeCommand(const SearchInputs& inputs, host::LinkStore& links, host::Questions& questions,
                     const HostMainWindow& mainWindow) {
    const auto condition =
        HasUniverse(inputs.header.target) ? BuildRealtimeCondition(inputs, questions) : std::nullopt;
    if (!condition) return mainWindow.OpenScreen(kWatchScreen);
    links.NVLink_SetLinkTagData({kWatchKey, kWatchSetTag, *condition});
    links.NVLink_SetLinkTagData(
        {kWatchKey, kWatchTextTag, DescriptionsOf(CheckedConditions(inputs.conditions))});
    mainWindow.OpenScreen(kWatchScreen);
    mainWindow.TellTagChanged(kWatchKey, kWatchTextTag);
    mainWindow.TellTagChanged(kWatchKey, kWatchSetTag);
}

}  // namespace jogeon
