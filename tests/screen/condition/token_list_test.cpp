#include "screen/condition/token_list.h"

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(TokenListTest, CountsEmptyTokensButTheLast) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {{"", {}},
                                                                      {"a|", {"a"}},
                                                                      {"|a", {"", "a"}},
                                                                      {"a||b", {"a", "", "b"}},
                                                                      {" a b | c\t|", {"a b", "c"}},
                                                                      {"a| ", {"a"}},
                                                                      {"  ", {""}},
                                                                      {"|", {""}},
                                                                      {"||", {"", ""}}};
    for (const auto& [text, tokens] : cases) EXPECT_EQ(CTokenList(text, '|').Tokens(), tokens) << text;
}

TEST(TokenListTest, ReadsNothingOutsideItsTokens) {
    const CTokenList list("12x;;y", ';');
    EXPECT_EQ(list.GetInt(0), 12);
    EXPECT_EQ(list.GetToken(2), "y");
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(list.GetToken(index), "") << index;
        EXPECT_EQ(list.GetInt(index), 0) << index;
    }
    EXPECT_EQ(list.Find("y"), 2);
    EXPECT_EQ(list.Find("Y"), -1);
}

}  // namespace
}  // namespace jogeon
