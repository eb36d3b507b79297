#include "tools/jogeond/sets_writer.h"

#include <span>

#include "screen/expression/expression_text.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/service/condition_set.h"
#include "tools/jogeond/sets_words.h"

namespace jogeon::sets_text {
namespace {

constexpr char kHead[] =
    "# Condition sets of jogeon, as \"jogeond sets export\" writes and \"jogeond sets import\" reads them;\n"
    "# \"jogeond sets --help\" tells the form.\n";

void Line(std::string& text, std::string_view key, std::string_view value) {
    text.append(key).append(" = ").append(value).append("\n");
}

// A line that says nothing is left out.
void LineIfAny(std::string& text, std::string_view key, std::string_view value) {
    if (!value.empty()) Line(text, key, value);
}

std::string WordsOf(const TargetFields& target, std::span<const TargetWord> words) {
    std::vector<std::string> present;
    for (const TargetWord& word : words)
        if (target.*word.member & word.bit) present.emplace_back(word.word);
    return Join(present, ", ");
}

void WriteTarget(std::string& text, const TargetFields& target) {
    LineIfAny(text, kUniverse, WordsOf(target, kUniverses));
    LineIfAny(text, kAccount, target.Acc.empty() ? "" : Quote(target.Acc));
    LineIfAny(text, kGroups, Join(target.Group, " "));
    LineIfAny(text, kExclude, WordsOf(target, kExclusions));
    LineIfAny(text, kMonth, target.Month ? Decimal(target.Month) : "");
}

std::string LetterAndFlags(const DecodedBlock& block) {
    std::string key(1, block.letter);
    if (!block.inUse) key.append(" ").append(kOff);
    if (block.showValue) key.append(" ").append(kValue);
    return key;
}

std::string SetText(const store::StoredSet& stored, const ConditionLines& conditions) {
    const service::ConditionSet set = service::ReadConditionSet(stored.record);
    std::string text = "\n[" + ZeroPadded(stored.number, 2) + "]\n";
    Line(text, kName, Quote(ToUtf8(set.header.name)));
    Line(text, kPosition, set.header.buy ? kBuy : kSell);
    WriteTarget(text, set.header.target);
    Line(text, kExpression, ToDisplayForm(set.header.exp));
    for (const DecodedBlock& block : set.blocks) Line(text, LetterAndFlags(block), conditions.Write(block));
    return text;
}

}  // namespace

std::string WriteSets(const std::vector<store::StoredSet>& sets, const ConditionLines& conditions) {
    std::string text = kHead;
    Line(text, kFormKey, Decimal(kForm));
    for (const store::StoredSet& set : sets) {
        try {
            text += SetText(set, conditions);
        } catch (const std::runtime_error& error) {  // a damaged record, or another catalogue than its own
            throw BadText("set " + ZeroPadded(set.number, 2) + ": " + error.what());
        }
    }
    return text;
}

}  // namespace jogeon::sets_text
