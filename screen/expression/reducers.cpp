#include "screen/expression/reducers.h"

#include "screen/expression/tree_build.h"

namespace jogeon {

int PTNODER_INDEX(std::size_t index, S4PTBUILD& build) {
    const S4PTKN& token = build.Token(index);
    S4PTNODE& node = build.NewNode(token);
    node.SetIndex(token.GetIndex());
    return build.Level().branch.Append(S4PTBRANCH::Of(node), build.Error());
}

int PTNODER_UNARY(std::size_t index, S4PTBUILD& build) {
    S4PTNODE& node = build.NewNode(build.Token(index));
    return build.Level().branch.Append(S4PTBRANCH::Of(node), build.Error());
}

int PTNODER_BINARY(std::size_t index, S4PTBUILD& build) {
    const S4PTKN& token = build.Token(index);
    S4PTBRANCH& branch = build.Level().branch;
    if (!branch.m_pCurrent) return build.Fail(token, "PTNODER_BINARY():NO PRECEDING OPERAND");
    return branch.Place(build.NewNode(token), build.Error());
}

// An empty pair makes no node and is as good as none.
int PTNODER_COPEN(std::size_t index, S4PTBUILD& build) {
    const std::size_t close = build.PartnerOf(index);
    if (close == kNoPartner) {
        return build.Fail(build.Token(index), "PTNODER_COPEN():NO MATCHING CONTAINER CLOSE");
    }
    build.Level().next = close + 1;
    build.Begin({.next = index + 1, .end = close, .join = S4PTJOIN::Container, .opener = index});
    return 0;
}

// Each close that has an open was passed over by it.
int PTNODER_CCLOSE(std::size_t index, S4PTBUILD& build) {
    return build.Fail(build.Token(index), "PTNODER_CCLOSE():NO MATCHING CONTAINER OPEN");
}

int PTNODER_QUESTION(std::size_t index, S4PTBUILD& build) {
    const S4PTKN& token = build.Token(index);
    S4PTBRANCH& branch = build.Level().branch;
    if (!branch.m_pCurrent) return build.Fail(token, "PTNODER_QUESTION():NO PRECEDING OPERAND");
    if (branch.Place(build.NewNode(token), build.Error()) != 0) return -1;

    const std::size_t colon = build.PartnerOf(index);
    if (colon == kNoPartner) return build.Fail(token, "PTNODER_QUESTION():NO MATCHING COLON");
    if (colon == index + 1) return build.Fail(token, "PTNODER_QUESTION():NO FOLLOWING OPERAND");
    if (colon + 1 == build.Level().end) {
        return build.Fail(build.Token(colon), "PTNODER_QUESTION():NO FOLLOWING OPERAND");
    }
    build.Begin({.next = index + 1, .end = colon, .join = S4PTJOIN::Center, .opener = index});
    return 0;
}

// Each colon that has a question was passed over by it.
int PTNODER_COLON(std::size_t index, S4PTBUILD& build) {
    return build.Fail(build.Token(index), "PTNODER_COLON():NO MATCHING QUESTION");
}

}  // namespace jogeon
