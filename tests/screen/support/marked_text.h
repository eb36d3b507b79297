// Texts with a selection, written with square brackets around it: "A and [B or C]".
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "screen/expression/text_selection.h"

namespace jogeon::test {

struct MarkedText {
    explicit MarkedText(std::string_view marked) : text(marked) {
        selection.start = static_cast<int>(text.find('['));
        text.erase(text.find('['), 1);
        selection.end = static_cast<int>(text.find(']'));
        text.erase(text.find(']'), 1);
    }

    std::string text;
    TextSelection selection;
};

inline std::string WithMarks(std::string text, TextSelection selection) {
    text.insert(static_cast<std::size_t>(std::max(selection.start, selection.end)), "]");
    return text.insert(static_cast<std::size_t>(std::min(selection.start, selection.end)), "[");
}

}  // namespace jogeon::test
