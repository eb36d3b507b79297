// The topics of the expression help, in the order of its list.
//
// Texts are UTF-8 and carry their own line ends, CR LF.
#pragma once

#include <span>

namespace jogeon {

struct HelpTopic {
    const char* entry;  // in the list
    const char* text;
};

std::span<const HelpTopic> ExpressionHelpTopics();

}  // namespace jogeon
