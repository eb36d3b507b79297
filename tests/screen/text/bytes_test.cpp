#include "screen/text/bytes.h"

#include <climits>

#include <gtest/gtest.h>

namespace jogeon {
namespace {

TEST(BytesTest, TrimsWhiteSpaceOnly) {
    EXPECT_EQ("a b", Trim(" \t\r\n\v\fa b\n"));
    EXPECT_EQ("", Trim(" \n"));
    EXPECT_EQ("\xB0\xA1\xA0", Trim(" \xB0\xA1\xA0"));  // not a blank, though some locales say so
}

TEST(BytesTest, ReadsLeadingNumbers) {
    EXPECT_EQ(12, Atoi(" 12abc"));
    EXPECT_EQ(-7, Atoi("-7"));
    EXPECT_EQ(0, Atoi("abc"));
    EXPECT_EQ(0, Atoi(""));
    EXPECT_EQ(INT_MAX, Atoi("99999999999999999999"));
    EXPECT_EQ(INT_MIN, Atoi("-2147483649"));
    EXPECT_EQ(1, Atoi(std::string_view("123", 1)));  // stops at the end of the view
    EXPECT_DOUBLE_EQ(-2.5, Atof(" -2.50x"));
    EXPECT_DOUBLE_EQ(0.0, Atof("."));
}

TEST(BytesTest, WritesNumbers) {
    EXPECT_EQ("-2.50", FixedDecimal(-2.5, 2));
    EXPECT_EQ("12346", FixedDecimal(12345.6, 0));
    EXPECT_EQ(309u, FixedDecimal(1.7e308, 0).size());
    EXPECT_EQ("0.1", GeneralDecimal(0.1));
    EXPECT_EQ("-1.23457e+06", GeneralDecimal(-1234567));
}

TEST(BytesTest, FillsAndCutsFields) {
    EXPECT_EQ("007", ZeroPadded(7, 3));
    EXPECT_EQ("-07", ZeroPadded(-7, 3));
    EXPECT_EQ("1234", ZeroPadded(1234, 3));
    EXPECT_EQ("  7", RightIn("7", 3));
    EXPECT_EQ("123", RightIn("1234", 3));
    EXPECT_EQ("7  ", LeftIn("7", 3));
    EXPECT_EQ("123", LeftIn("1234", 3));
    EXPECT_EQ("cd", Field("abcd", 2, 5));
    EXPECT_EQ("", Field("abcd", 9, 1));
}

TEST(BytesTest, ReplacesAndJoins) {
    EXPECT_EQ("xbxa", ReplaceAll("aabaaa", "aa", "x"));
    EXPECT_EQ("aaaa", ReplaceAll("aa", "a", "aa"));
    EXPECT_EQ("a|a", Join({"a", "a"}, "|"));
    EXPECT_EQ("", Join({}, "|"));
}

}  // namespace
}  // namespace jogeon
