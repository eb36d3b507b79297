#include "screen/expression/token_list.h"

#include <algorithm>

#include "screen/expression/tree_build.h"

namespace jogeon {
namespace {

// Bytes of a line comment. A carriage return or a form feed ends it, or one of each; a line feed doesn't.
std::size_t LineCommentLength(std::string_view text) {
    const std::size_t stop = text.find_first_of("\r\f", 2);
    if (stop == std::string_view::npos) return text.size();
    const std::string_view pair = text.substr(stop, 2);
    return stop + (pair == "\r\f" || pair == "\f\r" ? 2 : 1);
}

std::size_t BlockCommentLength(std::string_view text) {
    const std::size_t stop = text.find("*/", 2);
    return stop == std::string_view::npos ? text.size() : stop + 2;
}

}  // namespace

S4PTKN& S4PTKNLIST::Append(std::int16_t tokenClass, const char* position, int length) {
    return *m_Tokens.emplace_back(MakeToken(tokenClass, position, length));
}

int S4PTKNLIST::Tokenize(std::string_view text, S4PTERROR& error, std::span<const S4PTSPELLING> spellings) {
    text = text.substr(0, text.find('\0'));
    while (!text.empty()) {
        std::size_t length = 1;
        if (static_cast<signed char>(text.front()) < 33) {
            // Passed over.
        } else if (const auto spelling = MatchSpelling(text, spellings)) {
            length = spelling->text.size();
            if (spelling->tokenClass == token_class::kLineComment) {
                length = LineCommentLength(text);
            } else if (spelling->tokenClass == token_class::kBlockComment) {
                length = BlockCommentLength(text);
            } else {
                Append(spelling->tokenClass, text.data(), static_cast<int>(length));
            }
        } else if (const auto letter = MatchLetter(text)) {
            Append(token_class::kIndex, text.data(), 1).SetIndex(*letter);
        } else {
            error.Note(text.data(), "S4PTKNLIST.TOKENIZE():UNKNOWN TOKEN STRING");
            return -1;
        }
        text.remove_prefix(length);
    }
    return 0;
}

int S4PTKNLIST::MakeTree(S4PTNODES& nodes, S4PTNODE*& root, S4PTERROR& error) const {
    return S4PTBUILD(*this, nodes, error).Run(root);
}

}  // namespace jogeon
