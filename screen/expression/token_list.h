// The tokens of one text, in order, and the two steps of a parse that go through them.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "screen/expression/node.h"
#include "screen/expression/parse_error.h"
#include "screen/expression/token.h"

namespace jogeon {

class S4PTKNLIST {
public:
    // Appends the tokens of `text`, which outlives them, up to its end or its first NUL. Blanks, control
    // characters and all bytes from 0x80 up are passed over. -1 at something that is no token.
    int Tokenize(std::string_view text, S4PTERROR& error,
                 std::span<const S4PTSPELLING> spellings = Spellings());

    // Builds the tree, with its nodes in `nodes`. 0 and the root, null for a list that makes no node; or -1.
    int MakeTree(S4PTNODES& nodes, S4PTNODE*& root, S4PTERROR& error) const;

    S4PTKN& Append(std::int16_t tokenClass, const char* position, int length);

    std::size_t Count() const { return m_Tokens.size(); }
    const S4PTKN& operator[](std::size_t index) const { return *m_Tokens[index]; }
    const std::vector<std::unique_ptr<S4PTKN>>& Tokens() const { return m_Tokens; }

private:
    std::vector<std::unique_ptr<S4PTKN>> m_Tokens;
};

}  // namespace jogeon
