#include "screen/expression/expression_characters.h"

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"

namespace jogeon {
namespace {

bool IsCapital(char32_t c) {
    return c >= 'A' && c <= 'Z';
}
bool IsLatin(char32_t c) {
    return IsCapital(c) || (c >= 'a' && c <= 'z');
}
bool IsOperatorSign(char32_t c) {
    return c == '!' || c == '&' || c == '|';
}
bool IsRoundBracket(char32_t c) {
    return c == '(' || c == ')';
}
bool IsBracket(char32_t c) {
    return IsRoundBracket(c) || c == '[' || c == ']' || c == '{' || c == '}';
}

host::Box TooLong(std::string text, int length) {
    text = "조건식이 너무 깁니다.\n\n"_cp949 + text + "\n지금 입력한 조건식은 "_cp949 + Decimal(length) +
           "자입니다."_cp949;
    return {text, "조건검색"_cp949, host::Icon::Information, host::Buttons::Ok};
}

}  // namespace

bool IsExpressionCharacter(char32_t character) {
    return character == ' ' || IsLatin(character) || IsOperatorSign(character) || IsBracket(character);
}

ExpressionInk TypedInk(char32_t character) {
    if (IsOperatorSign(character)) return ExpressionInk::Operator;
    if (IsBracket(character)) return ExpressionInk::Bracket;
    return IsLatin(character) ? ExpressionInk::Letter : ExpressionInk::Plain;
}

ExpressionInk FinishedInk(char32_t character) {
    if (IsRoundBracket(character)) return ExpressionInk::Bracket;
    return IsCapital(character) ? ExpressionInk::Letter : ExpressionInk::Operator;
}

int CompactLength(std::string_view display) {
    int length = 0;
    bool inWord = false;
    for (const char c : display) {
        const bool latin = IsLatin(static_cast<unsigned char>(c));
        if (c != ' ' && !(latin && inWord)) ++length;
        inWord = latin;
    }
    return length;
}

std::optional<host::Box> RefuseLength(std::string_view before, std::string_view after) {
    const int tokens = CompactLength(after);
    if (tokens > kMaxExpressionTokens && tokens > CompactLength(before)) return CompactFormTooLong(tokens);
    const int characters = static_cast<int>(after.size());
    if (characters <= kMaxExpressionCharacters || after.size() <= before.size()) return std::nullopt;
    const std::string limit = "빈칸을 포함하여 "_cp949 + Decimal(kMaxExpressionCharacters);
    return TooLong(limit + "자까지 입력할 수 있습니다."_cp949, characters);
}

host::Box CompactFormTooLong(int length) {
    const std::string limit = "빈칸을 빼고 and, or를 한 자로 세어 "_cp949 + Decimal(kMaxExpressionTokens);
    return TooLong(limit + "자까지 쓸 수 있습니다."_cp949, length);
}

}  // namespace jogeon
