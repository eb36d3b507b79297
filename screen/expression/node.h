// Nodes of the parse tree, one class a kind of token.
//
// A node knows its parent and its children and owns neither; the tree owns all nodes. Operations give 0, or
// -1 after an error is noted, which always cites the node's own token and never the argument.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "screen/expression/parse_error.h"
#include "screen/expression/token.h"

namespace jogeon {

class S4PTNODE {
public:
    explicit S4PTNODE(const S4PTKN& token) : m_Token(token), m_nPrecedence(Precedence(token.m_nClass)) {}
    virtual ~S4PTNODE() = default;
    S4PTNODE(const S4PTNODE&) = delete;
    S4PTNODE& operator=(const S4PTNODE&) = delete;

    virtual std::uint8_t GetIndex() const { return kNoIndex; }
    virtual void SetIndex(std::uint8_t) {}

    // Puts a child in the first free slot.
    virtual int AppendChild(S4PTNODE* child, S4PTERROR& error);

    // Puts a child in the last slot that is taken; what stood there becomes the child's first child.
    virtual int InsertChild(S4PTNODE* child, S4PTERROR& error);

    // The next node of a walk through the whole tree, from here and having come from `cameFrom`: null at the
    // start, else the parent or a child. Null ends the walk at the root.
    virtual S4PTNODE* NextInWalk(const S4PTNODE* cameFrom) const;

    virtual int SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error);

    // Whether the node has all it needs.
    virtual int Verify(S4PTERROR& error) const;

    const S4PTKN& m_Token;
    const std::int16_t m_nPrecedence;
    S4PTNODE* m_pParent = nullptr;

protected:
    int Fail(S4PTERROR& error, std::string_view message) const;
};

class S4PTNINDEX : public S4PTNODE {
public:
    using S4PTNODE::S4PTNODE;
    std::uint8_t GetIndex() const override { return m_nIndex; }
    void SetIndex(std::uint8_t index) override { m_nIndex = index; }
    int Verify(S4PTERROR& error) const override;

private:
    std::uint8_t m_nIndex = kNoIndex;
};

class S4PTNUNARY : public S4PTNODE {
public:
    using S4PTNODE::S4PTNODE;
    int AppendChild(S4PTNODE* child, S4PTERROR& error) override;
    S4PTNODE* NextInWalk(const S4PTNODE* cameFrom) const override;
    int SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) override;
    int Verify(S4PTERROR& error) const override;

private:
    std::array<S4PTNODE*, 1> m_Children{};
};

// Brackets around more than one operand: operators outside can't reach into them.
class S4PTNCONTAINER : public S4PTNUNARY {
    using S4PTNUNARY::S4PTNUNARY;
};

class S4PTNBINARY : public S4PTNODE {
public:
    S4PTNODE* NextInWalk(const S4PTNODE* cameFrom) const override;
    int SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) override;
    int Verify(S4PTERROR& error) const override;

protected:
    using S4PTNODE::S4PTNODE;
    std::array<S4PTNODE*, 2> m_Children{};  // left, right
};

class S4PTNBINLR : public S4PTNBINARY {
public:
    int AppendChild(S4PTNODE* child, S4PTERROR& error) override;
    int InsertChild(S4PTNODE* child, S4PTERROR& error) override;

protected:
    using S4PTNBINARY::S4PTNBINARY;
};

class S4PTNAND : public S4PTNBINLR {
public:
    explicit S4PTNAND(const S4PTKN& token) : S4PTNBINLR(token) {}
};

class S4PTNOR : public S4PTNBINLR {
public:
    explicit S4PTNOR(const S4PTKN& token) : S4PTNBINLR(token) {}
};

class S4PTNTERNARY : public S4PTNODE {
public:
    using S4PTNODE::S4PTNODE;
    int AppendChild(S4PTNODE* child, S4PTERROR& error) override;
    int InsertChild(S4PTNODE* child, S4PTERROR& error) override;
    S4PTNODE* NextInWalk(const S4PTNODE* cameFrom) const override;
    int SubstituteChild(const S4PTNODE* oldChild, S4PTNODE* newChild, S4PTERROR& error) override;
    int Verify(S4PTERROR& error) const override;

private:
    std::array<S4PTNODE*, 3> m_Children{};  // left, center, right
};

// All nodes of one tree, in order of creation. They free nothing but themselves, whatever the depth.
using S4PTNODES = std::vector<std::unique_ptr<S4PTNODE>>;

// A new node of the token's class, owned by `nodes`. The token outlives it.
S4PTNODE& MakeNode(const S4PTKN& token, S4PTNODES& nodes);

}  // namespace jogeon
