#include "screen/expression/node.h"

#include <algorithm>
#include <span>

namespace jogeon {
namespace {

using Slots = std::span<S4PTNODE* const>;

S4PTNODE* NextOf(Slots children, const S4PTNODE* cameFrom, S4PTNODE* parent) {
    const auto from = cameFrom ? std::find(children.begin(), children.end(), cameFrom) : children.end();
    const auto isChild = [](const S4PTNODE* child) { return child != nullptr; };
    const auto next =
        std::find_if(from == children.end() ? children.begin() : from + 1, children.end(), isChild);
    return next == children.end() ? parent : *next;
}

// False if the last slot is taken.
bool AppendTo(std::span<S4PTNODE*> children, S4PTNODE* child) {
    if (children.back()) return false;
    *std::find(children.begin(), children.end(), nullptr) = child;
    return true;
}

// The last slot that is taken, null if all are free.
S4PTNODE** LastTaken(std::span<S4PTNODE*> children) {
    for (std::size_t i = children.size(); i-- > 0;) {
        if (children[i]) return &children[i];
    }
    return nullptr;
}

int InsertAt(S4PTNODE** slot, S4PTNODE* child, S4PTERROR& error) {
    if (child->AppendChild(*slot, error) != 0) return -1;
    *slot = child;
    return 0;
}

// False if no slot holds the old child.
bool SubstituteIn(std::span<S4PTNODE*> children, const S4PTNODE* oldChild, S4PTNODE* newChild) {
    const auto slot = std::find(children.begin(), children.end(), oldChild);
    if (slot == children.end()) return false;
    *slot = newChild;
    return true;
}

template <typename Node>
S4PTNODE& Own(const S4PTKN& token, S4PTNODES& nodes) {
    return *nodes.emplace_back(std::make_unique<Node>(token));
}

}  // namespace

// --- S4PTNODE

int S4PTNODE::Fail(S4PTERROR& error, std::string_view message) const {
    error.Note(m_Token.m_pPosition, message);
    return -1;
}

int S4PTNODE::AppendChild(S4PTNODE*, S4PTERROR& error) {
    return Fail(error, "S4PTNODE.APPENDCHILD():TERMINAL NODE REACHED:MISSING OPERAND");
}

int S4PTNODE::InsertChild(S4PTNODE*, S4PTERROR& error) {
    return Fail(error, "S4PTNODE.INSERTCHILD():TERMINAL NODE REACHED:MISSING OPERAND");
}

S4PTNODE* S4PTNODE::NextInWalk(const S4PTNODE*) const {
    return m_pParent;
}

int S4PTNODE::SubstituteChild(const S4PTNODE*, S4PTNODE*, S4PTERROR& error) {
    return Fail(error, "S4PTNODE.SUBSTITUTECHILD():TERMINAL NODE REACHED:CRITICAL LOGIC ERROR");
}

int S4PTNODE::Verify(S4PTERROR& error) const {
    return Fail(error, "S4PTNODE.VERIFY():VIRTUAL NODE REACHED:CRITICAL LOGIC ERROR");
}

int S4PTNINDEX::Verify(S4PTERROR& error) const {
    return m_nIndex == kNoIndex ? Fail(error, "S4PTNINDEX.VERIFY():NO INDEX FORMULA") : 0;
}

// --- S4PTNUNARY

int S4PTNUNARY::AppendChild(S4PTNODE* child, S4PTERROR& error) {
    if (!child) return Fail(error, "S4PTNUNARY.APPENDCHILD():TARGET CHILD NODE NULL");
    child->m_pParent = this;
    if (AppendTo(m_Children, child)) return 0;
    // The binary nodes' words, here as well.
    return Fail(error, "S4PTNBINLR.APPENDCHILD():ALL CHILD NODES OCCUPIED:MISSING OPERATOR");
}

S4PTNODE* S4PTNUNARY::NextInWalk(const S4PTNODE* cameFrom) const {
    return NextOf(m_Children, cameFrom, m_pParent);
}

int S4PTNUNARY::SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) {
    if (SubstituteIn(m_Children, oldChild, newChild)) return 0;
    return Fail(error, "S4PTNUNARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND");
}

int S4PTNUNARY::Verify(S4PTERROR& error) const {
    return m_Children[0] ? 0 : Fail(error, "S4PTNUNARY.VERIFY():CHILD NODE NULL:MISSING OPERAND");
}

// --- S4PTNBINARY, S4PTNBINLR

S4PTNODE* S4PTNBINARY::NextInWalk(const S4PTNODE* cameFrom) const {
    return NextOf(m_Children, cameFrom, m_pParent);
}

int S4PTNBINARY::SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) {
    if (SubstituteIn(m_Children, oldChild, newChild)) return 0;
    return Fail(error, "S4PTNBINARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND");
}

int S4PTNBINARY::Verify(S4PTERROR& error) const {
    if (!m_Children[0]) return Fail(error, "S4PTNBINARY.VERIFY():LEFT CHILD NODE NULL:MISSING OPERAND");
    if (!m_Children[1]) return Fail(error, "S4PTNBINARY.VERIFY():RIGHT CHILD NODE NULL:MISSING OPERAND");
    return 0;
}

int S4PTNBINLR::AppendChild(S4PTNODE* child, S4PTERROR& error) {
    if (!child) return Fail(error, "S4PTNBINLR.APPENDCHILD():TARGET CHILD NODE NULL");
    child->m_pParent = this;
    if (AppendTo(m_Children, child)) return 0;
    return Fail(error, "S4PTNBINLR.APPENDCHILD():ALL CHILD NODES OCCUPIED:MISSING OPERATOR");
}

int S4PTNBINLR::InsertChild(S4PTNODE* child, S4PTERROR& error) {
    if (!child) return Fail(error, "S4PTNBINLR.INSERTCHILD():TARGET CHILD NODE NULL");
    child->m_pParent = this;
    if (S4PTNODE** slot = LastTaken(m_Children)) return InsertAt(slot, child, error);
    return Fail(error, "S4PTNBINLR.INSERTCHILD():ALL CHILD NODES NULL");
}

// --- S4PTNTERNARY

int S4PTNTERNARY::AppendChild(S4PTNODE* child, S4PTERROR& error) {
    if (!child) return Fail(error, "S4PTNTERNARY.APPENDCHILD():TARGET CHILD NODE NULL");
    child->m_pParent = this;
    if (AppendTo(m_Children, child)) return 0;
    return Fail(error, "S4PTNTERNARY.APPENDCHILD():ALL CHILD NODES OCUPIED:MISSING OPERATOR");
}

int S4PTNTERNARY::InsertChild(S4PTNODE* child, S4PTERROR& error) {
    if (!child) return Fail(error, "S4PTNTERNARY.INSERTCHILD():TARGET CHILD NODE NULL");
    child->m_pParent = this;
    if (S4PTNODE** slot = LastTaken(m_Children)) return InsertAt(slot, child, error);
    return Fail(error, "S4PTNTERNARY.INSERTCHILD():ALL CHILD NODES NULL");
}

S4PTNODE* S4PTNTERNARY::NextInWalk(const S4PTNODE* cameFrom) const {
    return NextOf(m_Children, cameFrom, m_pParent);
}

int S4PTNTERNARY::SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) {
    if (SubstituteIn(m_Children, oldChild, newChild)) return 0;
    return Fail(error, "S4PTNTERNARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND");
}

int S4PTNTERNARY::Verify(S4PTERROR& error) const {
    if (!m_Children[0]) return Fail(error, "S4PTNTERNARY.VERIFY():LEFT CHILD NODE NULL:MISSING OPERAND");
    if (!m_Children[1]) return Fail(error, "S4PTNTERNARY.VERIFY():CENTER CHILD NODE NULL:MISSING OPERAND");
    if (!m_Children[2]) return Fail(error, "S4PTNTERNARY.VERIFY():RIGHT CHILD NODE NULL:MISSING OPERAND");
    return 0;
}

S4PTNODE& MakeNode(const S4PTKN& token, S4PTNODES& nodes) {
    if (IsContainerOpen(token.m_nClass)) return Own<S4PTNCONTAINER>(token, nodes);
    switch (token.m_nClass) {
        case token_class::kIndex:
            return Own<S4PTNINDEX>(token, nodes);
        case token_class::kNot:
            return Own<S4PTNUNARY>(token, nodes);
        case token_class::kAnd:
            return Own<S4PTNAND>(token, nodes);
        case token_class::kOr:
            return Own<S4PTNOR>(token, nodes);
        case token_class::kQuestion:
            return Own<S4PTNTERNARY>(token, nodes);
        default:
            return Own<S4PTNODE>(token, nodes);
    }
}

}  // namespace jogeon
