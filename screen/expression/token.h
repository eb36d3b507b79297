// Tokens of an expression: their classes, their spellings, and the objects that stand for them.
//
// The classes reach further than the spellings: the engine has three kinds of brackets, a conditional and
// comments, the expression box has words for none of these but the round brackets.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace jogeon {

namespace token_class {
constexpr std::int16_t kIndex = 10;
constexpr std::int16_t kOpen = 20;  // an open class and its close are 10 apart
constexpr std::int16_t kClose = 30;
constexpr std::int16_t kOpenSecond = 40;
constexpr std::int16_t kCloseSecond = 50;
constexpr std::int16_t kOpenThird = 60;
constexpr std::int16_t kCloseThird = 70;
constexpr std::int16_t kNot = 80;
constexpr std::int16_t kAnd = 90;
constexpr std::int16_t kOr = 100;
constexpr std::int16_t kQuestion = 110;
constexpr std::int16_t kColon = 115;
constexpr std::int16_t kLineComment = 210;
constexpr std::int16_t kBlockComment = 215;
}  // namespace token_class

// How tightly a class binds (smaller is tighter) and how many operands it takes; 0 for any other class.
std::int16_t Precedence(std::int16_t tokenClass);
int Arity(std::int16_t tokenClass);

bool IsContainerOpen(std::int16_t tokenClass);
bool IsContainerClose(std::int16_t tokenClass);

constexpr std::uint8_t kNoIndex = 0xFF;

class S4PTKN {
public:
    S4PTKN(std::int16_t tokenClass, const char* position, int length)
        : m_nClass(tokenClass), m_pPosition(position), m_nLength(length) {}
    virtual ~S4PTKN() = default;

    virtual std::uint8_t GetIndex() const { return kNoIndex; }
    virtual void SetIndex(std::uint8_t) {}

    const std::int16_t m_nClass;
    const char* const m_pPosition;  // first character, in the text being parsed
    const int m_nLength;
};

// A condition letter: 0 for A to 25 for Z.
class S4PTKNINDEX : public S4PTKN {
public:
    using S4PTKN::S4PTKN;
    std::uint8_t GetIndex() const override { return m_nIndex; }
    void SetIndex(std::uint8_t index) override { m_nIndex = index; }

private:
    std::uint8_t m_nIndex = kNoIndex;
};

// These add their identity only.
class S4PTKNCOPEN : public S4PTKN {
    using S4PTKN::S4PTKN;
};
class S4PTKNCCLOSE : public S4PTKN {
    using S4PTKN::S4PTKN;
};
class S4PTKNUNARY : public S4PTKN {
    using S4PTKN::S4PTKN;
};
class S4PTKNBINARY : public S4PTKN {
    using S4PTKN::S4PTKN;
};
class S4PTKNQUESTION : public S4PTKN {
    using S4PTKN::S4PTKN;
};
class S4PTKNCOLON : public S4PTKN {
    using S4PTKN::S4PTKN;
};

std::unique_ptr<S4PTKN> MakeToken(std::int16_t tokenClass, const char* position, int length);

struct S4PTSPELLING {
    std::string_view text;  // upper case
    bool word;              // a letter, digit or '_' behind it makes it something else
    std::int16_t tokenClass;
};

// What the expression box understands, words before symbols.
std::span<const S4PTSPELLING> Spellings();

// The spelling that `text` begins with, in any case. A word that goes on ends the search.
std::optional<S4PTSPELLING> MatchSpelling(std::string_view text, std::span<const S4PTSPELLING> spellings);

// The index of the letter that `text` begins with, if it stands by itself.
std::optional<std::uint8_t> MatchLetter(std::string_view text);

}  // namespace jogeon
