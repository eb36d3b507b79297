#include "screen/expression/tree_build.h"

#include "screen/expression/reducers.h"

namespace jogeon {

S4PTBUILD::S4PTBUILD(const S4PTKNLIST& tokens, S4PTNODES& nodes, S4PTERROR& error)
    : m_Tokens(tokens), m_Partners(FindPartners(tokens.Tokens())), m_Nodes(nodes), m_Error(error) {}

int S4PTBUILD::Run(S4PTNODE*& root) {
    root = nullptr;
    Begin({.end = m_Tokens.Count()});
    while (true) {
        S4PTLEVEL& level = Level();
        if (level.next < level.end) {
            if (Reduce(level.next++) != 0) return -1;
            continue;
        }
        const S4PTLEVEL done = level;
        m_Levels.pop_back();
        if (done.join == S4PTJOIN::Whole) {
            root = done.branch.m_pRoot;
            return 0;
        }
        if (Finish(done) != 0) return -1;
    }
}

int S4PTBUILD::Reduce(std::size_t index) {
    const S4PTKN& token = Token(index);
    if (IsContainerOpen(token.m_nClass)) return PTNODER_COPEN(index, *this);
    if (IsContainerClose(token.m_nClass)) return PTNODER_CCLOSE(index, *this);
    switch (token.m_nClass) {
        case token_class::kIndex:
            return PTNODER_INDEX(index, *this);
        case token_class::kNot:
            return PTNODER_UNARY(index, *this);
        case token_class::kAnd:
        case token_class::kOr:
            return PTNODER_BINARY(index, *this);
        case token_class::kQuestion:
            return PTNODER_QUESTION(index, *this);
        case token_class::kColon:
            return PTNODER_COLON(index, *this);
        default:
            return Fail(token, "S4PTKNLIST.MAKETREE():UNKNOW TOKEN");
    }
}

std::size_t S4PTBUILD::PartnerOf(std::size_t index) {
    const std::size_t partner = m_Partners[index].index;
    return partner < Level().end ? partner : kNoPartner;
}

int S4PTBUILD::Fail(const S4PTKN& token, std::string_view message) {
    m_Error.Note(token.m_pPosition, message);
    return -1;
}

int S4PTBUILD::Finish(const S4PTLEVEL& done) {
    switch (done.join) {
        case S4PTJOIN::Center:
            return JoinCenter(done);
        case S4PTJOIN::Right:
            return JoinRight(done);
        default:
            return JoinContainer(done);
    }
}

// Doubled brackets make one container. Brackets around a single operand make none: what follows goes on from
// the operand's first leaf, as if they weren't there.
int S4PTBUILD::JoinContainer(const S4PTLEVEL& done) {
    S4PTBRANCH inner = done.branch;
    if (!inner.m_pRoot) return 0;
    if (IsContainerOpen(inner.m_pRoot->m_Token.m_nClass)) {
        inner.GoOnFromRoot();
    } else if (m_Partners[done.opener].arity > 1) {
        if (inner.PutOnTop(NewNode(Token(done.opener)), m_Error) != 0) return -1;
    } else {
        inner.GoOnFromFirstLeaf();
    }
    return Level().branch.Append(inner, m_Error);
}

int S4PTBUILD::JoinCenter(const S4PTLEVEL& done) {
    S4PTNODE* const question = Level().branch.m_pCurrent;
    if (!done.branch.m_pRoot) {
        return Fail(question->m_Token, "PTNODER_QUESTION():NO FOLLOWING OPERAND");
    }
    if (question->AppendChild(done.branch.m_pRoot, m_Error) != 0) return -1;
    const std::size_t colon = done.end;
    const std::size_t end = Level().end;
    Level().next = end;
    Begin({.next = colon + 1, .end = end, .join = S4PTJOIN::Right, .opener = colon});
    return 0;
}

int S4PTBUILD::JoinRight(const S4PTLEVEL& done) {
    if (!done.branch.m_pRoot) return Fail(Token(done.opener), "PTNODER_QUESTION():NO FOLLOWING OPERAND");
    return Level().branch.m_pCurrent->AppendChild(done.branch.m_pRoot, m_Error);
}

}  // namespace jogeon
