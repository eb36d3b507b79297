// The checker of an expression: says whether a text is well formed and, if not, at which character it fails.
//
// It builds a tree for checking only; nothing evaluates it, and in odd cases it isn't the tree of the
// meaning. Time and memory grow with the text's length, whatever its nesting. One object serves one parse.
#pragma once

#include <span>
#include <string_view>

#include "screen/expression/node.h"
#include "screen/expression/parse_error.h"
#include "screen/expression/token_list.h"

namespace jogeon {

class S4PTREE {
public:
    // 0 if the text, which outlives this object, is a well-formed expression; else -1. A text that holds
    // nothing fails with no error noted.
    int Parse(std::string_view text, std::span<const S4PTSPELLING> spellings = Spellings());

    const S4PTERROR& Error() const { return m_Error; }

    // Null until a parse has succeeded.
    const S4PTNODE* Root() const { return m_pRoot; }
    const S4PTNODE* FirstLeaf() const { return m_pFirstLeaf; }

private:
    int VerifyAll(const S4PTNODE& root);

    S4PTKNLIST m_Tokens;
    S4PTNODES m_Nodes;
    S4PTERROR m_Error;
    const S4PTNODE* m_pRoot = nullptr;
    const S4PTNODE* m_pFirstLeaf = nullptr;
};

}  // namespace jogeon
