#include "screen/expression/token.h"

#include <algorithm>
#include <array>

namespace jogeon {
namespace {

using namespace token_class;

struct ClassRow {
    std::int16_t tokenClass;
    std::int16_t precedence;
    int arity;
};

constexpr ClassRow kClasses[] = {{kIndex, 1, 0},       {kOpen, 1, 1},        {kClose, 0, 0},
                                 {kOpenSecond, 1, 1},  {kCloseSecond, 0, 0}, {kOpenThird, 1, 1},
                                 {kCloseThird, 0, 0},  {kNot, 20, 1},        {kAnd, 110, 2},
                                 {kOr, 120, 2},        {kQuestion, 130, 3},  {kColon, 135, 0},
                                 {kLineComment, 0, 0}, {kBlockComment, 0, 0}};

constexpr ClassRow kOtherClass = {0, 0, 0};

const ClassRow& Row(std::int16_t tokenClass) {
    const auto* found = std::find_if(std::begin(kClasses), std::end(kClasses),
                                     [&](const ClassRow& row) { return row.tokenClass == tokenClass; });
    return found == std::end(kClasses) ? kOtherClass : *found;
}

constexpr S4PTSPELLING kSpellings[] = {{"NOT", true, kNot}, {"AND", true, kAnd},  {"OR", true, kOr},
                                       {"(", false, kOpen}, {")", false, kClose}, {"!", false, kNot},
                                       {"&", false, kAnd},  {"|", false, kOr}};

char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
bool IsLetter(char c) {
    return Upper(c) >= 'A' && Upper(c) <= 'Z';
}
bool IsWordCharacter(char c) {
    return IsLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

bool WordGoesOnAt(std::string_view text, std::size_t at) {
    return at < text.size() && IsWordCharacter(text[at]);
}

}  // namespace

std::int16_t Precedence(std::int16_t tokenClass) {
    return Row(tokenClass).precedence;
}
int Arity(std::int16_t tokenClass) {
    return Row(tokenClass).arity;
}

bool IsContainerOpen(std::int16_t tokenClass) {
    return tokenClass == kOpen || tokenClass == kOpenSecond || tokenClass == kOpenThird;
}

bool IsContainerClose(std::int16_t tokenClass) {
    return tokenClass == kClose || tokenClass == kCloseSecond || tokenClass == kCloseThird;
}

std::unique_ptr<S4PTKN> MakeToken(std::int16_t tokenClass, const char* position, int length) {
    if (IsContainerOpen(tokenClass)) return std::make_unique<S4PTKNCOPEN>(tokenClass, position, length);
    if (IsContainerClose(tokenClass)) return std::make_unique<S4PTKNCCLOSE>(tokenClass, position, length);
    switch (tokenClass) {
        case kIndex:
            return std::make_unique<S4PTKNINDEX>(tokenClass, position, length);
        case kNot:
            return std::make_unique<S4PTKNUNARY>(tokenClass, position, length);
        case kAnd:
        case kOr:
            return std::make_unique<S4PTKNBINARY>(tokenClass, position, length);
        case kQuestion:
            return std::make_unique<S4PTKNQUESTION>(tokenClass, position, length);
        case kColon:
            return std::make_unique<S4PTKNCOLON>(tokenClass, position, length);
        default:
            return std::make_unique<S4PTKN>(tokenClass, position, length);
    }
}

std::span<const S4PTSPELLING> Spellings() {
    return kSpellings;
}

std::optional<S4PTSPELLING> MatchSpelling(std::string_view text, std::span<const S4PTSPELLING> spellings) {
    const auto beginsText = [&](const S4PTSPELLING& spelling) {
        const std::string_view start = text.substr(0, spelling.text.size());
        return std::equal(start.begin(), start.end(), spelling.text.begin(), spelling.text.end(),
                          [](char c, char wanted) { return Upper(c) == wanted; });
    };
    const auto found = std::find_if(spellings.begin(), spellings.end(), beginsText);
    if (found == spellings.end()) return std::nullopt;
    if (found->word && WordGoesOnAt(text, found->text.size())) return std::nullopt;
    return *found;
}

std::optional<std::uint8_t> MatchLetter(std::string_view text) {
    if (text.empty() || !IsLetter(text.front()) || WordGoesOnAt(text, 1)) return std::nullopt;
    return static_cast<std::uint8_t>(Upper(text.front()) - 'A');
}

}  // namespace jogeon
