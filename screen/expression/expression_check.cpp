#include "screen/expression/expression_check.h"

#include <algorithm>

#include "screen/expression/parser.h"
#include "screen/text/cp949.h"

namespace jogeon {

ExpressionCheck CheckExpressionText(std::string_view text) {
    S4PTREE tree;
    const bool valid = tree.Parse(text) == 0;
    return {valid, tree.Error().Index(), tree.Error().m_strMessage};
}

std::string ExpressionErrorText(std::string_view text, int errorPosition) {
    const std::size_t split = std::min(static_cast<std::size_t>(std::max(errorPosition, 0)), text.size());
    return std::string(text.substr(0, split)) + " ☞ "_cp949 + std::string(text.substr(split));
}

}  // namespace jogeon
