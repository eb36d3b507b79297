#include "screen/expression/parser.h"

namespace jogeon {
namespace {

// The first node of a walk that leads back to where it was come from.
const S4PTNODE* FindFirstLeaf(const S4PTNODE& root) {
    const S4PTNODE* leaf = &root;
    while (const S4PTNODE* next = leaf->NextInWalk(leaf->m_pParent)) {
        if (next == leaf->m_pParent) break;
        leaf = next;
    }
    return leaf;
}

}  // namespace

int S4PTREE::Parse(std::string_view text, std::span<const S4PTSPELLING> spellings) {
    m_Error.m_pBase = text.data();
    if (m_Tokens.Tokenize(text, m_Error, spellings) != 0) return -1;
    S4PTNODE* root = nullptr;
    if (m_Tokens.MakeTree(m_Nodes, root, m_Error) != 0) return -1;
    if (!root || VerifyAll(*root) != 0) return -1;
    m_pRoot = root;
    m_pFirstLeaf = FindFirstLeaf(*root);
    return 0;
}

// A walk rather than a loop over the nodes: it decides which of several faults is the one that's noted.
int S4PTREE::VerifyAll(const S4PTNODE& root) {
    const S4PTNODE* cameFrom = nullptr;
    const S4PTNODE* node = &root;
    while (node) {
        if (node->Verify(m_Error) != 0) return -1;
        const S4PTNODE* const next = node->NextInWalk(cameFrom);
        cameFrom = node;
        node = next;
    }
    return 0;
}

}  // namespace jogeon
