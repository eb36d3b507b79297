#include "terminal/host/links.h"

#include <gtest/gtest.h>

#include "screen/target/search_target.h"
#include "screen/text/cp949.h"

namespace jogeon::terminal {
namespace {

TEST(LinksTest, AccountsAreTheUsersAndReadWellInALabel) {
    Links links("tester", {}, {"12345678901", "55556666777"});
    EXPECT_EQ(2, links.NVLink_GetAccountCount());
    EXPECT_EQ("55556666777", links.NVLink_GetAccount(1));
    EXPECT_EQ("", links.NVLink_GetAccount(2));
    EXPECT_EQ("", links.NVLink_GetAccount(-1));
    const std::string shown = links.NVLink_GetAccountFmt("12345678901", 1);
    EXPECT_EQ("12345678-901", shown);
    EXPECT_EQ("보유:1234-5678,"_cp949, HoldingsWord(shown));
    EXPECT_EQ("12", links.NVLink_GetAccountFmt("12", 1));
}

}  // namespace
}  // namespace jogeon::terminal
