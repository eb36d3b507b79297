#include "screen/text/cp949.h"

#include <gtest/gtest.h>

namespace jogeon {
namespace {

// 가 B0 A1, 힣 C6 52, 똠 8C 63: the last two have a second byte that is also a letter.
TEST(Cp949Test, ConvertsBothWays) {
    EXPECT_EQ("A\xB0\xA1\xC6\x52\x8C\x63", "A가힣똠"_cp949);
    EXPECT_EQ("\xA2\xD1", "☞"_cp949);
    EXPECT_EQ("A가힣똠", ToUtf8("A\xB0\xA1\xC6\x52\x8C\x63"));
    EXPECT_EQ("", ToUtf8(""));
    // Longer than the converter's buffer, with a character across its end.
    std::string korean = "x";
    std::string bytes = "x";
    for (int i = 0; i < 5000; ++i) {
        korean += "가";
        bytes += "\xB0\xA1";
    }
    EXPECT_EQ(bytes, ToCp949(korean));
    EXPECT_EQ(korean, ToUtf8(bytes));
}

TEST(Cp949Test, WhatHasNoFormIsReplacedOrRefused) {
    EXPECT_EQ(std::nullopt, TryToCp949("a😀b"));
    EXPECT_EQ(std::nullopt, TryToCp949("a\xFF"));
    EXPECT_EQ("a?\xB0\xA1", ToCp949("a😀가"));
    EXPECT_EQ("a?b?", ToCp949("a\xFF"
                              "b\xE1\x84"));
    EXPECT_EQ("a\xEF\xBF\xBD", ToUtf8("a\xB0"));
    EXPECT_EQ(
        "\xEF\xBF\xBD"
        "1가",
        ToUtf8("\xFF"
               "1\xB0\xA1"));
    EXPECT_EQ("가", ToUtf8("\xB0\xA1"));  // a faulty text leaves no state behind
}

TEST(Cp949Test, CutsBetweenCharacters) {
    const std::string text = "a가b힣"_cp949;
    const std::size_t kept[] = {0, 1, 1, 3, 4, 4, 6, 6};
    for (std::size_t bytes = 0; bytes < std::size(kept); ++bytes)
        EXPECT_EQ(text.substr(0, kept[bytes]), CutToBytes(text, bytes)) << bytes;
    EXPECT_EQ("\xB0", CutToBytes("\xB0", 5));
}

}  // namespace
}  // namespace jogeon
