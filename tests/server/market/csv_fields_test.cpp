#include "server/market/csv_fields.h"

#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "server/market/source_text.h"

namespace jogeon::market {
namespace {

using Texts = std::vector<std::string>;

TEST(CsvFields, TakesLinesApart) {
    const std::pair<const char*, std::optional<Texts>> cases[] = {
        {"a,b,c", Texts{"a", "b", "c"}},
        {"", Texts{""}},
        {",", Texts{"", ""}},
        {" a , b\t,c ", Texts{"a", "b", "c"}},
        {R"("a,b",c)", Texts{"a,b", "c"}},
        {R"(a,"b ""c"" d",e)", Texts{"a", "b \"c\" d", "e"}},
        {R"("","",)", Texts{"", "", ""}},
        {R"( "a" , "b" )", Texts{"a", "b"}},
        {R"("""",")", std::nullopt},
        {R"("a)", std::nullopt},
        {R"("a"b,c)", std::nullopt},
        {R"(a"b",c)", std::nullopt},
    };
    CsvFields fields;
    for (const auto& [line, expected] : cases) {
        ASSERT_EQ(fields.Split(line), expected.has_value()) << line;
        if (!expected) continue;
        Texts texts;
        for (std::size_t i = 0; i < fields.Count(); ++i) texts.emplace_back(fields[i]);
        EXPECT_EQ(texts, *expected) << line;
    }
}

TEST(CsvFields, ReadsWholeNumbersOrNothing) {
    const std::pair<const char*, std::optional<double>> cases[] = {
        {"0", 0},
        {"71200.5", 71200.5},
        {"-3.25", -3.25},
        {"1e3", 1000},
        {"999999999999999", 999999999999999.0},
        {"12345678901234567890", 12345678901234567890.0},
        {"", std::nullopt},
        {"12a", std::nullopt},
        {"1,200", std::nullopt},
        {"0x10", std::nullopt},
        {"nan", std::nullopt},
        {"inf", std::nullopt},
        {"1e999", std::nullopt},
        {"-", std::nullopt}};
    for (const auto& [text, number] : cases) EXPECT_EQ(ParseNumber(text), number) << text;
}

TEST(SourceText, TheFirstKoreanTextDecidesTheEncoding) {
    // The two CP949 bytes of 짝 are UTF-8 as well, of another letter.
    SourceText cp949;
    EXPECT_EQ(cp949.Decode("\xC1\xBE\xB8\xF1"), "종목");
    EXPECT_EQ(cp949.Decode("\xC2\xA6"), "짝");
    SourceText utf8;
    EXPECT_EQ(utf8.Decode("종목"), "종목");
    EXPECT_EQ(utf8.Decode("\xC2\xA6"), "¦");
    for (const char* broken : {"\xC3", "\xED\x95", "\x80", "\xC0\x80", "\xF5\x80\x80\x80", "a\xEB\xB0z"})
        EXPECT_FALSE(IsUtf8(broken)) << broken;
}

TEST(SourceText, QuotesHarmlessly) {
    SourceText text;
    EXPECT_EQ(text.Quote("\x1B[31mred\r"), "\"?[31mred?\"");
    EXPECT_EQ(text.Quote("가나다라마바사아자차카타파하"), "\"가나다라마바사아자차카타파...\"");
}

}  // namespace
}  // namespace jogeon::market
