// The building of a tree from a token list: the stretches that are under way, innermost last.
//
// Brackets and conditionals open a stretch of their own on this explicit stack, so that depth costs memory
// and never the call stack. The reducers drive it, one token at a time.
#pragma once

#include <cstddef>
#include <vector>

#include "screen/expression/branch.h"
#include "screen/expression/partners.h"
#include "screen/expression/token_list.h"

namespace jogeon {

// What becomes of a stretch's tree when its tokens are used up.
enum class S4PTJOIN { Whole, Container, Center, Right };

// A stretch of tokens, from the next one to be read up to `end`.
struct S4PTLEVEL {
    std::size_t next = 0;
    std::size_t end = 0;
    S4PTJOIN join = S4PTJOIN::Whole;
    std::size_t opener = 0;  // index of the token that opened the stretch: bracket, question or colon
    S4PTBRANCH branch{};
};

class S4PTBUILD {
public:
    S4PTBUILD(const S4PTKNLIST& tokens, S4PTNODES& nodes, S4PTERROR& error);

    // Builds it all. 0 and the root, null for a list that makes no node; or -1.
    int Run(S4PTNODE*& root);

    // For the reducers: the innermost stretch, a stretch to be done before it goes on, and a new node.
    S4PTLEVEL& Level() { return m_Levels.back(); }
    void Begin(const S4PTLEVEL& level) { m_Levels.push_back(level); }
    S4PTNODE& NewNode(const S4PTKN& token) { return MakeNode(token, m_Nodes); }
    const S4PTKN& Token(std::size_t index) const { return m_Tokens[index]; }

    // The partner of a token within the innermost stretch, kNoPartner if it lies outside.
    std::size_t PartnerOf(std::size_t index);

    S4PTERROR& Error() { return m_Error; }
    int Fail(const S4PTKN& token, std::string_view message);

private:
    int Reduce(std::size_t index);
    int Finish(const S4PTLEVEL& done);
    int JoinContainer(const S4PTLEVEL& done);
    int JoinCenter(const S4PTLEVEL& done);
    int JoinRight(const S4PTLEVEL& done);

    const S4PTKNLIST& m_Tokens;
    const std::vector<S4PTPARTNER> m_Partners;
    S4PTNODES& m_Nodes;
    S4PTERROR& m_Error;
    std::vector<S4PTLEVEL> m_Levels;
};

}  // namespace jogeon
