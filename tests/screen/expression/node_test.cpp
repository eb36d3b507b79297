// What the nodes answer when they are asked for what a parse never asks.
#include "screen/expression/node.h"

#include <gtest/gtest.h>

namespace jogeon {
namespace {

class NodeTest : public testing::Test {
protected:
    S4PTNODE& Make(std::int16_t tokenClass) {
        tokens_.push_back(MakeToken(tokenClass, kText + tokens_.size(), 1));
        return MakeNode(*tokens_.back(), nodes_);
    }

    // That the operation failed with this message, at the node's own token.
    void ExpectFailure(int result, const S4PTNODE& node, std::string_view message) {
        EXPECT_EQ(-1, result);
        EXPECT_EQ(message, error_.m_strMessage);
        EXPECT_EQ(node.m_Token.m_pPosition - kText, error_.Index()) << message;
    }

    static constexpr char kText[] = "ABCDEFGHIJKLMNOPQRST";
    std::vector<std::unique_ptr<S4PTKN>> tokens_;
    S4PTNODES nodes_;
    S4PTERROR error_{.m_pBase = kText, .m_strMessage = {}};
};

TEST_F(NodeTest, RefusesAMissingChild) {
    S4PTNODE& unary = Make(token_class::kNot);
    S4PTNODE& binary = Make(token_class::kOr);
    S4PTNODE& ternary = Make(token_class::kQuestion);
    ExpectFailure(unary.AppendChild(nullptr, error_), unary,
                  "S4PTNUNARY.APPENDCHILD():TARGET CHILD NODE NULL");
    ExpectFailure(binary.AppendChild(nullptr, error_), binary,
                  "S4PTNBINLR.APPENDCHILD():TARGET CHILD NODE NULL");
    ExpectFailure(binary.InsertChild(nullptr, error_), binary,
                  "S4PTNBINLR.INSERTCHILD():TARGET CHILD NODE NULL");
    ExpectFailure(ternary.AppendChild(nullptr, error_), ternary,
                  "S4PTNTERNARY.APPENDCHILD():TARGET CHILD NODE NULL");
    ExpectFailure(ternary.InsertChild(nullptr, error_), ternary,
                  "S4PTNTERNARY.INSERTCHILD():TARGET CHILD NODE NULL");
}

TEST_F(NodeTest, InsertsOnlyWhereAChildIs) {
    S4PTNODE& child = Make(token_class::kAnd);
    S4PTNODE& index = Make(token_class::kIndex);
    S4PTNODE& container = Make(token_class::kOpen);
    S4PTNODE& binary = Make(token_class::kAnd);
    S4PTNODE& ternary = Make(token_class::kQuestion);
    for (S4PTNODE* node : {&index, &container}) {
        ExpectFailure(node->InsertChild(&child, error_), *node,
                      "S4PTNODE.INSERTCHILD():TERMINAL NODE REACHED:MISSING OPERAND");
    }
    ExpectFailure(binary.InsertChild(&child, error_), binary,
                  "S4PTNBINLR.INSERTCHILD():ALL CHILD NODES NULL");
    ExpectFailure(ternary.InsertChild(&child, error_), ternary,
                  "S4PTNTERNARY.INSERTCHILD():ALL CHILD NODES NULL");
}

TEST_F(NodeTest, InsertingPushesTheLastChildDown) {
    S4PTNODE& ternary = Make(token_class::kQuestion);
    S4PTNODE& left = Make(token_class::kIndex);
    S4PTNODE& center = Make(token_class::kIndex);
    S4PTNODE& binary = Make(token_class::kAnd);
    EXPECT_EQ(0, ternary.AppendChild(&left, error_));
    EXPECT_EQ(0, ternary.AppendChild(&center, error_));
    EXPECT_EQ(0, ternary.InsertChild(&binary, error_));
    EXPECT_EQ(&binary, ternary.NextInWalk(&left));
    EXPECT_EQ(&center, binary.NextInWalk(&ternary));
    EXPECT_EQ(&binary, center.m_pParent);
    EXPECT_EQ(&ternary, binary.m_pParent);
}

TEST_F(NodeTest, HoldsNoMoreThanItsArity) {
    S4PTNODE& ternary = Make(token_class::kQuestion);
    S4PTNODE& index = Make(token_class::kIndex);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(0, ternary.AppendChild(&Make(token_class::kIndex), error_));
    ExpectFailure(ternary.AppendChild(&index, error_), ternary,
                  "S4PTNTERNARY.APPENDCHILD():ALL CHILD NODES OCUPIED:MISSING OPERATOR");
    EXPECT_EQ(&ternary, index.m_pParent);  // taken over even so
}

TEST_F(NodeTest, VerifiesFromTheLeft) {
    S4PTNODE& ternary = Make(token_class::kQuestion);
    const char* const messages[] = {"S4PTNTERNARY.VERIFY():LEFT CHILD NODE NULL:MISSING OPERAND",
                                    "S4PTNTERNARY.VERIFY():CENTER CHILD NODE NULL:MISSING OPERAND",
                                    "S4PTNTERNARY.VERIFY():RIGHT CHILD NODE NULL:MISSING OPERAND"};
    for (const char* message : messages) {
        ExpectFailure(ternary.Verify(error_), ternary, message);
        EXPECT_EQ(0, ternary.AppendChild(&Make(token_class::kIndex), error_));
    }
    EXPECT_EQ(0, ternary.Verify(error_));

    S4PTNODE& binary = Make(token_class::kOr);
    ExpectFailure(binary.Verify(error_), binary, "S4PTNBINARY.VERIFY():LEFT CHILD NODE NULL:MISSING OPERAND");
    S4PTNODE& index = Make(token_class::kIndex);
    ExpectFailure(index.Verify(error_), index, "S4PTNINDEX.VERIFY():NO INDEX FORMULA");
    index.SetIndex(0);
    EXPECT_EQ(0, index.Verify(error_));
    S4PTNODE& other = Make(token_class::kColon);
    ExpectFailure(other.Verify(error_), other, "S4PTNODE.VERIFY():VIRTUAL NODE REACHED:CRITICAL LOGIC ERROR");
}

TEST_F(NodeTest, SubstitutesAChild) {
    struct Case {
        std::int16_t tokenClass;
        int children;
        const char* message;
    };
    const Case cases[] = {
        {token_class::kIndex, 0, "S4PTNODE.SUBSTITUTECHILD():TERMINAL NODE REACHED:CRITICAL LOGIC ERROR"},
        {token_class::kNot, 1, "S4PTNUNARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND"},
        {token_class::kAnd, 2, "S4PTNBINARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND"},
        {token_class::kQuestion, 3, "S4PTNTERNARY.SUBSTITUTECHILD():TARGET CHILD NODE NOT FOUND"},
    };
    for (const Case& each : cases) {
        S4PTNODE& node = Make(each.tokenClass);
        S4PTNODE& stranger = Make(token_class::kIndex);
        S4PTNODE* last = nullptr;
        for (int i = 0; i < each.children; ++i) {
            last = &Make(token_class::kIndex);
            EXPECT_EQ(0, node.AppendChild(last, error_));
        }
        ExpectFailure(node.SubstituteChild(&stranger, &stranger, error_), node, each.message);
        if (!last) continue;
        EXPECT_EQ(0, node.SubstituteChild(last, &stranger, error_));
        EXPECT_EQ(node.m_pParent, node.NextInWalk(&stranger));
    }
}

}  // namespace
}  // namespace jogeon
