// One set of a text, put together from its lines.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "server/service/condition_set.h"
#include "server/store/condition_store.h"

namespace jogeon::sets_text {

struct TextSet {
    store::StoredSet stored;  // number of the text, and record
    std::string name;         // UTF-8
    int line = 0;             // where the set begins
};

// "05" as a number. Throws BadText for what isn't digits or not from `least` to `most`.
int ReadWholeNumber(std::string_view value, int least, int most);

// All of these throw BadText, which the reader gives a place. Texts are UTF-8.
class SetBuilder {
public:
    SetBuilder(int number, int line) : number_(number), line_(line) {}

    int Line() const { return line_; }

    // A line that isn't a condition.
    void Take(const std::string& key, std::string_view value);

    void Take(const DecodedBlock& condition);

    // The set, complete and as the service accepts it.
    TextSet Finish() const;

    // The letters of the expression for which there is no condition.
    std::string MissingLetters() const;

private:
    const int number_;
    const int line_;
    service::ConditionSet set_;
    std::set<std::string> keys_;
};

}  // namespace jogeon::sets_text
