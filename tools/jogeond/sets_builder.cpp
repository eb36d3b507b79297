#include "tools/jogeond/sets_builder.h"

#include <algorithm>
#include <span>

#include "screen/expression/expression_text.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "tools/jogeond/sets_words.h"

namespace jogeon::sets_text {
namespace {

namespace slots = condition_header;

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

std::string Cp949(const std::string& utf8) {
    std::optional<std::string> bytes = TryToCp949(utf8);
    if (!bytes) throw BadText(Quoted(utf8) + " has a character that CP949 doesn't have");
    return *std::move(bytes);
}

void DemandRoom(const std::string& bytes, ByteField field) {
    if (bytes.size() > field.width)
        throw BadText("it is " + std::to_string(bytes.size()) + " bytes of CP949 long; " +
                      std::to_string(field.width) + " is the most");
}

// The whole of a value as a text in quotation marks.
std::string ReadText(std::string_view value, ByteField field) {
    Scanner scanner(value);
    const std::string bytes = Cp949(scanner.TakeQuoted());
    if (!scanner.AtEnd()) throw BadText("there is more behind the quotation mark");
    DemandRoom(bytes, field);
    return bytes;
}

void ReadWords(std::string_view value, std::span<const TargetWord> words, TargetFields& target) {
    Scanner line(value);
    do {
        const std::string_view word = line.UpTo(",");
        const auto found = std::find_if(words.begin(), words.end(),
                                        [&](const TargetWord& known) { return known.word == word; });
        if (found == words.end()) throw BadText("there is no " + Quoted(word) + " to choose");
        target.*found->member |= found->bit;
    } while (line.Take(','));
}

std::vector<std::string> ReadGroups(std::string_view value) {
    std::vector<std::string> groups;
    Scanner line(value);
    while (!line.AtEnd()) {
        groups.emplace_back(line.UpTo(" "));
        if (groups.back().size() != slots::kGroupCodeWidth)
            throw BadText(Quoted(groups.back()) + " is no group code of three characters");
        line.Take(' ');
    }
    if (groups.size() > slots::kMaxGroupCodes) throw BadText("there are more than 200 groups");
    return groups;
}

std::string ReadExpression(std::string_view value) {
    const std::string display = Cp949(std::string(value));
    const ExpressionCheck check = CheckExpressionText(display);
    if (!check.valid)
        throw BadText("the expression is wrong: " +
                      ToUtf8(ExpressionErrorText(display, check.errorPosition)));
    const std::string compact = ToCompactForm(display);
    DemandRoom(compact, slots::kExp);
    return compact;
}

bool ReadPosition(std::string_view value) {
    if (value != kBuy && value != kSell) throw BadText("a position is buy or sell");
    return value == kBuy;
}

}  // namespace

int ReadWholeNumber(std::string_view value, int least, int most) {
    const bool digits = !value.empty() && value.size() <= 4 &&
                        std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; });
    const int number = digits ? Atoi(value) : -1;
    if (number < least || number > most)
        throw BadText(Quoted(value) + " is no number from " + Decimal(least) + " to " + Decimal(most));
    return number;
}

void SetBuilder::Take(const std::string& key, std::string_view value) {
    if (!keys_.insert(key).second) throw BadText(key + " stands twice in this set");
    ConditionHeader& header = set_.header;
    if (key == kName) {
        header.name = ReadText(value, slots::kName);
    } else if (key == kPosition) {
        header.buy = ReadPosition(value);
    } else if (key == kUniverse) {
        ReadWords(value, kUniverses, header.target);
    } else if (key == kAccount) {
        header.target.Acc = ReadText(value, slots::kAcc);
    } else if (key == kGroups) {
        header.target.Group = ReadGroups(value);
    } else if (key == kExclude) {
        ReadWords(value, kExclusions, header.target);
    } else if (key == kMonth) {
        header.target.Month = ReadWholeNumber(value, 1, 12);
    } else if (key == kExpression) {
        header.exp = ReadExpression(value);
    } else {
        throw BadText("a set has no line " + Quoted(key));
    }
}

void SetBuilder::Take(const DecodedBlock& condition) {
    for (const DecodedBlock& other : set_.blocks)
        if (other.letter == condition.letter)
            throw BadText(std::string("condition ") + condition.letter + " stands twice in this set");
    set_.blocks.push_back(condition);
}

TextSet SetBuilder::Finish() const {
    for (std::string_view key : {kName, kPosition, kExpression})
        if (!keys_.contains(std::string(key))) throw BadText("the set has no " + std::string(key));
    service::ConditionSet set = set_;
    set.header.number.clear();
    const std::string record = service::WriteConditionSet(set);
    const TargetFields kept = service::ReadConditionSet(record).header.target;
    if (kept != set.header.target) throw BadText("an account belongs to holdings only");
    return {{number_, record}, ToUtf8(set.header.name), line_};
}

std::string SetBuilder::MissingLetters() const {
    std::string missing;
    for (char c : set_.header.exp) {
        const bool isLetter = c >= 'A' && c <= 'Z';
        const auto has = [c](const DecodedBlock& block) { return block.letter == c; };
        if (isLetter && std::none_of(set_.blocks.begin(), set_.blocks.end(), has)) missing += c;
    }
    return missing;
}

}  // namespace jogeon::sets_text
