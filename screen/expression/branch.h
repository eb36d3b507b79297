// The tree that one stretch of tokens has become so far, and the two ways in which it grows.
//
// Both take constant time: where a new operator belongs is remembered, not climbed to. Nodes are borrowed.
#pragma once

#include <array>

#include "screen/expression/node.h"

namespace jogeon {

// Seen from one node: the nearest node at or above it that binds no tighter than and, than or, and than the
// conditional. An operator that climbs from the node stops at the one for its own precedence.
using S4PTSTOPS = std::array<S4PTNODE*, 3>;

struct S4PTBRANCH {
    S4PTNODE* m_pRoot = nullptr;
    S4PTNODE* m_pCurrent = nullptr;    // takes the next operand; operators climb from it
    S4PTNODE* m_pFirstLeaf = nullptr;  // reached from the root by first children only
    S4PTSTOPS m_CurrentStops{};
    S4PTSTOPS m_LeafStops{};

    // A branch of one operand or unary operator.
    static S4PTBRANCH Of(S4PTNODE& node);

    // Makes the root or the first leaf the node that goes on.
    void GoOnFromRoot();
    void GoOnFromFirstLeaf();

    // Hangs a node that has no child above the root and goes on from it.
    int PutOnTop(S4PTNODE& node, S4PTERROR& error);

    // Gives `part` to the current node as a child and goes on from where `part` does; an empty branch becomes
    // `part`. `part` is not empty.
    int Append(const S4PTBRANCH& part, S4PTERROR& error);

    // Places an operator that has no child yet: under the first node above the current one that doesn't bind
    // tighter, or on top of them all. Equals go underneath, so that a chain of them leans to the right.
    int Place(S4PTNODE& node, S4PTERROR& error);
};

}  // namespace jogeon
