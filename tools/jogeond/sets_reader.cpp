#include "tools/jogeond/sets_reader.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "screen/text/bytes.h"
#include "tools/jogeond/sets_words.h"

namespace jogeon::sets_text {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

class Reader {
public:
    Reader(const std::string& file, const ConditionLines& conditions)
        : file_(file), conditions_(conditions) {}

    SetsOfText Read(std::string_view text) {
        if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
        while (!text.empty()) {
            ++line_;
            const std::size_t end = std::min(text.find('\n'), text.size());
            At(line_, [&] { TakeLine(Trim(text.substr(0, end))); });
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        At(std::max(line_, 1), [&] {
            if (!formGiven_) throw BadText("there is no \"form = 1\": this is no text of condition sets");
        });
        EndSet();
        return std::move(result_);
    }

private:
    // Runs `step`; what it throws gets the place.
    template <typename Step>
    void At(int line, Step step) {
        try {
            step();
        } catch (const std::runtime_error& error) {
            throw BadText(Place(line) + error.what());
        }
    }

    std::string Place(int line) const { return file_ + ":" + std::to_string(line) + ": "; }

    void TakeLine(std::string_view line) {
        if (line.empty() || line.starts_with('#')) return;
        if (line.starts_with('[')) return BeginSet(line);
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) throw BadText("this line has no =");
        const std::string key(Trim(line.substr(0, equals)));
        const std::string_view value = Trim(line.substr(equals + 1));
        if (!formGiven_) return TakeForm(key, value);
        if (!set_) throw BadText("a number in brackets must stand before the lines of a set");
        const bool letter = !key.empty() && key[0] >= 'A' && key[0] <= 'Z';
        letter ? TakeCondition(key, value) : set_->Take(key, value);
    }

    void TakeForm(const std::string& key, std::string_view value) {
        if (key != kFormKey) throw BadText("the first line of a text of condition sets is \"form = 1\"");
        if (value != Decimal(kForm))
            throw BadText("form " + std::string(value) + " is unknown; this program reads form 1");
        formGiven_ = true;
    }

    void BeginSet(std::string_view line) {
        if (!formGiven_) throw BadText("\"form = 1\" must stand before the first set");
        const bool whole = line.size() == 4 && line.ends_with(']');
        const int number = whole ? ReadWholeNumber(line.substr(1, 2), 0, store::kMostSets - 1) : -1;
        if (number < 0) throw BadText("a set begins with its number, [00] to [98]");
        EndSet();
        if (!numbers_.insert(number).second) throw BadText("there is a set of this number already");
        set_.emplace(number, line_);
    }

    void EndSet() {
        if (!set_) return;
        At(set_->Line(), [&] { result_.sets.push_back(set_->Finish()); });
        for (char letter : set_->MissingLetters())
            Warn(set_->Line(), std::string("the expression names ") + letter + ", which is no condition");
        set_.reset();
    }

    // "A", "A off", "A value" or "A off value", and the condition.
    void TakeCondition(const std::string& key, std::string_view value) {
        std::vector<std::string> warnings;
        DecodedBlock condition = conditions_.Read(value, warnings);
        condition.letter = key[0];
        condition.inUse = true;
        std::string_view flags = Trim(std::string_view(key).substr(1));
        if (flags.starts_with(kOff)) {
            condition.inUse = false;
            flags = TrimLeft(flags.substr(kOff.size()));
        }
        condition.showValue = flags == kValue;
        if (!flags.empty() && !condition.showValue)
            throw BadText("behind a letter stand \"off\" and \"value\", not " + Quoted(flags));
        set_->Take(condition);
        for (const std::string& warning : warnings) Warn(line_, warning);
    }

    void Warn(int line, const std::string& what) { result_.warnings.push_back(Place(line) + what); }

    const std::string file_;
    const ConditionLines& conditions_;
    int line_ = 0;
    bool formGiven_ = false;
    std::optional<SetBuilder> set_;
    std::set<int> numbers_;
    SetsOfText result_;
};

}  // namespace

SetsOfText ReadSets(std::string_view text, const std::string& file, const ConditionLines& conditions) {
    return Reader(file, conditions).Read(text);
}

}  // namespace jogeon::sets_text
